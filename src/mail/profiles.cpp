#include "mail/profiles.h"

#include <algorithm>

#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

constexpr int kDocuments = 5;  // the special folder of the user's documents
constexpr int kNoSuchProfile = 50000;
constexpr std::u16string_view kNoProfiles = u"No hay ningún perfil";
constexpr std::u16string_view kProfileMissing = u"Perfil no existe";

std::u16string Setting(std::u16string_view key, std::u16string_view defaultText,
                       const Environment& environment) {
  return environment.print.settings.Read(u"", key, defaultText);
}

// The profile file for as long as a function looks at it.
class OpenProfiles {
 public:
  explicit OpenProfiles(const Environment& environment) : file_(environment.profiles) {
    file_.Open(RutaPerfiles(environment), Setting(u"Directory", u"", environment));
  }
  OpenProfiles(const OpenProfiles&) = delete;
  OpenProfiles& operator=(const OpenProfiles&) = delete;
  ~OpenProfiles() { file_.Close(); }

  platform::RecordStore* operator->() { return &file_; }

  [[nodiscard]] std::u16string Text(ProfileField field) {
    return std::u16string(runtime::Trim(file_.Value(static_cast<int>(field))));
  }

 private:
  platform::RecordStore& file_;
};

// The settings of the time before profiles are not read any more.
std::u16string LeerValorAntiguo(std::u16string_view, std::u16string_view = u"") { return {}; }

bool IsLegacyFlagSet(std::u16string_view key) { return LeerValorAntiguo(key) == u"1"; }

}  // namespace

std::u16string RutaPerfiles(const Environment& environment) {
  const std::u16string usual = environment.folders.CarpetaEspecial(kDocuments) + u"\\Quillmar\\CRM\\Config\\";
  return Setting(u"ConDir", usual, environment) + u"email\\email00.qmd";
}

// The same setting as that of the profile file, with another default; hosts rely on both.
std::u16string CarpetaConfiguracion(const Environment& environment) {
  return Setting(u"ConDir", environment.folders.RutaTrabajo(u"") + u"Config\\", environment);
}

ProfileList ListaPerfiles(std::u16string_view wanted, const Environment& environment) {
  const std::u16string name = wanted.empty() ? BuscarPerfilPorDefecto(environment) : std::u16string(wanted);
  OpenProfiles profiles(environment);
  profiles->SelectKey(static_cast<int>(ProfileField::Name));
  profiles->First();
  if (profiles->Count() == 0) return {std::u16string(kNoProfiles), -1};
  ProfileList list;
  for (int place = 0; !profiles->AtEnd(); ++place, profiles->Next()) {
    const std::u16string text = profiles.Text(ProfileField::Name);
    if (!list.names.empty()) list.names += u',';
    list.names += text;
    if (text == name) list.position = place;  // of several of that name, the last
  }
  return list;
}

std::vector<std::u16string> LeerPerfiles(std::u16string_view wanted, std::int16_t& porDefecto,
                                         const Environment& environment) {
  const ProfileList list = ListaPerfiles(wanted, environment);
  porDefecto = runtime::CInt(list.position + 1.0);
  return runtime::Split(list.names, u",");
}

std::u16string BuscarPerfilPorDefecto(const Environment& environment) {
  if (OpenProfiles(environment)->Count() == 0) {
    if (std::u16string name = CrearPerfilInicial(environment); !name.empty()) return name;
  }
  OpenProfiles profiles(environment);
  profiles->First();
  if (std::u16string assigned = Setting(u"Email Asignado", u"", environment);
      !runtime::Trim(assigned).empty())
    return assigned;  // with its outer blanks
  if (profiles->AtEnd()) return {};
  std::u16string answer = profiles.Text(ProfileField::Name);
  for (; !profiles->AtEnd(); profiles->Next()) {
    // Profiles of no user in particular only.
    if (profiles.Text(ProfileField::User).empty() && profiles.Text(ProfileField::DefaultCandidate) == u"1")
      return profiles.Text(ProfileField::Name);
  }
  return answer;
}

std::u16string ElegirPerfil(std::u16string_view name, const Environment& environment) {
  std::u16string trimmed(runtime::Trim(name));
  for (const std::u16string& entry : runtime::Split(ListaPerfiles(u"", environment).names, u",")) {
    if (runtime::EqualFolded(entry, trimmed)) return trimmed;
  }
  throw runtime::RuntimeError(kNoSuchProfile, u"ERROR: El perfil " + trimmed + u" no existe");
}

Profile LeerPerfil(std::u16string_view name, const Environment& environment) {
  OpenProfiles profiles(environment);
  if (profiles->Count() == 0) return ValoresIniciales(environment);
  Profile profile;
  profiles->SelectKey(static_cast<int>(ProfileField::Name));
  profiles->Seek(name);
  if (profiles->Position() < 1) return profile;
  profile[ProfileField::Position] = runtime::ToText(profiles->Position());
  const int count = std::min(profiles->FieldCount(), kProfileFields);
  for (int field = 1; field <= count; ++field) {
    profile[static_cast<ProfileField>(field)] = profiles.Text(static_cast<ProfileField>(field));
  }
  return profile;
}

std::u16string UsuarioActual(const Environment& environment) { return environment.folders.UserName(); }

Profile ValoresIniciales(const Environment& environment) {
  Profile values;
  values[ProfileField::User] = UsuarioActual(environment);
  values[ProfileField::SmtpServer] = LeerValorAntiguo(u"SMTPServer");
  values[ProfileField::SenderName] = LeerValorAntiguo(u"Remitente");
  values[ProfileField::SenderAddress] = LeerValorAntiguo(u"EmailRemitente");
  values[ProfileField::Cc] = LeerValorAntiguo(u"EmailCC");
  values[ProfileField::CcName] = LeerValorAntiguo(u"DesCC");
  values[ProfileField::Receipt] = LeerValorAntiguo(u"AcuseRecibo", u"0");
  values[ProfileField::UseAuthentication] = IsLegacyFlagSet(u"UseAuthentication") ? u"1" : u"0";
  values[ProfileField::UserName] = LeerValorAntiguo(u"UserName");
  values[ProfileField::Password] = LeerValorAntiguo(u"Password");
  values[ProfileField::UsePopAuthentication] = LeerValorAntiguo(u"UsePopAuthentication");
  values[ProfileField::Pop3Host] = LeerValorAntiguo(u"PoP3Host");
  values[ProfileField::HtmlFile] =
      Setting(u"HTMFile", CarpetaConfiguracion(environment) + u"email\\prueba.htm", environment);
  values[ProfileField::Subject] = LeerValorAntiguo(u"EmailTema");
  values[ProfileField::RutaEmail] =
      LeerValorAntiguo(u"RutaEmail", environment.folders.RutaTrabajo(u"") + u"EMAIL\\");
  values[ProfileField::DefaultCandidate] = u"1";
  if (runtime::InStr(runtime::UCase(values[ProfileField::SmtpServer]), u"GMAIL") > 0) {
    values[ProfileField::SmtpPort] = u"465";
    values[ProfileField::Ssl] = u"1";
  }
  return values;
}

std::u16string CrearPerfilInicial(const Environment& environment) {
  Profile values = ValoresIniciales(environment);
  if (values[ProfileField::SmtpServer].empty()) return std::u16string(kProfileMissing);
  values[ProfileField::User] = UsuarioActual(environment);
  values[ProfileField::Name] = u"Perfil por defecto";
  OpenProfiles profiles(environment);
  profiles->Add();
  for (int field = 1; field <= kProfileFields; ++field) {
    profiles->Write(field, values[static_cast<ProfileField>(field)]);
  }
  profiles->Store();
  return {};
}

}  // namespace qm::mail
