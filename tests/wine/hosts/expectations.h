#pragma once
// What a host found, told on the standard output; the last line of a good run is always the same.

#include <windows.h>

#include <cstdio>

namespace hosts {

class Expectations {
 public:
  void Result(const char* what, HRESULT expected, HRESULT actual) {
    if (expected == actual) return;
    ++failures_;
    std::printf("%s: expected %08lX, got %08lX\n", what, static_cast<unsigned long>(expected),
                static_cast<unsigned long>(actual));
  }
  void True(const char* what, bool holds) {
    if (holds) return;
    ++failures_;
    std::printf("%s: does not hold\n", what);
  }
  [[nodiscard]] int Finish() const {
    if (failures_ == 0) std::puts("host finished: everything as expected");
    return failures_ == 0 ? 0 : 1;
  }

 private:
  int failures_ = 0;
};

}  // namespace hosts
