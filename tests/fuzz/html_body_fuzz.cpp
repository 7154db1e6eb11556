// Any bytes as a template and, behind the first zero, a text: the body has the text, or is it.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "mail/body.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t zero = std::min(bytes.find('\0'), size);
  const std::u16string html = qm::runtime::FromBytes(bytes.substr(0, zero));
  const std::u16string given = qm::runtime::FromBytes(bytes.substr(std::min(zero + 1, size)));
  // Every marker takes a copy of the text: keep what a few kilobytes can become within bounds.
  if (html.size() * given.size() > 4000000) return 0;

  std::u16string text = given;
  bool plain = true;
  const std::u16string body = qm::mail::ComponerCuerpo(html, text, plain);
  if (html.empty()) {
    Expect(plain && body == given && text == given);
    return 0;
  }
  Expect(text.find(u"\r\n") == std::u16string::npos);
  const bool found = qm::runtime::InStr(body, text, 1, qm::runtime::Compare::Text) > 0 || text.empty();
  Expect(plain ? body == text : found);
  return 0;
}
