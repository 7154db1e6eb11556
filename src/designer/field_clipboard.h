#pragma once
// A whole field copied to be pasted, inside the designer only, until the next copy.
// Units: twips.

#include "designer/document.h"

namespace qm::designer {

class FieldClipboard {
 public:
  // The selected field; without one what was copied before stays.
  void Copy(const Document& document);
  // A new field behind the highest index, selected: where the copied one stood or, as long as a field of its
  // size lies exactly there, a little lower and farther right. One edit.
  void Paste(Document& document) const;

 private:
  static constexpr float kStep = 15;

  FieldPointer field_;
};

}  // namespace qm::designer
