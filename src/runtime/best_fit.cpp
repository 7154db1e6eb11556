#include "runtime/best_fit.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace qm::runtime {
namespace {

struct Run {
  char16_t first;
  std::u16string_view fits;  // of first and the letters after it; "." where there is none
};

// The whole best-fit table of Windows: letters without their marks or their strangeness, Greek and
// mathematical signs by looks, typographic blanks and hyphens, box drawing. Rising; no two overlap.
constexpr Run kRuns[] = {
    {0x0100,
     u"AaAaAaCcCcCcCcDdÐdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi..JjKk.LlLlLl..LlNnNnNn...OoOoOo..RrRrRrSsSsSs.."
     u"TtTtTtUuUuUuUuUuUuWwYy.ZzZz...b"},
    {0x0189, u"Ð"},
    {0x0191, u"ƒ"},
    {0x0197, u"I..l"},
    {0x019F, u"OOo"},
    {0x01AB, u"t..TUu"},
    {0x01B6, u"z"},
    {0x01C0, u"|..!"},
    {0x01CD, u"AaIiOoUuUuUuUuUu.Aa"},
    {0x01E4, u"GgGgKkOoOo..j"},
    {0x0261, u"g"},
    {0x02B9, u"'\".'"},
    {0x02C4, u"^...'¯´`._"},
    {0x02DA, u"°"},
    {0x0300, u"`´^~¯¯..¨.°...\""},
    {0x0327, u"¸"},
    {0x0331, u"__"},
    {0x037E, u";"},
    {0x0393, u"G"},
    {0x0398, u"T"},
    {0x03A3, u"S..F..O"},
    {0x03B1, u"aß.de"},
    {0x03BC, u"µ...p..st.f"},
    {0x04BB, u"h"},
    {0x0589, u":"},
    {0x066A, u"%"},
    {0x2000, u"       "},
    {0x2010, u"--"},
    {0x2017, u"="},
    {0x2024, u"·"},
    {0x2032, u"'..`"},
    {0x2044, u"/"},
    {0x2070, u"°...45678"},
    {0x207F, u"n0123456789"},
    {0x20A1, u"¢..£..P"},
    {0x2102, u"C"},
    {0x2107, u"E..gHHHh.IILl.N..PPQRRR"},
    {0x2124, u"Z...Z.KÅBCeeEF.Mo"},
    {0x2205, u"Ø"},
    {0x2212, u"-±./\\*°·v...8"},
    {0x2223, u"|"},
    {0x2229, u"n"},
    {0x2236, u":"},
    {0x223C, u"~"},
    {0x2248, u"˜"},
    {0x2261, u"=..=="},
    {0x226A, u"«»"},
    {0x22C5, u"·"},
    {0x2302, u"¦^"},
    {0x2310, u"¬"},
    {0x2320, u"()"},
    {0x2329, u"<>"},
    {0x2500, u"-.¦"},
    {0x250C, u"+...+...+...+...+"},
    {0x2524, u"¦"},
    {0x252C, u"-"},
    {0x2534, u"-"},
    {0x253C, u"+"},
    {0x2550, u"-¦++++++++++++¦¦¦¦¦¦------+++"},
    {0x2580, u"¯..._...¦...¦...¦¦¦¦"},
    {0x25A0, u"¦"},
    {0x263C, u"¤"},
    {0x2758, u"|"},
    {0x3000, u" "},
    {0x3008, u"<>«»"},
    {0x301A, u"[]"},
    {0x30FB, u"·"},
};

constexpr char16_t kGap = u'.', kNone = u'?';

}  // namespace

char16_t BestFit(char16_t letter) {
  constexpr char16_t kFullWidthFirst = 0xFF01, kFullWidthLast = 0xFF5E;
  if (letter >= kFullWidthFirst && letter <= kFullWidthLast) {
    return static_cast<char16_t>(letter - kFullWidthFirst + u'!');
  }
  const auto* const after = std::ranges::upper_bound(kRuns, letter, {}, &Run::first);
  if (after == std::begin(kRuns)) return kNone;
  const Run& run = *(after - 1);
  const auto at = static_cast<std::size_t>(letter - run.first);
  return at < run.fits.size() && run.fits[at] != kGap ? run.fits[at] : kNone;
}

}  // namespace qm::runtime
