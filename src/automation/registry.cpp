#include "automation/registry.h"

#include <algorithm>

namespace qm::automation {

namespace {

void Check(LSTATUS result) {
  if (result != ERROR_SUCCESS) throw RegistryError(result);
}

const wchar_t* NameOrDefault(const std::wstring& name) { return name.empty() ? nullptr : name.c_str(); }

}  // namespace

RegistryKey::~RegistryKey() {
  if (key_) RegCloseKey(key_);
}

RegistryChanges::~RegistryChanges() {
  for (auto change = done_.rbegin(); change != done_.rend(); ++change) Undo(*change);
}

void RegistryChanges::MakeKey(const std::wstring& path) {
  for (std::size_t end = path.find(L'\\');; end = path.find(L'\\', end + 1)) {
    const std::wstring part = path.substr(0, end);
    done_.reserve(done_.size() + 1);  // a key that is made can always be noted
    Change change{part, {}, true, REG_NONE, std::nullopt};
    RegistryKey key;
    DWORD disposition = 0;
    Check(RegCreateKeyExW(root_, part.c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, key.Out(),
                          &disposition));
    if (disposition == REG_CREATED_NEW_KEY) done_.push_back(std::move(change));
    if (end == std::wstring::npos) return;
  }
}

void RegistryChanges::SetText(const std::wstring& path, const std::wstring& name, const std::wstring& text) {
  MakeKey(path);
  RegistryKey key;
  Check(RegOpenKeyExW(root_, path.c_str(), 0, KEY_READ | KEY_WRITE, key.Out()));
  Change change{path, name, false, REG_NONE, std::nullopt};
  DWORD size = 0;
  if (RegQueryValueExW(key.Get(), NameOrDefault(name), nullptr, &change.type, nullptr, &size) ==
      ERROR_SUCCESS) {
    std::vector<BYTE> before(size);
    Check(RegQueryValueExW(key.Get(), NameOrDefault(name), nullptr, &change.type, before.data(), &size));
    change.before = std::move(before);
  }
  done_.push_back(std::move(change));
  Check(RegSetValueExW(key.Get(), NameOrDefault(name), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                       static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

void RegistryChanges::Undo(const Change& change) noexcept {
  if (change.madeKey) {
    RegDeleteKeyW(root_, change.path.c_str());
    return;
  }
  RegistryKey key;
  if (RegOpenKeyExW(root_, change.path.c_str(), 0, KEY_WRITE, key.Out()) != ERROR_SUCCESS) return;
  if (!change.before) {
    RegDeleteValueW(key.Get(), NameOrDefault(change.name));
    return;
  }
  RegSetValueExW(key.Get(), NameOrDefault(change.name), 0, change.type, change.before->data(),
                 static_cast<DWORD>(change.before->size()));
}

bool KeyExists(HKEY root, const std::wstring& path, View view) {
  RegistryKey key;
  return RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | static_cast<REGSAM>(view), key.Out()) ==
         ERROR_SUCCESS;
}

void DeleteTree(HKEY root, const std::wstring& path, View view) {
  // The tree's own top is deleted by its parent, in the view that was asked for.
  RegistryKey key;
  const LSTATUS opened = RegOpenKeyExW(root, path.c_str(), 0,
                                       DELETE | KEY_READ | KEY_WRITE | static_cast<REGSAM>(view), key.Out());
  if (opened == ERROR_FILE_NOT_FOUND) return;
  Check(opened);
  Check(RegDeleteTreeW(key.Get(), nullptr));
  const LSTATUS deleted = RegDeleteKeyExW(root, path.c_str(), static_cast<REGSAM>(view), 0);
  if (deleted != ERROR_FILE_NOT_FOUND) Check(deleted);
}

void DeleteIfEmpty(HKEY root, const std::wstring& path) {
  RegistryKey key;
  if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, key.Out()) != ERROR_SUCCESS) return;
  DWORD keys = 0;
  Check(RegQueryInfoKeyW(key.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr, nullptr,
                         nullptr, nullptr, nullptr));
  if (keys == 0) Check(RegDeleteKeyW(root, path.c_str()));
}

}  // namespace qm::automation
