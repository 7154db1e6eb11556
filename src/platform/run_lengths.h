#pragma once
// Bytes as PDF's RunLengthDecode filter reads them: runs of one value as a count and the value, others as
// they are. What is left of a printed page is a few hundredths, which then is quickly compressed.

#include <cstddef>
#include <cstdint>
#include <string>

namespace qm::platform {

class RunLengths {
 public:
  void Add(const std::uint8_t* bytes, std::size_t count);
  void AddRun(std::uint8_t value, std::size_t count);
  [[nodiscard]] std::string Finish();  // once, at the end

 private:
  void EndRun();
  void EndLiterals();

  std::string output_;
  std::string literals_;  // not yet in the output
  std::uint8_t value_ = 0;
  std::size_t run_ = 0;  // of the value, not yet in the output
};

}  // namespace qm::platform
