#include "mail/request.h"

#include <algorithm>
#include <array>
#include <span>

#include "runtime/code_page.h"
#include "runtime/format.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

// A line of a request: its key, and the member it shows.
struct Line {
  std::string_view key;
  std::u16string Request::*text = nullptr;
  bool Request::*flag = nullptr;
  bool trimmed = false;
};

constexpr Line kNombreDestinatario{"NombreDestinatario=", &Request::nombreDestinatario, nullptr, true};
constexpr Line kEmailDestinatario{"emailDestinatario=", &Request::emailDestinatario, nullptr, true};
constexpr Line kTema{"Tema=", &Request::tema};
constexpr Line kAttachments{"Attachments=", &Request::attachments};
constexpr Line kHtmText{"HTMText=Email.htm"};  // the body's name in the archive
constexpr Line kHtmDir{"HTMDir=", &Request::htmDir};
constexpr Line kReceipt{"Receipt=", nullptr, &Request::receipt};
constexpr Line kEmailCC{"EmailCC=", &Request::emailCC};
constexpr Line kDesCC{"DesCC=", &Request::desCC};
constexpr Line kFrom{"From=", &Request::from};
constexpr Line kFromDisplayName{"FromDisplayName=", &Request::fromDisplayName};
constexpr Line kSmtpHost{"SMTPHost=", &Request::smtpHost};
constexpr Line kSmtpPort{"SMTPPort=", &Request::smtpPort};
constexpr Line kSsl{"SSL=", nullptr, &Request::ssl};
constexpr Line kPassword{"Password=", &Request::password};
constexpr Line kUserName{"UserName=", &Request::userName};
constexpr Line kUseAuthentication{"UseAuthentication=", nullptr, &Request::useAuthentication};
constexpr Line kUsePopAuthentication{"UsePopAuthentication=", nullptr, &Request::usePopAuthentication};
constexpr Line kPop3Host{"PoP3Host=", &Request::pop3Host};

constexpr std::array kEmailOrder{kNombreDestinatario,
                                 kEmailDestinatario,
                                 kTema,
                                 kAttachments,
                                 kHtmText,
                                 kHtmDir,
                                 kReceipt,
                                 kEmailCC,
                                 kDesCC,
                                 kFrom,
                                 kFromDisplayName,
                                 kSmtpHost,
                                 kSmtpPort,
                                 kSsl,
                                 kPassword,
                                 kUserName,
                                 kUseAuthentication,
                                 kUsePopAuthentication,
                                 kPop3Host};

constexpr std::array kPrintFormOrder{kTema,
                                     kAttachments,
                                     kHtmText,
                                     kHtmDir,
                                     kSmtpHost,
                                     kSmtpPort,
                                     kSsl,
                                     kNombreDestinatario,
                                     kEmailDestinatario,
                                     kFrom,
                                     kFromDisplayName,
                                     kEmailCC,
                                     kDesCC,
                                     kPassword,
                                     kUserName,
                                     kUseAuthentication,
                                     kUsePopAuthentication,
                                     kPop3Host,
                                     kReceipt};

std::string ValueBytes(const Line& line, const Request& request, const runtime::Locale& locale) {
  if (line.flag) return runtime::ToBytes(runtime::ToText(request.*line.flag, locale));
  if (!line.text) return {};
  const std::u16string& text = request.*line.text;
  std::string bytes = runtime::ToBytes(line.trimmed ? runtime::Trim(text) : std::u16string_view(text));
  std::ranges::replace_if(
      bytes, [](char byte) { return byte == '\r' || byte == '\n'; }, ' ');
  return bytes;
}

}  // namespace

std::string RequestBytes(const Request& request, LineOrder order, const runtime::Locale& locale) {
  const std::span<const Line> lines =
      order == LineOrder::Email ? std::span<const Line>(kEmailOrder) : std::span<const Line>(kPrintFormOrder);
  std::string bytes;
  for (const Line& line : lines) {
    bytes.append(line.key).append(ValueBytes(line, request, locale)).append("\r\n");
  }
  return bytes;
}

}  // namespace qm::mail
