// Any text as a number, a Boolean or a font name of a model file, or as a text to fit and to split.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "print/text/text_helpers.h"
#include "runtime/code_page.h"
#include "runtime/format.h"

namespace {

using qm::runtime::Locale;

void Require(bool condition) {
  if (!condition) std::abort();
}

// Widths from 0 to 3 units, told by the character.
class UnevenSurface : public qm::platform::Surface {
 public:
  [[nodiscard]] qm::platform::Font CurrentFont() const override { return {}; }
  void SetFont(const qm::platform::Font&) override {}
  void SetForeColor(std::int32_t) override {}
  [[nodiscard]] qm::platform::TextExtent Measure(std::u16string_view text) override {
    qm::platform::TextExtent extent{.ends = {}, .height = 1};
    double end = 0;
    for (const char16_t letter : text) extent.ends.push_back(end += 0.1 * (letter % 4) * 10);
    return extent;
  }
  void PrintText(qm::platform::Point, std::u16string_view) override {}
  void PaintPicture(const qm::platform::Picture&, qm::platform::Point) override {}
  void SetPageSize(double, double) override {}
  [[nodiscard]] double ScaleWidth() const override { return 50; }
};

void ReadAsNumbers(const std::u16string& text, const Locale& locale) {
  const double number = qm::text::ParseNumber(text, locale);
  Require(std::isfinite(number));
  Require(qm::text::ParseNumber(u"  " + text + u" ", locale) == number);
  Require(std::isfinite(qm::text::ParseCentimetres(text, locale)));
  (void)qm::text::ParseBoolean(text, locale);
  Require(qm::text::FormatNonZero(number, u"###,###,##0.00", locale).empty() == (number == 0));
  const std::u16string written =
      qm::runtime::ToText(static_cast<float>(static_cast<int>(text.size())) / 4, locale);
  Require(qm::text::ParseNumber(written, locale) == static_cast<double>(text.size()) / 4);
}

void FitAndSplit(std::u16string text, double width) {
  UnevenSurface surface;
  for (const bool pad : {false, true}) {
    const auto line = qm::text::FitLine(surface, text, width, 3, pad);
    Require(line.text.empty() || line.width + 3 <= 50.001);
  }
  std::u16string printed;
  for (const auto& line : qm::text::SplitLines(surface, text, width)) {
    Require(!line.text.empty());
    printed += line.text;
  }
  std::erase(printed, u' ');
  std::erase(text, u' ');
  Require(printed == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  // Read as the code page and as UTF-8, which gives letters outside it.
  for (const std::u16string& text : {qm::runtime::FromBytes(bytes), qm::runtime::FromUtf8(bytes)}) {
    ReadAsNumbers(text, Locale::Spanish());
    ReadAsNumbers(text, Locale::English());
    (void)qm::text::HasDigit(text);
    Require(qm::text::ToOemLetters(text).size() == text.size());
    FitAndSplit(text, static_cast<double>(size % 40) - 2);
  }
  return 0;
}
