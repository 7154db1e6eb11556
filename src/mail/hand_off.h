#pragma once
// The hand-off of a message to the mail sender: the request and the body are written into the user's working
// folder, packed with all files that travel into an archive of the outbox and deleted again; then the sender
// is started, and not waited for.
// Errors: 52 where subject and recipient make a name that no archive can have, for an outgoing folder that
//         cannot stand on a command line, and for a file named like one of the two; those of files; 53 and 5
//         of the sender.

#include <string>
#include <vector>

#include "mail/environment.h"
#include "mail/request.h"

namespace qm::mail {

struct HandOff {
  Request request;
  LineOrder order = LineOrder::Email;
  std::u16string body;
  std::u16string rutaEmail;                 // the outgoing folder, with its final backslash
  std::vector<std::u16string> references;   // files that the body refers to
  std::vector<std::u16string> attachments;  // paths of others, packed after them
  bool goOnAfterErrors = false;             // the last error is raised when all is done
};

// Adds the files that the body refers to and that are there, and their names to the request's attachments.
void AddReferences(HandOff& message, const Environment& environment);

// nombreDestinatario becomes "Destinatario" where it is an address.
void EntregarMensaje(const HandOff& message, std::u16string& nombreDestinatario,
                     const Environment& environment);

// The bare names of a list of paths, each followed by ";".
[[nodiscard]] std::u16string NombresAdjuntos(const std::vector<std::u16string>& paths);

}  // namespace qm::mail
