#include "mail/email_message.h"

#include "mail/body.h"
#include "mail/hand_off.h"
#include "mail/names.h"
#include "mail/profiles.h"
#include "mail/scrambling.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

constexpr int kNoProfile = 50000;
constexpr std::u16string_view kPlainTextNotice =
    u"ERROR El archivo HTML no contiene <TEXTO> por lo tanto se enviará como texto sin HTML";

std::u16string WithoutCommas(std::u16string_view text) { return runtime::Replace(text, u",", u""); }

std::u16string ReadTemplate(std::u16string_view path, platform::Files& files) {
  if (!CanNameFile(path) || !files.CanRead(path)) return {};
  return runtime::FromBytes(files.Read(path).value_or(std::string()));
}

Request NewRequest(const EmailMessage& message, const Profile& profile, std::u16string_view htmlFolder,
                   const Environment& environment) {
  Request request;
  request.nombreDestinatario = WithoutCommas(message.nombreDestinatario);
  request.emailDestinatario = message.emailDestinatario;
  request.tema = message.tema;
  request.attachments = message.archivosAdjuntos;
  request.htmDir = htmlFolder;
  request.receipt = message.recibo;
  request.emailCC = message.cc;
  request.desCC = WithoutCommas(message.nombreCC);
  request.from = profile[ProfileField::SenderAddress];
  request.fromDisplayName = WithoutCommas(profile[ProfileField::SenderName]);
  request.smtpHost = profile[ProfileField::SmtpServer];
  request.smtpPort = profile[ProfileField::SmtpPort];
  request.ssl = profile.Flag(ProfileField::Ssl);
  request.password = EscribirClave(profile[ProfileField::Password], environment.random,
                                   environment.print.clock, environment.print.prompts);
  request.userName = profile[ProfileField::UserName];
  request.useAuthentication = profile.Flag(ProfileField::UseAuthentication);
  request.usePopAuthentication = profile.Flag(ProfileField::UsePopAuthentication);
  request.pop3Host = profile[ProfileField::Pop3Host];
  return request;
}

std::u16string Deliver(EmailMessage& message, const Environment& environment) {
  const Profile profile = LeerPerfil(message.perfil, environment);
  const std::u16string htmlFile =
      message.archivoHTML.empty() ? profile[ProfileField::HtmlFile] : message.archivoHTML;
  const std::u16string plantilla = ReadTemplate(htmlFile, environment.print.files);

  HandOff handOff;
  handOff.order = LineOrder::Email;
  handOff.body = ComponerCuerpo(plantilla, message.texto, message.sentAsPlainText);
  handOff.rutaEmail = profile[ProfileField::RutaEmail];
  handOff.attachments = runtime::Split(message.archivosAdjuntos, u";");
  message.archivosAdjuntos = NombresAdjuntos(handOff.attachments);
  if (message.cc.empty()) message.cc = profile[ProfileField::Cc];
  if (message.nombreCC.empty()) message.nombreCC = profile[ProfileField::CcName];
  handOff.request = NewRequest(message, profile, FolderOf(htmlFile), environment);

  AddReferences(handOff, environment);
  message.archivosAdjuntos = handOff.request.attachments;
  EntregarMensaje(handOff, message.nombreDestinatario, environment);
  return message.sentAsPlainText ? std::u16string(kPlainTextNotice) : std::u16string();
}

}  // namespace

std::u16string Enviar(EmailMessage& message, const Environment& environment) {
  if (message.perfil.empty()) message.perfil = BuscarPerfilPorDefecto(environment);
  if (message.perfil.empty()) throw runtime::RuntimeError(kNoProfile, u"ERROR: El perfil no existe");
  if (message.emailDestinatario.empty()) return {};
  try {
    return Deliver(message, environment);
  } catch (const runtime::RuntimeError& error) {
    return u"ERROR " + error.description();
  }
}

}  // namespace qm::mail
