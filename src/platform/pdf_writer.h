#pragma once
// A PDF of one page: one picture at its true size (a pixel is 0.75 points) and, beneath what is seen, the
// texts that were drawn on it, invisible, so that the page can be searched and read aloud.
// Units:  texts in twips from the page's top-left corner.
// Errors: RuntimeError 481 for an empty picture.

#include <string>
#include <string_view>
#include <vector>

#include "platform/picture_page.h"

namespace qm::platform {

struct PageText {
  Point topLeft;
  TextExtent extent;  // as it was drawn
  std::u16string text;
};

struct PdfProperties {
  std::u16string title;
  std::u16string language = u"es-ES";
};

// The whole file, in the order of the texts when read aloud. The same page always gives the same bytes.
[[nodiscard]] std::string PdfOfPage(const PageImage& image, const std::vector<PageText>& texts,
                                    const PdfProperties& properties);

}  // namespace qm::platform
