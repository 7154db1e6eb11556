#pragma once
// A model's texts as the XML library reads them, to compare the component's own reader with.

#include <string_view>

#include "model/document.h"

namespace qm::model {

// The bytes of one well-formed element in the code page.
[[nodiscard]] ModelTexts ReadByLibrary(std::string_view element);

[[nodiscard]] bool SameTexts(const ModelTexts& a, const ModelTexts& b);

}  // namespace qm::model
