#pragma once
// The invisible texts of a PDF page: content that puts each of them under its picture, and the fonts that say
// which letters they are.
// Units: twips for texts, points in what is written.

#include <string>
#include <utility>
#include <vector>

#include "platform/pdf_writer.h"

namespace qm::platform {

// A number as PDF writes it, with two decimals at most.
[[nodiscard]] std::string PdfNumber(double value);
// A text as PDF writes it outside of pages, in Unicode.
[[nodiscard]] std::string PdfUnicode(std::u16string_view text);

// All letters are 0.6 of the font's size wide. Those that Windows-1252 has stand in the first font; for the
// others fonts are added as they come, 255 letters each.
class PdfFonts {
 public:
  struct Place {
    std::size_t font;
    std::uint8_t code;
  };
  [[nodiscard]] Place PlaceOf(char32_t letter);

  [[nodiscard]] std::size_t Count() const { return 1 + (extras_.size() + kLettersAFont - 1) / kLettersAFont; }
  // The font's dictionary; an added one refers to its map from codes to letters by that object number.
  [[nodiscard]] std::string Dictionary(std::size_t font, int mapObject) const;
  [[nodiscard]] std::string MapToLetters(std::size_t font) const;  // of an added font

 private:
  static constexpr std::size_t kLettersAFont = 255;

  // The letters of an added font.
  [[nodiscard]] std::pair<std::size_t, std::size_t> Range(std::size_t font) const;

  std::vector<char32_t> extras_;
};

// Whether there is anything to see or hear in it.
[[nodiscard]] bool IsBlank(const PageText& text);

// Content for the text on a page of that height, as the marked content of that number.
void AppendText(std::string& content, const PageText& text, double pageHeightPoints, std::size_t mark,
                PdfFonts& fonts);

}  // namespace qm::platform
