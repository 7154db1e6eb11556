#pragma once
// A message that is sent with one of the user's mail profiles.

#include <string>

#include "mail/environment.h"

namespace qm::mail {

struct EmailMessage {
  std::u16string emailDestinatario;
  std::u16string nombreDestinatario;
  std::u16string cc;
  std::u16string nombreCC;
  std::u16string tema;
  std::u16string texto;
  std::u16string archivoHTML;
  std::u16string archivosAdjuntos;  // paths separated by ";"
  bool recibo = false;

  std::u16string perfil;         // the one chosen; empty until then
  bool sentAsPlainText = false;  // the text found no place in the last template
};

// Hands the message to the mail sender, with the default profile where none was chosen. Empty when that went
// well or nobody is to be written to; else a text for the user that begins with "ERROR ". Afterwards the
// message has bare names of attachments, copies from the profile, and a text with "<BR>" where a template
// was used.
// Errors: 50000 where there is no profile to choose, and what finding one raises; all others are in the
// result.
[[nodiscard]] std::u16string Enviar(EmailMessage& message, const Environment& environment);

}  // namespace qm::mail
