#include "mail/profiles.h"

#include <gtest/gtest.h>

#include "mail/email_message.h"
#include "tests/error_of.h"
#include "tests/mail/mail_world.h"

namespace qm::mail {
namespace {

using Names = std::vector<std::u16string>;

class MailProfiles : public testing::Test, protected MailWorld {
 protected:
  Names Read(std::u16string_view wanted) { return LeerPerfiles(wanted, porDefecto_, environment); }
  std::u16string ErrorTextOfChoosing(std::u16string_view name) {
    try {
      static_cast<void>(ElegirPerfil(name, environment));
    } catch (const runtime::RuntimeError& error) {
      return error.description();
    }
    return {};
  }

  std::int16_t porDefecto_ = 77;
};

TEST_F(MailProfiles, LieInTheDocumentsFolderUnlessASettingSaysWhere) {
  EXPECT_EQ(RutaPerfiles(environment), kProfilePath);
  settings.values[{u"", u"ConDir"}] = u"D:\\conf\\";
  EXPECT_EQ(RutaPerfiles(environment), u"D:\\conf\\email\\email00.qmd");
  settings.values[{u"", u"ConDir"}] = u"D:\\conf";
  EXPECT_EQ(RutaPerfiles(environment), u"D:\\confemail\\email00.qmd");  // no backslash is put in
}

TEST_F(MailProfiles, HaveTheirDefaultHtmlFileInAFolderWithAnotherDefault) {
  EXPECT_EQ(CarpetaConfiguracion(environment), u"C:\\Users\\ana\\Trabajo\\Config\\");
  settings.values[{u"", u"ConDir"}] = u"D:\\conf\\";
  EXPECT_EQ(CarpetaConfiguracion(environment), u"D:\\conf\\");
}

TEST_F(MailProfiles, AreListedByNameWithThePlaceOfTheWantedOne) {
  AddProfileNamed(u"Ventas");
  AddProfileNamed(u"  Oficina ");
  EXPECT_EQ(Read(u"Ventas"), (Names{u"Oficina", u"Ventas"}));
  EXPECT_EQ(porDefecto_, 2);
  EXPECT_EQ(Read(u"nadie").size(), 2u);
  EXPECT_EQ(porDefecto_, 0);
}

TEST_F(MailProfiles, AreFoundByLeerPerfilesInTheirOwnCaseOnlyButChosenInAnyCase) {
  AddProfileNamed(u"Oficina");
  AddProfileNamed(u"Ventas");
  EXPECT_EQ(Read(u"OFICINA").size(), 2u);
  EXPECT_EQ(porDefecto_, 0);
  EXPECT_EQ(ElegirPerfil(u" OFICINA ", environment), u"OFICINA");
}

TEST_F(MailProfiles, WithACommaInTheNameAreTwoEntries) {
  AddProfileNamed(u"Ventas, Madrid");
  EXPECT_EQ(Read(u"Ventas, Madrid"), (Names{u"Ventas", u" Madrid"}));
  EXPECT_EQ(porDefecto_, 1);
}

TEST_F(MailProfiles, OfTheSameNameCountAsTheLaterOne) {
  AddProfileNamed(u"Ventas");
  AddProfileNamed(u"Ventas");
  static_cast<void>(Read(u"Ventas"));
  EXPECT_EQ(porDefecto_, 2);
}

TEST_F(MailProfiles, ThatDoNotExistGiveOneEntryThatSaysSo) {
  EXPECT_EQ(Read(u""), (Names{u"No hay ningún perfil"}));
  EXPECT_EQ(porDefecto_, 0);
  EXPECT_TRUE(files.contents.empty());  // reading makes no file
}

TEST_F(MailProfiles, ThatDoNotExistCanBeChosenByTheEntryThatSaysSo) {
  EXPECT_EQ(ElegirPerfil(u"no hay ningún perfil", environment), u"no hay ningún perfil");
}

TEST_F(MailProfiles, ThatAreUnknownCannotBeChosen) {
  AddProfileNamed(u"Oficina");
  EXPECT_EQ(tests::ErrorOf([&] { return ElegirPerfil(u"Otro", environment); }), 50000);
  EXPECT_EQ(ErrorTextOfChoosing(u"  Otro "), u"ERROR: El perfil Otro no existe");
}

TEST_F(MailProfiles, HaveTheFirstOneAsTheirDefault) {
  AddProfileNamed(u"Ventas ");
  AddProfileNamed(u"Oficina");
  EXPECT_EQ(BuscarPerfilPorDefecto(environment), u"Ventas");  // the first of the file, not by name
  static_cast<void>(Read(u""));
  EXPECT_EQ(porDefecto_, 2);
}

TEST_F(MailProfiles, HaveACandidateOfNoUserAsTheirDefault) {
  AddProfile({{ProfileField::Name, u"Uno"}});
  AddProfile(
      {{ProfileField::User, u"ana"}, {ProfileField::Name, u"Dos"}, {ProfileField::DefaultCandidate, u"1"}});
  AddProfile(
      {{ProfileField::User, u"  "}, {ProfileField::Name, u"Tres"}, {ProfileField::DefaultCandidate, u"1"}});
  AddProfile({{ProfileField::Name, u"Cuatro"}, {ProfileField::DefaultCandidate, u"1"}});
  EXPECT_EQ(BuscarPerfilPorDefecto(environment), u"Tres");
}

TEST_F(MailProfiles, HaveTheAssignedOneAsTheirDefaultWithItsOuterBlanks) {
  AddProfileNamed(u"Uno");
  settings.values[{u"", u"Email Asignado"}] = u"  Dos ";
  EXPECT_EQ(BuscarPerfilPorDefecto(environment), u"  Dos ");
  settings.values[{u"", u"Email Asignado"}] = u"   ";
  EXPECT_EQ(BuscarPerfilPorDefecto(environment), u"Uno");
}

TEST_F(MailProfiles, ThatDoNotExistHaveADefaultThatSaysSoWhateverIsAssigned) {
  settings.values[{u"", u"Email Asignado"}] = u"Dos";
  EXPECT_EQ(BuscarPerfilPorDefecto(environment), u"Perfil no existe");
  EXPECT_EQ(CrearPerfilInicial(environment), u"Perfil no existe");
  EXPECT_TRUE(files.contents.empty());
}

TEST_F(MailProfiles, AreReadWithTheirPositionAndTrimmedTexts) {
  AddProfileNamed(u"Ventas");
  AddProfile({{ProfileField::Name, u" Oficina "},
              {ProfileField::SmtpServer, u" smtp.es "},
              {ProfileField::Ssl, u"1"}});
  const Profile profile = LeerPerfil(u"oficina", environment);
  EXPECT_EQ(profile[ProfileField::Position], u"2");
  EXPECT_EQ(profile[ProfileField::Name], u"Oficina");
  EXPECT_EQ(profile[ProfileField::SmtpServer], u"smtp.es");
  EXPECT_TRUE(profile.Flag(ProfileField::Ssl));
  EXPECT_FALSE(profile.Flag(ProfileField::UseAuthentication));
}

TEST_F(MailProfiles, ThatTheFileLacksAreReadAsEmpty) {
  AddProfileNamed(u"Ventas");
  const Profile profile = LeerPerfil(u"Otro", environment);
  for (int field = 0; field <= kProfileFields; ++field)
    EXPECT_EQ(profile[static_cast<ProfileField>(field)], u"");
}

TEST_F(MailProfiles, OfAnEmptyFileHaveInitialValues) {
  const Profile profile = LeerPerfil(u"Perfil no existe", environment);
  EXPECT_EQ(profile[ProfileField::User], u"ana");
  EXPECT_EQ(profile[ProfileField::UseAuthentication], u"0");
  EXPECT_EQ(profile[ProfileField::HtmlFile], u"C:\\Users\\ana\\Trabajo\\Config\\email\\prueba.htm");
  EXPECT_EQ(profile[ProfileField::DefaultCandidate], u"1");
  for (const ProfileField field :
       {ProfileField::Position, ProfileField::Name, ProfileField::SmtpServer, ProfileField::Receipt,
        ProfileField::Password, ProfileField::RutaEmail, ProfileField::SmtpPort, ProfileField::Ssl}) {
    EXPECT_EQ(profile[field], u"") << static_cast<int>(field);
  }
}

TEST_F(MailProfiles, TakeTheirInitialHtmlFileFromASetting) {
  settings.values[{u"", u"HTMFile"}] = u"D:\\carta.htm";
  EXPECT_EQ(ValoresIniciales(environment)[ProfileField::HtmlFile], u"D:\\carta.htm");
}

TEST_F(MailProfiles, MayHaveFewerFieldsThanKnownOnes) {
  recordfile::RecordFile file(files);
  file.Create(kProfilePath, u"", u"EMAIL", recordfile::ParseFieldList(u"Usuario;Perfil;SMTPServer"));
  file.Add();
  file.Write(2, u"Corto");
  file.Write(3, u"smtp.es");
  file.Store();
  EXPECT_EQ(LeerPerfil(u"Corto", environment)[ProfileField::SmtpServer], u"smtp.es");
  EXPECT_EQ(LeerPerfil(u"Corto", environment)[ProfileField::Ssl], u"");
}

TEST_F(MailProfiles, WithAnEmptyUserNameBelongToNobody) {
  folders.userName.clear();
  EXPECT_EQ(ValoresIniciales(environment)[ProfileField::User], u"");
}

TEST_F(MailProfiles, PassErrorsOfTheirFileOn) {
  files.contents[std::u16string(kProfilePath)] = "otra cosa";
  EXPECT_EQ(tests::ErrorOf([&] { return BuscarPerfilPorDefecto(environment); }), 50200);
  EmailMessage message;
  EXPECT_EQ(tests::ErrorOf([&] { return Enviar(message, environment); }), 50200);
}

}  // namespace
}  // namespace qm::mail
