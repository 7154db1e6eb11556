#pragma once
// The local files that an HTML text refers to through SRC and BACKGROUND. A reference is found by the name of
// the attribute alone, whatever stands around it; its value is what the next two double quotes enclose.
// Values that begin with "HTTP" are no files. Errors: none.

#include <string>
#include <string_view>

namespace qm::text {

// The files as full paths under the folder, separated by ";". Absolute values get the folder as well, and a
// name that is part of one already listed is left out.
[[nodiscard]] std::u16string ReferencedFiles(std::u16string_view html, std::u16string_view folder);

// The text with each value shortened by all up to its first "/", or else "\": the files lie beside the text.
[[nodiscard]] std::u16string ShortenImageReferences(std::u16string_view html);

}  // namespace qm::text
