#pragma once
// What a `Campo` says of its field, each in a child element, in the order in which they are written.

#include <array>
#include <cstddef>
#include <string_view>

namespace qm::model {

enum class FieldElement {
  Descripcion,
  Top,
  Left,
  Width,
  Height,
  ForeColor,
  Bold,
  FontSize,
  FontItalic,
  Alignment,
  Underline,
  FontName,
};

inline constexpr std::array<std::string_view, 12> kFieldElementNames = {
    "Descripcion", "Top",      "Left",       "Width",     "Height",    "ForeColor",
    "Bold",        "FontSize", "FontItalic", "Alignment", "Underline", "FontName",
};

[[nodiscard]] constexpr std::string_view NameOf(FieldElement element) {
  return kFieldElementNames[static_cast<std::size_t>(element)];
}

}  // namespace qm::model
