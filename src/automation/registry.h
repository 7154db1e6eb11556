#pragma once
// Registry changes that are made whole or not at all, and the removal of keys.
// Errors: RegistryError with the Windows error code.

#include <windows.h>

#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace qm::automation {

struct RegistryError : std::exception {
  LSTATUS code;
  explicit RegistryError(LSTATUS failure) : code(failure) {}
};

// The part of the registry that programs of one bitness see.
enum class View : REGSAM { Own = 0, Bits32 = KEY_WOW64_32KEY, Bits64 = KEY_WOW64_64KEY };

class RegistryKey {
 public:
  RegistryKey() = default;
  ~RegistryKey();
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  [[nodiscard]] HKEY Get() const noexcept { return key_; }
  [[nodiscard]] HKEY* Out() noexcept { return &key_; }

 private:
  HKEY key_ = nullptr;
};

// Texts written under one root; what is not committed is undone, as if it had never been.
class RegistryChanges {
 public:
  explicit RegistryChanges(HKEY root) : root_(root) {}
  ~RegistryChanges();
  RegistryChanges(const RegistryChanges&) = delete;
  RegistryChanges& operator=(const RegistryChanges&) = delete;

  // An empty name is the key's default value. Keys on the way are made.
  void SetText(const std::wstring& path, const std::wstring& name, const std::wstring& text);
  void Commit() noexcept { done_.clear(); }

 private:
  struct Change {
    std::wstring path;
    std::wstring name;      // of a value that was set; unused for a key
    bool madeKey = false;   // else a value was set
    DWORD type = REG_NONE;  // of the value before, if there was one
    std::optional<std::vector<BYTE>> before;
  };

  void MakeKey(const std::wstring& path);
  void Undo(const Change& change) noexcept;

  HKEY root_;
  std::vector<Change> done_;
};

[[nodiscard]] bool KeyExists(HKEY root, const std::wstring& path, View view);
// With everything below it. A key that is not there is no error.
void DeleteTree(HKEY root, const std::wstring& path, View view = View::Own);
void DeleteIfEmpty(HKEY root, const std::wstring& path);

}  // namespace qm::automation
