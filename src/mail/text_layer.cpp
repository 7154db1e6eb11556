#include "mail/text_layer.h"

namespace qm::mail {

void TextLayer::PrintText(platform::Point topLeft, std::u16string_view text) {
  surface_.PrintText(topLeft, text);
  texts_.push_back({topLeft, surface_.Measure(text), std::u16string(text)});
}

void TextLayer::SetPageSize(double widthTwips, double heightTwips) {
  surface_.SetPageSize(widthTwips, heightTwips);
  texts_.clear();
}

}  // namespace qm::mail
