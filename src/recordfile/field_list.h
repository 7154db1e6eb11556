#pragma once
// The fields of a new record file as one text: names separated by ";", each with its type code after a ","
// when that is not 0: "NOMBRE;CUOTA,3;ALTA,5".

#include <string_view>
#include <vector>

#include "recordfile/table.h"

namespace qm::recordfile {

// Blanks around names and codes do not count. Errors: 5 for no field at all, a field without a name and a
// code that is not a whole number from 0 to 32767; 6 for too many fields.
[[nodiscard]] std::vector<FieldDefinition> ParseFieldList(std::u16string_view text);

}  // namespace qm::recordfile
