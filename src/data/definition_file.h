#pragma once
// The host's table-definition files, "<table path>.Qma": the title of a table and the names of its fields.
// Layout: two digits, the number of fields; 23 bytes, the title; 8 bytes; then 33 bytes a field, of which 8
//         to 30 are its name. Titles and names are padded with blanks, in the 8-bit code page.
// Errors: 62 where the file ends before the count, the title or a name does; 76 for a folder that does not
//         exist, 70 for a file that someone locks.

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace qm::data {

struct Definition {
  std::u16string title;               // as it stands in the file
  std::vector<std::u16string> names;  // trimmed; of field 1 first
};

// An empty file defines nothing, and a file that does not exist is made empty.
[[nodiscard]] Definition ReadDefinition(platform::Files& files, std::u16string_view tabla);
[[nodiscard]] Definition ParseDefinition(std::string_view bytes);

// What names a table's cells in a model: the last five characters of its path.
[[nodiscard]] std::u16string_view TableTag(std::u16string_view tabla);
// "NOMBRE (CLIEN)".
[[nodiscard]] std::u16string CellName(std::u16string_view fieldName, std::u16string_view tag);

}  // namespace qm::data
