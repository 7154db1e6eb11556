#pragma once
// Outgoing-mail profiles: named sets of mail settings, one record each in a record file of the user's.
// The file is opened and closed within each function, and where it lies is asked each time.
// Errors: 50000 for a profile that does not exist; those of the record file as they are.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mail/environment.h"

namespace qm::mail {

// Fields of a profile record. The field of the name is the key as well.
enum class ProfileField : int {
  Position = 0,  // of the record in the file; not stored
  User = 1,
  Name = 2,
  SmtpServer = 3,
  SenderName = 4,
  SenderAddress = 5,
  Cc = 6,
  CcName = 7,
  Receipt = 8,
  UseAuthentication = 9,
  UserName = 10,
  Password = 11,
  UsePopAuthentication = 12,
  Pop3Host = 13,
  HtmlFile = 14,
  Subject = 15,
  RutaEmail = 16,
  DefaultCandidate = 17,
  SmtpPort = 18,
  Ssl = 19,
};

inline constexpr int kProfileFields = 19;

// The table and the fields of a file that is made anew, in the words of the record-file library.
inline constexpr std::u16string_view kProfileTable = u"EMAIL";
inline constexpr std::u16string_view kProfileFieldList =
    u"Usuario;Perfil;SMTPServer;Remitente;EmailRemitente;EmailCC;DesCC;AcuseRecibo;UseAuthentication;"
    u"UserName;"
    u"Password;UsePopAuthentication;PoP3Host;HTMFile;EmailTema;RutaEmail;PorDefecto;SMTPPort;SSL";

// A profile's trimmed texts. Fields that its file lacks are empty.
class Profile {
 public:
  Profile() : texts_(kProfileFields + 1) {}

  [[nodiscard]] const std::u16string& operator[](ProfileField field) const {
    return texts_[static_cast<std::size_t>(field)];
  }
  [[nodiscard]] std::u16string& operator[](ProfileField field) {
    return texts_[static_cast<std::size_t>(field)];
  }
  [[nodiscard]] bool Flag(ProfileField field) const { return (*this)[field] == u"1"; }

 private:
  std::vector<std::u16string> texts_;
};

// Where things lie.
[[nodiscard]] std::u16string RutaPerfiles(const Environment& environment);
[[nodiscard]] std::u16string CarpetaConfiguracion(const Environment& environment);

// All names joined by commas, and the place of the wanted one (of the default one for an empty name) from 0;
// -1 when there is none.
struct ProfileList {
  std::u16string names;
  int position = -1;
};
[[nodiscard]] ProfileList ListaPerfiles(std::u16string_view wanted, const Environment& environment);

// The same for hosts: the names, and the place from 1; 0 when there is none.
[[nodiscard]] std::vector<std::u16string> LeerPerfiles(std::u16string_view wanted, std::int16_t& porDefecto,
                                                       const Environment& environment);

[[nodiscard]] std::u16string BuscarPerfilPorDefecto(const Environment& environment);

// The name trimmed, when the list has it in any case.
[[nodiscard]] std::u16string ElegirPerfil(std::u16string_view name, const Environment& environment);

// All texts empty for a name that the file lacks; the initial values while there is no profile at all.
[[nodiscard]] Profile LeerPerfil(std::u16string_view name, const Environment& environment);

[[nodiscard]] std::u16string UsuarioActual(const Environment& environment);
[[nodiscard]] Profile ValoresIniciales(const Environment& environment);
// Empty when it made the profile, else why not.
[[nodiscard]] std::u16string CrearPerfilInicial(const Environment& environment);

}  // namespace qm::mail
