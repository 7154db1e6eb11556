#pragma once
// A page's picture as the image object of a PDF file, exact to the pixel. A page of few colours, as printed
// documents are, gets a palette and a byte a pixel, which is smaller and much faster than three.

#include <string>

#include "platform/picture_page.h"

namespace qm::platform {

struct PdfImage {
  std::string entries;  // of its dictionary, without its length
  std::string data;
};

[[nodiscard]] PdfImage PdfImageOf(const PageImage& image);

}  // namespace qm::platform
