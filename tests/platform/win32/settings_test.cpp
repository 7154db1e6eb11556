#include "platform/win32/settings.h"

#include "platform/win32/wide.h"
#include "tests/platform/win32/expect_error.h"

namespace qm::platform::win32 {
namespace {

constexpr wchar_t kKey[] = L"Software\\TALVO\\Pruebas";

struct SavedSettings : testing::Test {
  SavedSettings() { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }
  ~SavedSettings() override { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }

  static void Put(DWORD type, const void* data, DWORD bytes) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Ancho", type, data, bytes), ERROR_SUCCESS);
  }

  Win32Settings settings;
};

TEST_F(SavedSettings, AreReadBackAsTheyWereSaved) {
  settings.Save(u"Pruebas", u"Ancho Página", u"29,50 «ñ»");
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho Página", u"21"), u"29,50 «ñ»");
  settings.Save(u"Pruebas", u"Ancho Página", u"7");
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho Página", u"21"), u"7");
}

TEST_F(SavedSettings, TheDefaultStandsForWhatWasNeverSaved) {
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho", u"02"), u"02");
  settings.Save(u"Pruebas", u"Alto", u"08");
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho", u"02"), u"02");
}

TEST_F(SavedSettings, AnEmptyTextIsOne) {
  settings.Save(u"Pruebas", u"Ancho", u"");
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho", u"02"), u"");
}

TEST_F(SavedSettings, MayBeLong) {
  for (const std::size_t length : {63U, 64U, 65U, 5000U}) {
    settings.Save(u"Pruebas", u"Ancho", std::u16string(length, u'x'));
    EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho", u""), std::u16string(length, u'x'));
  }
}

TEST_F(SavedSettings, WhatIsNoTextCountsAsNeverSaved) {
  const DWORD number = 2;
  Put(REG_DWORD, &number, sizeof number);
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho", u"02"), u"02");
}

TEST_F(SavedSettings, ATextWithoutItsFinalZeroIsReadToItsEnd) {
  Put(REG_SZ, L"12", 2 * sizeof(wchar_t));
  EXPECT_EQ(settings.Read(u"Pruebas", u"Ancho", u"02"), u"12");
}

TEST_F(SavedSettings, StandAsTextsUnderTheApplicationsKey) {
  settings.Save(u"Pruebas", u"Ancho", u"03");
  wchar_t text[8] = L"";
  DWORD bytes = sizeof text;
  DWORD type = 0;
  ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, kKey, L"Ancho", RRF_RT_ANY, &type, text, &bytes), ERROR_SUCCESS);
  EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
  EXPECT_STREQ(text, L"03");
}

TEST_F(SavedSettings, AnEmptySectionIsTheApplicationsOwnKey) {
  settings.Save(u"", u"Clave de prueba", u"sí");
  EXPECT_EQ(settings.Read(u"", u"Clave de prueba", u"no"), u"sí");
  wchar_t text[8] = L"";
  DWORD bytes = sizeof text;
  EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, L"Software\\TALVO", L"Clave de prueba", RRF_RT_REG_SZ, nullptr,
                         text, &bytes),
            ERROR_SUCCESS);
  RegDeleteKeyValueW(HKEY_CURRENT_USER, L"Software\\TALVO", L"Clave de prueba");
}

}  // namespace
}  // namespace qm::platform::win32
