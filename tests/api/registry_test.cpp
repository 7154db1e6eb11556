// Registry changes are made whole or not at all.

#include <gtest/gtest.h>

#include "automation/registry.h"

namespace qm::automation {
namespace {

class Registry : public testing::Test {
 protected:
  Registry() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlace);
    RegCreateKeyExW(HKEY_CURRENT_USER, kPlace, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, root_.Out(), nullptr);
  }
  ~Registry() override { RegDeleteTreeW(HKEY_CURRENT_USER, kPlace); }

  std::wstring Text(const wchar_t* path, const wchar_t* name = nullptr) {
    wchar_t text[200] = L"";
    DWORD size = sizeof text;
    const LSTATUS read = RegGetValueW(root_.Get(), path, name, RRF_RT_ANY, nullptr, text, &size);
    return read == ERROR_SUCCESS ? text : L"none";
  }
  void Set(const wchar_t* path, DWORD type, const std::wstring& text) {
    RegSetKeyValueW(root_.Get(), path, nullptr, type, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * 2));
  }

  static constexpr const wchar_t* kPlace = L"Software\\QmModImp3 registry test";
  RegistryKey root_;
};

TEST_F(Registry, CommittedChangesStay) {
  {
    RegistryChanges changes(root_.Get());
    changes.SetText(L"A\\B\\C", L"", L"uno");
    changes.SetText(L"A\\B", L"nombre", L"ñ");
    changes.Commit();
  }
  EXPECT_EQ(Text(L"A\\B\\C"), L"uno");
  EXPECT_EQ(Text(L"A\\B", L"nombre"), L"ñ");
}

TEST_F(Registry, ChangesThatAreNotCommittedAreUndone) {
  Set(L"A", REG_EXPAND_SZ, L"%antes%");
  {
    RegistryChanges changes(root_.Get());
    changes.SetText(L"A", L"", L"después");
    changes.SetText(L"A", L"nuevo", L"x");
    changes.SetText(L"A\\B\\C", L"", L"uno");
    changes.SetText(L"D", L"", L"dos");
    EXPECT_EQ(Text(L"A"), L"después");
    EXPECT_THROW(changes.SetText(std::wstring(300, L'k'), L"", L"too long for a key"), RegistryError);
  }
  DWORD type = 0;
  RegGetValueW(root_.Get(), L"A", nullptr, RRF_RT_ANY | RRF_NOEXPAND, &type, nullptr, nullptr);
  EXPECT_EQ(type, static_cast<DWORD>(REG_EXPAND_SZ));
  EXPECT_EQ(Text(L"A", L"nuevo"), L"none");
  EXPECT_FALSE(KeyExists(root_.Get(), L"A\\B", View::Own));
  EXPECT_FALSE(KeyExists(root_.Get(), L"D", View::Own));
}

TEST_F(Registry, KeysGoWithAllBelowThem) {
  Set(L"A\\B\\C", REG_SZ, L"x");
  Set(L"E", REG_SZ, L"x");
  DeleteIfEmpty(root_.Get(), L"A");
  EXPECT_TRUE(KeyExists(root_.Get(), L"A\\B\\C", View::Own));
  DeleteTree(root_.Get(), L"A\\B");
  DeleteTree(root_.Get(), L"A\\B");
  EXPECT_FALSE(KeyExists(root_.Get(), L"A\\B", View::Own));
  DeleteIfEmpty(root_.Get(), L"A");
  EXPECT_FALSE(KeyExists(root_.Get(), L"A", View::Own));
  EXPECT_TRUE(KeyExists(root_.Get(), L"E", View::Own));
}

}  // namespace
}  // namespace qm::automation
