#pragma once
// The texts of one model, read out of the bytes of its element. They must be well-formed, as an outline's
// children are: nothing is checked again. Names are given without namespace prefix.

#include <string_view>

#include "model/document.h"

namespace qm::model {

[[nodiscard]] ModelTexts ReadModel(std::string_view element);

}  // namespace qm::model
