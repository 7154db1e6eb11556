#pragma once
// What keeps the library in the process: living objects and the locks of class factories.

#include <atomic>

namespace qm::automation {

class LibraryUse {
 public:
  static void Add() noexcept { ++count_; }
  static void Remove() noexcept { --count_; }
  [[nodiscard]] static bool None() noexcept { return count_ == 0; }

 private:
  static inline std::atomic<long> count_ = 0;
};

// A base of everything that hosts hold pointers to.
class CountedObject {
 public:
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;

 protected:
  CountedObject() noexcept { LibraryUse::Add(); }
  ~CountedObject() { LibraryUse::Remove(); }
};

}  // namespace qm::automation
