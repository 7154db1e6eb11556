#pragma once
// Texts on their way out of the file, which is in the 8-bit code page, and into it.

#include <string>
#include <string_view>

namespace qm::model {

// What a reader makes of well-formed text: references are resolved, and line ends become line feeds...
void AppendElementText(std::u16string& out, std::string_view raw);
// ...in a section that knows no references...
void AppendCharacterData(std::u16string& out, std::string_view raw);
// ...and in an attribute's value, where line ends and tabs become blanks.
[[nodiscard]] std::u16string AttributeText(std::string_view raw);

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
