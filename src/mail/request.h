#pragma once
// The request file that goes to the mail sender with a message: "key=value" lines in the 8-bit code page,
// each ended by CR LF, values as they are. A line end inside a value becomes a blank, so that no value can
// pass for a line of its own. Errors: none.

#include <string>
#include <string_view>

#include "runtime/locale.h"

namespace qm::mail {

struct Request {
  std::u16string nombreDestinatario;
  std::u16string emailDestinatario;
  std::u16string tema;
  std::u16string attachments;  // bare names, each followed by ";"
  std::u16string htmDir;
  bool receipt = false;
  std::u16string emailCC;
  std::u16string desCC;
  std::u16string from;
  std::u16string fromDisplayName;
  std::u16string smtpHost;
  std::u16string smtpPort;
  bool ssl = false;
  std::u16string password;  // scrambled
  std::u16string userName;
  bool useAuthentication = false;
  bool usePopAuthentication = false;
  std::u16string pop3Host;
};

// Messages of profiles and those of print jobs have always had different orders; senders know both.
enum class LineOrder { Email, PrintForm };

[[nodiscard]] std::string RequestBytes(const Request& request, LineOrder order,
                                       const runtime::Locale& locale);

}  // namespace qm::mail
