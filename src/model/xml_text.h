#pragma once
// Texts on their way out of the file's 8-bit code page into the XML library's UTF-8, and into the file.

#include <string>
#include <string_view>

namespace qm::model {

[[nodiscard]] std::string Utf8FromCodePage(std::string_view bytes);

// Where a text is written.
enum class Escape {
  Text,            // of an element
  AttributeValue,  // between double quotes
};

// Appends a text in the code page. Characters that the code page lacks, and line ends that a reader would
// normalise, go as numeric references, so that the same text is read back. Half a surrogate pair becomes
// U+FFFD. Control characters other than tab, line feed and carriage return, and the two code units that are
// no characters, have no place in XML: they are dropped.
void AppendEscaped(std::string& out, std::u16string_view text, Escape escape);

}  // namespace qm::model
