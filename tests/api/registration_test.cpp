// Registration in a sandbox of the registry.

#include <gtest/gtest.h>

#include "automation/registry.h"
#include "tests/api/component.h"

namespace qm::tests {
namespace {

using automation::KeyExists;
using automation::RegistryKey;
using automation::View;

constexpr const wchar_t* kClass = L"Software\\Classes\\CLSID\\{EF7037AF-BD84-4BAA-94E3-C235A87CBF75}";

class Registration : public testing::Test {
 protected:
  Registration() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlace);
    RegCreateKeyExW(HKEY_CURRENT_USER, kPlace, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, sandbox_.Out(),
                    nullptr);
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, sandbox_.Get()), ERROR_SUCCESS);
  }
  ~Registration() override {
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlace);
  }

  HRESULT Entry(const char* name) {
    HMODULE library = LoadLibraryW(L"QmModImp3.dll");
    const auto entry =
        reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    const HRESULT result = entry ? entry() : E_UNEXPECTED;
    FreeLibrary(library);
    return result;
  }
  std::wstring Text(const std::wstring& path, const wchar_t* name = nullptr) {
    wchar_t text[600] = L"";
    DWORD size = sizeof text;
    RegGetValueW(sandbox_.Get(), path.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
  }
  bool Exists(const wchar_t* path) { return KeyExists(sandbox_.Get(), path, View::Own); }

  static constexpr const wchar_t* kPlace = L"Software\\QmModImp3 registration test";
  RegistryKey sandbox_;
};

TEST_F(Registration, WritesTheClassesTheirNamesInterfacesAndTheTypeLibrary) {
  ASSERT_EQ(Entry("DllRegisterServer"), S_OK);
  const std::wstring path = kClass;
  EXPECT_EQ(Text(path + L"\\ProgID"), L"Qm_Modelo_Impresion3.PrintForm");
  EXPECT_EQ(Text(path + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
  EXPECT_EQ(Text(path + L"\\TypeLib"), L"{C4035D2F-442D-4F35-B9A1-738BDF581516}");
  const std::wstring file = Text(path + L"\\InprocServer32");
  EXPECT_NE(file.find(L"QmModImp3.dll"), std::wstring::npos);
  EXPECT_EQ(Text(L"Software\\Classes\\Qm_Modelo_Impresion3.Email\\Clsid"),
            L"{B3888D0E-57CE-49A1-953B-B72E90C36D7D}");
  EXPECT_EQ(Text(L"Software\\Classes\\Interface\\{8889E8E6-5DA6-4A77-9D55-DB88CA3412FA}"), L"_PrintForm");
  const wchar_t* platform = sizeof(void*) == 8 ? L"win64" : L"win32";
  EXPECT_EQ(
      Text(std::wstring(L"Software\\Classes\\TypeLib\\{C4035D2F-442D-4F35-B9A1-738BDF581516}\\1.0\\409\\") +
           platform),
      file);
}

TEST_F(Registration, LeavesNothingAfterUnregistering) {
  ASSERT_EQ(Entry("DllRegisterServer"), S_OK);
  ASSERT_EQ(Entry("DllRegisterServer"), S_OK);
  ASSERT_EQ(Entry("DllUnregisterServer"), S_OK);
  EXPECT_FALSE(Exists(kClass));
  EXPECT_FALSE(Exists(L"Software\\Classes\\Qm_Modelo_Impresion3.PrintForm"));
  EXPECT_FALSE(Exists(L"Software\\Classes\\Interface\\{8889E8E6-5DA6-4A77-9D55-DB88CA3412FA}"));
  EXPECT_FALSE(Exists(L"Software\\Classes\\Interface\\{2F87DB1D-52E7-445B-96AC-39B1A6C91697}"));
  EXPECT_FALSE(Exists(L"Software\\Classes\\TypeLib\\{C4035D2F-442D-4F35-B9A1-738BDF581516}"));
  EXPECT_EQ(Entry("DllUnregisterServer"), S_OK);
}

TEST_F(Registration, ForTheUserAloneTouchesOnlyTheUsersPart) {
  RegistryKey user;
  ASSERT_EQ(
      RegCreateKeyExW(sandbox_.Get(), L"user", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, user.Out(), nullptr),
      ERROR_SUCCESS);
  HMODULE library = LoadLibraryW(L"QmModImp3.dll");
  const auto install = reinterpret_cast<HRESULT(STDAPICALLTYPE*)(BOOL, const wchar_t*)>(
      reinterpret_cast<void*>(GetProcAddress(library, "DllInstall")));
  ASSERT_NE(install, nullptr);
  RegOverridePredefKey(HKEY_CURRENT_USER, user.Get());
  const HRESULT installed = install(TRUE, L"user");
  const bool inUser = KeyExists(user.Get(), kClass, View::Own);
  const bool inMachine = Exists(kClass);
  const HRESULT removed = install(FALSE, L"user");
  const bool stays = KeyExists(user.Get(), kClass, View::Own);
  RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
  FreeLibrary(library);
  EXPECT_EQ(installed, S_OK);
  EXPECT_TRUE(inUser);
  EXPECT_FALSE(inMachine);
  EXPECT_EQ(removed, S_OK);
  EXPECT_FALSE(stays);
}

TEST_F(Registration, ThatCannotBeFinishedIsUndone) {
  // A volatile key takes no lasting keys below it: registering the type library fails, after the classes.
  RegistryKey classes, libraries;
  RegCreateKeyExW(sandbox_.Get(), L"Software\\Classes", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, classes.Out(),
                  nullptr);
  ASSERT_EQ(RegCreateKeyExW(classes.Get(), L"TypeLib", 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                            nullptr, libraries.Out(), nullptr),
            ERROR_SUCCESS);
  EXPECT_EQ(Entry("DllRegisterServer"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
  DWORD keys = 9;
  RegQueryInfoKeyW(classes.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr, nullptr,
                   nullptr, nullptr, nullptr);
  EXPECT_EQ(keys, 1u);  // the volatile one
}

}  // namespace
}  // namespace qm::tests
