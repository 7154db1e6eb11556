#include "print/label_options.h"

#include <algorithm>
#include <iterator>

#include "print/text/text_helpers.h"
#include "runtime/numbers.h"

namespace qm::print {

namespace {

constexpr std::u16string_view kSection = u"Etiquetas";
constexpr double kTwipsPerCm = 567;

enum Option { Across, Down, TopMargin, LeftMargin, SheetWidth, SheetHeight };

struct Entry {
  std::u16string_view key;
  std::u16string_view label;
  std::u16string_view defaultText;
};

// In the order of the dialog. Both margins share a key on purpose: the left one, saved last, is what the next
// dialog offers for both.
constexpr Entry kEntries[] = {
    {u"Ancho", u"Etiquetas a lo ancho", u"02"},         {u"Alto", u"Etiquetas a lo alto", u"08"},
    {u"Margen Superior", u"Margen Superior", u"0"},     {u"Margen Superior", u"Margen Izquierda", u"0"},
    {u"Ancho Pagina", u"Ancho Pagina Completa", u"21"}, {u"Alto Pagina", u"Alto Pagina Completa", u"29,50"},
};

std::vector<platform::OptionEntry> OfferedEntries(platform::Settings& settings) {
  std::vector<platform::OptionEntry> offered;
  for (const Entry& entry : kEntries)
    offered.push_back({std::u16string(entry.label), settings.Read(kSection, entry.key, entry.defaultText)});
  return offered;
}

LabelOptions Read(const std::vector<std::u16string>& answers, const runtime::Locale& locale) {
  // A row and a sheet have one label at least: fewer would leave no place to print on.
  const auto count = [&](Option option) {
    return std::max<std::int16_t>(1, runtime::CInt(answers.at(option), locale));
  };
  const auto twips = [&](Option option) {
    return text::ParseCentimetres(answers.at(option), locale) * kTwipsPerCm;
  };
  return {.across = count(Across),
          .down = count(Down),
          .topMargin = twips(TopMargin),
          .leftMargin = twips(LeftMargin),
          .sheetWidth = twips(SheetWidth),
          .sheetHeight = twips(SheetHeight)};
}

}  // namespace

std::optional<LabelOptions> AskLabelOptions(const Environment& environment) {
  const auto answers =
      environment.prompts.AskOptions(u"Opciones de Etiquetas", OfferedEntries(environment.settings));
  if (!answers) return std::nullopt;
  const LabelOptions options = Read(*answers, environment.locale);
  for (std::size_t i = 0; i < std::size(kEntries); ++i)
    environment.settings.Save(kSection, kEntries[i].key, answers->at(i));
  return options;
}

}  // namespace qm::print
