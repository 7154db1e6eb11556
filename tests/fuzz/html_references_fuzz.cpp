// Any bytes as HTML: the files found are under the folder, and shortening only takes away.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "print/text/references.h"
#include "runtime/code_page.h"

namespace {

constexpr std::u16string_view kFolder = u"C:\\html\\";

void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::u16string html = qm::runtime::FromBytes({reinterpret_cast<const char*>(data), size});
  const std::u16string list = qm::text::ReferencedFiles(html, kFolder);
  Expect(list.empty() || list.starts_with(kFolder));
  Expect(list.find(u'/') == std::u16string::npos);

  const std::u16string shorter = qm::text::ShortenImageReferences(html);
  Expect(shorter.size() <= html.size());
  Expect(html.find(u'"') != std::u16string::npos || shorter == html);
  if (list.empty()) Expect(qm::text::ReferencedFiles(html, u"").empty());
  return 0;
}
