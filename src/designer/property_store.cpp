#include "designer/property_store.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "runtime/numbers.h"

namespace qm::designer {

void PropertyStore::Copy(const Document& document, int kind, platform::Dialogs& dialogs) {
  const Field* field = document.Current().At(document.Selected());
  if (field == nullptr || kind < kTop || kind > kChosen) return;
  PropertyStore copied;
  if (kind == kChosen) {
    // In the order of the kinds. Width goes by "Largo" here and height by "Ancho", as everywhere in the
    // dialog.
    const std::optional<std::vector<bool>> ticked =
        dialogs.AskChecks(u"Propiedad a Copiar", {u"Alto", u"Izquierda", u"Largo", u"Ancho", u"Fuente"});
    if (!ticked) return;
    std::copy_n(ticked->begin(), std::min(ticked->size(), copied.chosen_.size()), copied.chosen_.begin());
  }
  copied.kind_ = static_cast<std::int16_t>(kind);
  copied.ReadFrom(*field);
  *this = copied;
}

void PropertyStore::ReadFrom(const Field& field) {
  const auto wants = [this](Kind kind) { return kind_ == kind || kind_ == kChosen; };
  if (wants(kTop)) top_ = runtime::CInt(field.box.top);
  if (wants(kLeft)) left_ = runtime::CInt(field.box.left);
  if (wants(kWidth)) width_ = runtime::CInt(field.box.width);
  if (wants(kHeight)) height_ = runtime::CInt(field.box.height);
  if (!wants(kFont)) return;
  fontName_ = field.font.name;
  fontSize_ = field.font.size;
  tag_ = field.tag;
}

void PropertyStore::Paste(Document& document) const {
  if (kind_ == kNothing || document.Current().At(document.Selected()) == nullptr) return;
  document.MarkModified();
  document.Edit([&](Layout& layout) {
    ChangeField(layout, document.Selected(), [this](Field& field) {
      if (kind_ != kChosen) return Apply(kind_, field);
      for (int kind = 0; kind < kProperties; ++kind)
        if (chosen_[static_cast<std::size_t>(kind)]) Apply(kind, field);
    });
  });
}

void PropertyStore::Apply(int kind, Field& field) const {
  switch (kind) {
    case kTop:
      field.box.top = top_;
      break;
    case kLeft:
      field.box.left = left_;
      break;
    case kWidth:
      field.box.width = width_;
      break;
    case kHeight:
      field.box.height = height_;
      break;
    case kFont:
      field.font.name = fontName_;
      field.tag = tag_;
      field.font.size = fontSize_;
      break;
    default:
      break;
  }
}

}  // namespace qm::designer
