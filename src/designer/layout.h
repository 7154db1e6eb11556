#pragma once
// One print model as it lies on the designer's canvas. A plain value: copies are cheap, since the fields are
// shared, and two of them can be compared field by field by address.
// Units: twips from the page's top-left corner where a name does not say centimetres; fonts in points.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/pictures.h"

namespace qm::designer {

inline constexpr float kTwipsPerCm = 567;  // exactly, in both directions
// Of what is typed: beyond it a number is a slip of the hand.
inline constexpr double kFurthest = 1e6;

struct Box {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;

  [[nodiscard]] float Right() const { return left + width; }
  [[nodiscard]] float Bottom() const { return top + height; }
  bool operator==(const Box&) const = default;
};

struct FieldFont {
  std::u16string name = u"Arial";
  float size = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethru = false;
  std::int32_t foreColor = 0;  // 0x00BBGGRR, or a system colour with the top bit set

  bool operator==(const FieldFont&) const = default;
};

// A label of the canvas. Its caption is the description that the model file keeps; its tag the format:
// empty for text, "1" to "7" for 0 to 6 decimals.
struct Field {
  std::u16string caption;
  Box box;
  FieldFont font;
  int alignment = 0;  // 0 left, 1 right, 2 centred
  std::u16string tag;

  bool operator==(const Field&) const = default;
};

using FieldPointer = std::shared_ptr<const Field>;
using PicturePointer = std::shared_ptr<const platform::Picture>;

struct Logo {
  std::u16string archivo;  // the bare name of a picture in the image folder
  PicturePointer picture;  // null when it could not be loaded
  Box box;
  bool borders = false;  // shown on the canvas only; the model file has no place for it

  bool operator==(const Logo&) const = default;
};

struct Layout {
  // The texts of the boxes, centimetres as the user typed them, and what was last accepted of them.
  std::u16string ancho;
  std::u16string alto;
  float pageWidthCm = 0;
  float pageHeightCm = 0;
  bool pageSizeSet = false;
  float canvasWidth = 0;  // of Fot
  float canvasHeight = 0;

  std::u16string copias = u"01";
  std::u16string printer;
  bool esEtiqueta = false;

  std::u16string imagen;      // of the background: the bare name, empty when there is none
  PicturePointer background;  // null also when it could not be loaded

  std::shared_ptr<const Logo> logo;  // null when there is none

  // By the index of the label: 0 is the hidden template and never a field; deleted ones leave a null.
  std::vector<FieldPointer> men = std::vector<FieldPointer>(1);

  [[nodiscard]] const Field* At(int index) const {
    return index > 0 && static_cast<std::size_t>(index) < men.size()
               ? men[static_cast<std::size_t>(index)].get()
               : nullptr;
  }
  bool operator==(const Layout&) const = default;  // fields by address
};

// Changes one field of a layout; nothing where there is none of that index.
template <class Change>
void ChangeField(Layout& layout, int index, const Change& change) {
  const Field* old = layout.At(index);
  if (old == nullptr) return;
  Field changed = *old;
  change(changed);
  if (changed != *old)
    layout.men[static_cast<std::size_t>(index)] = std::make_shared<const Field>(std::move(changed));
}

}  // namespace qm::designer
