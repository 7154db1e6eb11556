#pragma once
// Texts on their way between the file's 8-bit code page and the XML library's UTF-8.

#include <string>
#include <string_view>

namespace qm::model {

[[nodiscard]] std::string Utf8FromCodePage(std::string_view bytes);

// A text as XML can hold it, in UTF-8. Control characters other than tab, line feed and carriage return, and
// the two code units that are no characters, have no place in XML: they are dropped.
[[nodiscard]] std::string XmlUtf8(std::u16string_view text);

// How a text is written into the file.
enum class Escape {
  Text,            // of an element
  AttributeValue,  // between double quotes
};

// Appends UTF-8 in the code page. Characters that the code page lacks, and line ends that a reader would
// normalise, go as numeric references, so that the same text is read back.
void AppendInCodePage(std::string& out, std::string_view utf8, Escape escape);

}  // namespace qm::model
