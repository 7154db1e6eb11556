#pragma once
// Puts the value of a field on a surface: one line, wrapped text or a picture, by its kind code.
// Units:  twips.
// Errors: the surface's (482), and for picture data those of files and pictures (70, 75, 481, 57).

#include <cstdint>
#include <string_view>

#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/surface.h"
#include "print/field_reader.h"
#include "print/text/text_helpers.h"

namespace qm::print {

// One for a whole run on one surface: it knows which font and colour the surface has.
class FieldPrinter {
 public:
  FieldPrinter(platform::Surface& surface, platform::Files& files, platform::Pictures& pictures);

  // The font that the surface has now, for the first field to start from.
  [[nodiscard]] const platform::Font& SurfaceFont() const { return font_; }

  // The top-left corner is the place of the field's box on the page, which for a label is not its Left and
  // Top. Font and colour stay on the surface, also where there is nothing to print.
  void Print(const FieldState& field, platform::Point topLeft, std::u16string_view value, std::int16_t kind);

 private:
  void ApplyFont(const FieldState& field);
  void PrintLine(const FieldState& field, platform::Point at, std::u16string_view value);
  void PrintWrapped(const FieldState& field, platform::Point at, std::u16string_view value);
  void PrintPicture(const FieldState& field, platform::Point at, std::u16string_view data);
  void PrintAligned(const FieldState& field, platform::Point at, text::Line line);

  platform::Surface& surface_;
  platform::Files& files_;
  platform::Pictures& pictures_;
  platform::Font font_;                    // as it is on the surface
  bool oemLetters_ = false;                // of that font
  std::optional<std::int32_t> foreColor_;  // as it was last set on the surface
};

}  // namespace qm::print
