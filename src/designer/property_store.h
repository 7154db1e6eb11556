#pragma once
// Properties copied from one field to paste on others, inside the designer only, until the next copy.
// Units:  twips as 16-bit integers.
// Errors: RuntimeError 6 for a position or size beyond them; what was copied before stays.

#include <array>
#include <cstdint>
#include <string>

#include "designer/document.h"
#include "platform/dialogs.h"

namespace qm::designer {

class PropertyStore {
 public:
  // From the selected field: 0 top, 1 left, 2 width, 3 height, 4 font and format, 5 what is ticked in a
  // dialog. Nothing without a selected field or when the dialog is cancelled.
  void Copy(const Document& document, int kind, platform::Dialogs& dialogs);
  // Onto the selected field, as one edit; it counts as one also where the field had these values already.
  void Paste(Document& document) const;

 private:
  enum Kind : std::int16_t { kNothing = -1, kTop, kLeft, kWidth, kHeight, kFont, kChosen };
  static constexpr int kProperties = 5;

  void ReadFrom(const Field& field);
  void Apply(int kind, Field& field) const;

  std::int16_t kind_ = kNothing;
  std::int16_t top_ = 0;
  std::int16_t left_ = 0;
  std::int16_t width_ = 0;
  std::int16_t height_ = 0;
  std::u16string fontName_;
  float fontSize_ = 0;
  std::u16string tag_;
  std::array<bool, kProperties> chosen_{};  // by kind
};

}  // namespace qm::designer
