#include "platform/pdf_text.h"

#include <algorithm>
#include <cmath>

#include "runtime/code_page.h"

namespace qm::platform {
namespace {

constexpr double kTwipsAPoint = 20;
constexpr double kLetterWidth = 0.6;   // of the font's size; that of Courier, which every reader has
constexpr double kSizeOfLine = 0.87;   // a font's size as part of its line's height
constexpr double kBaseline = 0.8;      // of the line's height, from its top
constexpr double kFarthest = 1 << 20;  // points; beyond what readers take
constexpr char kDigits[] = "0123456789ABCDEF";

std::string Hexadecimal(std::uint32_t value, int digits) {
  std::string text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) text += kDigits[value >> shift & 15U];
  return text;
}

// The letter that begins there, of one code unit or two.
char32_t LetterAt(std::u16string_view text, std::size_t i) {
  const char16_t first = text[i];
  const bool pair = first >= 0xD800 && first < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                    text[i + 1] < 0xE000;
  if (pair) return 0x10000U + ((first - 0xD800U) << 10) + (text[i + 1] - 0xDC00U);
  return first >= 0xD800 && first < 0xE000 ? U'\xFFFD' : first;
}

std::u16string Units(char32_t letter) {
  if (letter < 0x10000) return {static_cast<char16_t>(letter)};
  const char32_t offset = letter - 0x10000;
  return {static_cast<char16_t>(0xD800 + (offset >> 10)), static_cast<char16_t>(0xDC00 + (offset & 0x3FF))};
}

std::string HexadecimalUnits(std::u16string_view units) {
  std::string text;
  for (const char16_t unit : units) text += Hexadecimal(unit, 4);
  return text;
}

bool IsControl(char16_t unit) { return unit < 32 || (unit >= 127 && unit < 160); }

// A part of a text: a word or the blanks behind it, stretched to the width that it takes on the page.
struct Part {
  std::vector<PdfFonts::Place> letters;
  double width = 0;  // twips
};

Part PartOf(const PageText& text, std::size_t begin, std::size_t end, PdfFonts& fonts) {
  const auto& ends = text.extent.ends;
  Part part;
  part.width = ends[end - 1] - text.extent.WidthOfFirst(begin);
  for (std::size_t i = begin; i < end; ++i) {
    if (IsControl(text.text[i])) continue;
    const char32_t letter = LetterAt(text.text, i);
    part.letters.push_back(fonts.PlaceOf(letter));
    if (letter >= 0x10000) ++i;
  }
  return part;
}

class TextWriter {
 public:
  TextWriter(std::string& content, double sizePoints) : content_(content), size_(sizePoints) {}

  void Append(const Part& part) {
    if (part.letters.empty() || part.width <= 0) return;
    const double natural = static_cast<double>(part.letters.size()) * kLetterWidth * size_ * kTwipsAPoint;
    content_ += PdfNumber(100 * part.width / natural) + " Tz";
    for (std::size_t i = 0; i < part.letters.size();) i = AppendRun(part.letters, i);
    content_ += '\n';
  }

 private:
  // The letters from there on that stand in one font; gives the first that does not.
  std::size_t AppendRun(const std::vector<PdfFonts::Place>& letters, std::size_t i) {
    const std::size_t font = letters[i].font;
    if (font != font_) content_ += "/F" + std::to_string(font_ = font) + " " + PdfNumber(size_) + " Tf";
    content_ += '(';
    for (; i < letters.size() && letters[i].font == font; ++i) AppendCode(letters[i].code);
    content_ += ")Tj";
    return i;
  }

  void AppendCode(std::uint8_t code) {
    if (code == '(' || code == ')' || code == '\\') content_ += '\\';
    if (code == '\r') {
      content_ += "\\r";  // as itself it would be read as a line feed
    } else {
      content_ += static_cast<char>(code);
    }
  }

  std::string& content_;
  double size_;
  std::size_t font_ = std::string::npos;
};

}  // namespace

std::string PdfNumber(double value) {
  const auto hundredths =
      static_cast<long long>(std::llround(std::clamp(value, -kFarthest, kFarthest) * 100));
  std::string text = hundredths < 0 ? "-" : "";
  const long long size = hundredths < 0 ? -hundredths : hundredths;
  text += std::to_string(size / 100);
  const long long decimals = size % 100;
  if (decimals == 0) return text;
  text += '.';
  text += static_cast<char>('0' + decimals / 10);
  if (decimals % 10 != 0) text += static_cast<char>('0' + decimals % 10);
  return text;
}

std::string PdfUnicode(std::u16string_view text) { return "<FEFF" + HexadecimalUnits(text) + ">"; }

PdfFonts::Place PdfFonts::PlaceOf(char32_t letter) {
  if (letter < 0x10000) {
    const auto unit = static_cast<char16_t>(letter);
    if (runtime::IsRepresentable(unit)) return {0, runtime::ToByte(unit)};
  }
  auto known = std::find(extras_.begin(), extras_.end(), letter);
  if (known == extras_.end()) known = extras_.insert(known, letter);
  const auto index = static_cast<std::size_t>(known - extras_.begin());
  return {1 + index / kLettersAFont, static_cast<std::uint8_t>(1 + index % kLettersAFont)};
}

std::pair<std::size_t, std::size_t> PdfFonts::Range(std::size_t font) const {
  const std::size_t begin = (font - 1) * kLettersAFont;
  return {begin, std::min(begin + kLettersAFont, extras_.size())};
}

std::string PdfFonts::Dictionary(std::size_t font, int mapObject) const {
  const std::string courier = "<</Type/Font/Subtype/Type1/BaseFont/Courier/Encoding";
  if (font == 0) return courier + "/WinAnsiEncoding>>";
  const auto [begin, end] = Range(font);
  std::string names;
  std::string widths;
  for (std::size_t i = begin; i < end; ++i) {
    names += (extras_[i] < 0x10000 ? "/uni" : "/u") + Hexadecimal(extras_[i], extras_[i] < 0x10000 ? 4 : 5);
    widths += "600 ";
  }
  return courier + "<</Type/Encoding/Differences[1" + names + "]>>/FirstChar 1/LastChar " +
         std::to_string(end - begin) + "/Widths[" + widths +
         "]/FontDescriptor<</Type/FontDescriptor/FontName/Courier/Flags 33/FontBBox[-23 -250 715 805]"
         "/ItalicAngle 0/Ascent 629/Descent -157/CapHeight 562/StemV 51>>/ToUnicode " +
         std::to_string(mapObject) + " 0 R>>";
}

std::string PdfFonts::MapToLetters(std::size_t font) const {
  constexpr std::size_t kRowsABlock = 100;
  std::string map =
      "/CIDInit/ProcSet findresource begin 12 dict begin begincmap\n"
      "/CIDSystemInfo<</Registry(Adobe)/Ordering(UCS)/Supplement 0>>def\n"
      "/CMapName/Adobe-Identity-UCS def /CMapType 2 def\n"
      "1 begincodespacerange <00><FF> endcodespacerange\n";
  const auto [begin, end] = Range(font);
  for (std::size_t block = begin; block < end; block += kRowsABlock) {
    const std::size_t blockEnd = std::min(block + kRowsABlock, end);
    map += std::to_string(blockEnd - block) + " beginbfchar\n";
    for (std::size_t i = block; i < blockEnd; ++i) {
      map += "<" + Hexadecimal(static_cast<std::uint32_t>(i - begin + 1), 2) + "><" +
             HexadecimalUnits(Units(extras_[i])) + ">\n";
    }
    map += "endbfchar\n";
  }
  return map + "endcmap CMapName currentdict /CMap defineresource pop end end\n";
}

bool IsBlank(const PageText& text) {
  return text.extent.ends.size() != text.text.size() || text.extent.Width() <= 0 || text.extent.height <= 0 ||
         std::all_of(text.text.begin(), text.text.end(),
                     [](char16_t unit) { return unit == u' ' || IsControl(unit); });
}

void AppendText(std::string& content, const PageText& text, double pageHeightPoints, std::size_t mark,
                PdfFonts& fonts) {
  const double lineHeight = text.extent.height / kTwipsAPoint;
  content += "/P<</MCID " + std::to_string(mark) + ">>BDC BT 3 Tr 1 0 0 1 " +
             PdfNumber(text.topLeft.x / kTwipsAPoint) + " " +
             PdfNumber(pageHeightPoints - text.topLeft.y / kTwipsAPoint - kBaseline * lineHeight) + " Tm\n";
  TextWriter writer(content, kSizeOfLine * lineHeight);
  const std::u16string_view letters = text.text;
  for (std::size_t begin = 0; begin < letters.size();) {
    const bool blanks = letters[begin] == u' ';
    const std::size_t found = blanks ? letters.find_first_not_of(u' ', begin) : letters.find(u' ', begin);
    const std::size_t end = std::min(found, letters.size());
    writer.Append(PartOf(text, begin, end, fonts));
    begin = end;
  }
  content += "ET EMC\n";
}

}  // namespace qm::platform
