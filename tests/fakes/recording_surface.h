#pragma once
// A surface that writes what is drawn on it as a readable log, one operation a line:
//   font Arial 10 bold        only when it differs from the font of the last drawn text
//   color 255                 likewise
//   2700,500 123              a text and where its top-left corner stands
//   picture 10x20 px 100,200  a picture and where its top-left corner stands
//   page 11906x16838          a page size
// Its font is measured simply: every character is 100 twips wide, every line 240 high.

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/pictures.h"
#include "platform/printers.h"
#include "runtime/code_page.h"
#include "runtime/format.h"

namespace qm::fakes {

inline std::string Number(double value) {
  return runtime::ToUtf8(runtime::ToText(value, runtime::Locale::English()));
}

inline std::string Describe(const platform::Font& font) {
  std::string text = runtime::ToUtf8(font.name) + " " + Number(font.sizePoints);
  if (font.bold) text += " bold";
  if (font.italic) text += " italic";
  if (font.underline) text += " underline";
  if (font.strikethru) text += " strikethru";
  return text;
}

// Base is platform::Surface or platform::PrinterSurface.
template <typename Base>
class Recording : public Base {
 public:
  Recording() = default;
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  [[nodiscard]] platform::Font CurrentFont() const override { return font_; }
  void SetFont(const platform::Font& font) override { font_ = font; }
  void SetForeColor(std::int32_t color) override { color_ = color; }

  [[nodiscard]] platform::TextExtent Measure(std::u16string_view text) override {
    ++measurements_;
    platform::TextExtent extent{.ends = {}, .height = kLineHeight};
    for (std::size_t i = 0; i < text.size(); ++i)
      extent.ends.push_back(kCharWidth * static_cast<double>(i + 1));
    return extent;
  }

  void PrintText(platform::Point at, std::u16string_view text) override {
    if (!(font_ == loggedFont_)) Write("font " + Describe(font_));
    if (color_ != loggedColor_) Write("color " + std::to_string(color_));
    loggedFont_ = font_;
    loggedColor_ = color_;
    Write(Position(at) + " " + runtime::ToUtf8(text));
  }

  void PaintPicture(const platform::Picture& picture, platform::Point at) override {
    Write("picture " + std::to_string(picture.WidthPixels()) + "x" + std::to_string(picture.HeightPixels()) +
          " px " + Position(at));
  }

  void SetPageSize(double widthTwips, double heightTwips) override {
    scaleWidth_ = widthTwips;
    Write("page " + Number(widthTwips) + "x" + Number(heightTwips));
  }

  [[nodiscard]] double ScaleWidth() const override { return scaleWidth_; }

  [[nodiscard]] const std::string& Log() const { return *sink_; }
  // Writes to a log shared with other fakes, which must outlive the surface.
  void LogTo(std::string& sink) { sink_ = &sink; }
  [[nodiscard]] int Measurements() const { return measurements_; }
  void SetScaleWidth(double twips) { scaleWidth_ = twips; }

  static constexpr double kCharWidth = 100;
  static constexpr double kLineHeight = 240;

 protected:
  void Write(std::string_view line) { sink_->append(line).append("\n"); }

 private:
  static std::string Position(platform::Point at) { return Number(at.x) + "," + Number(at.y); }

  platform::Font font_;
  platform::Font loggedFont_;
  std::int32_t color_ = 0;
  std::int32_t loggedColor_ = 0;
  double scaleWidth_ = 11906;
  int measurements_ = 0;
  std::string log_;
  std::string* sink_ = &log_;
};

using RecordingSurface = Recording<platform::Surface>;

}  // namespace qm::fakes
