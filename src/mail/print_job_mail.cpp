#include "mail/print_job_mail.h"

#include "mail/attachments.h"
#include "mail/hand_off.h"
#include "mail/scrambling.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

constexpr int kHandOffFailed = 50103;

HandOff NewHandOff(const data::MailSettings& mail, const Environment& environment) {
  HandOff handOff;
  handOff.order = LineOrder::PrintForm;
  handOff.body = mail.emailTexto;
  handOff.rutaEmail = mail.rutaEmail;
  Request& request = handOff.request;
  request.nombreDestinatario = mail.nombreDestinatario;
  request.emailDestinatario = mail.email;
  request.tema = mail.emailTema;
  request.htmDir = mail.htmDir;
  request.receipt = mail.receipt;
  request.emailCC = mail.emailCC;
  request.desCC = mail.desCC;
  request.from = mail.from;
  request.fromDisplayName = mail.fromDisplayName;
  request.smtpHost = mail.smtpHost;
  request.smtpPort = runtime::ToText(mail.smtpPort);
  request.ssl = mail.ssl;
  request.password =
      EscribirClave(mail.password, environment.random, environment.print.clock, environment.print.prompts);
  request.userName = mail.userName;
  request.useAuthentication = mail.useAuthentication;
  request.usePopAuthentication = mail.usePopAuthentication;
  request.pop3Host = mail.pop3Host;
  return handOff;
}

void Deliver(HandOff& handOff, data::MailSettings& mail, const Environment& environment) {
  try {
    AddReferences(handOff, environment);
    EntregarMensaje(handOff, mail.nombreDestinatario, environment);
  } catch (const runtime::RuntimeError& error) {
    throw runtime::RuntimeError(kHandOffFailed, error.description());
  }
}

void Compose(data::PrintJob& job, const Environment& environment, std::u16string& folder,
             std::u16string_view file) {
  const std::u16string ending = runtime::UCase(runtime::Right(file, 3));
  if (ending == u"ZIP") CrearZip(job, environment, folder, file);
  if (ending == u"PDF") CrearPdf(job, environment, folder, file);
}

}  // namespace

void EnviarEmail(data::PrintJob& job, const Environment& environment) {
  if (job.mail.email.empty()) return;
  HandOff handOff = NewHandOff(job.mail, environment);
  handOff.attachments = runtime::Split(job.mail.attachments, u";");
  handOff.request.attachments = NombresAdjuntos(handOff.attachments);
  Deliver(handOff, job.mail, environment);
}

void EmailModelo(data::PrintJob& job, const Environment& environment, std::u16string& mydir,
                 std::u16string_view zipFile) {
  if (mydir.empty()) mydir = environment.folders.ComponentFolder() + u"\\";
  // In full: composing and packing change the current folder.
  const std::u16string document = environment.folders.FullPath(mydir + std::u16string(zipFile));
  Compose(job, environment, mydir, zipFile);
  if (job.mail.email.empty()) return;
  HandOff handOff = NewHandOff(job.mail, environment);
  handOff.attachments = {document};
  handOff.request.attachments = std::u16string(zipFile) + u";";
  handOff.goOnAfterErrors = true;
  Deliver(handOff, job.mail, environment);
}

}  // namespace qm::mail
