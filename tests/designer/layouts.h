#pragma once
// Small layouts for tests: an A4 page of 11906 by 16838 twips with fields of Arial 10.

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "designer/layout.h"

namespace qm::designer {

inline void PrintTo(const Box& box, std::ostream* out) {
  *out << box.left << "," << box.top << " " << box.width << "x" << box.height;
}

}  // namespace qm::designer

namespace qm::tests {

inline designer::FieldPointer FieldWith(const designer::Box& box, std::u16string caption = u"NOMBRE") {
  designer::Field field;
  field.caption = std::move(caption);
  field.box = box;
  return std::make_shared<const designer::Field>(std::move(field));
}

// The fields get the indexes 1, 2 and so on.
inline designer::Layout PageWith(const std::vector<designer::Box>& boxes) {
  designer::Layout layout;
  layout.pageWidthCm = 21;
  layout.pageHeightCm = 29.7F;
  layout.canvasWidth = 11906;
  layout.canvasHeight = 16838;
  for (const designer::Box& box : boxes) layout.men.push_back(FieldWith(box));
  return layout;
}

inline std::shared_ptr<const designer::Logo> LogoAt(const designer::Box& box) {
  designer::Logo logo;
  logo.archivo = u"logo.bmp";
  logo.box = box;
  return std::make_shared<const designer::Logo>(std::move(logo));
}

}  // namespace qm::tests
