#pragma once
// The texts of one model, read by the XML library out of the bytes of its element. Names are given without
// namespace prefix.
// Errors: 7 without memory, 91 for an element that the library does not take.

#include <string>
#include <string_view>

#include "model/document.h"

namespace qm::model {

[[nodiscard]] ModelTexts ReadModel(std::string_view element);

// An attribute of the element, references resolved; "" when it is missing.
[[nodiscard]] std::string AttributeOf(std::string_view element, const char* name);

}  // namespace qm::model
