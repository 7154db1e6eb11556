#include "designer/paper_chooser.h"

#include <algorithm>

#include "designer/layout.h"
#include "print/paper_forms.h"
#include "print/text/text_helpers.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace qm::designer {

namespace {

constexpr std::u16string_view kReceipt = u"Recibos Estándar";
constexpr std::u16string_view kReceiptWidth = u"20";
constexpr std::u16string_view kReceiptHeight = u"10,15873";  // with a comma in every locale
constexpr std::u16string_view kSpecial = u"Tamaño especial";
constexpr std::u16string_view kSpecialName = u"Especial";

print::PaperForms FormsOf(const print::Environment& environment) {
  return {environment.paperForms, environment.spooler, environment.prompts};
}

}  // namespace

std::optional<ChosenPage> PaperChooser::LoadPapersizes(std::u16string_view printer) {
  const std::u16string device = CurrentPrinter(printer);
  std::vector<std::u16string> choices = AcceptedForms(device);
  choices.insert(choices.begin(), std::u16string(kReceipt));
  choices.emplace_back(kSpecial);

  const std::u16string answer = environment_.dialogs.AskText(u"Elegir tamaño de papel", choices, u"");
  if (answer.empty()) return std::nullopt;
  if (answer == kReceipt) {
    const runtime::Locale& locale = environment_.print.locale;
    return ChosenPage{std::u16string(kReceiptWidth), std::u16string(kReceiptHeight),
                      static_cast<float>(text::ParseCentimetres(kReceiptWidth, locale)),
                      static_cast<float>(text::ParseCentimetres(kReceiptHeight, locale))};
  }
  if (answer == kSpecial) return SpecialSize(device);

  const std::int16_t code = FormsOf(environment_.print).FindFormCode(device, answer);
  if (code == 0) {
    TellRefused();
    return std::nullopt;
  }
  return PageOf(device, {.code = code, .formName = answer, .widthTwips = 0, .heightTwips = 0});
}

std::u16string PaperChooser::CurrentPrinter(std::u16string_view named) {
  platform::Printers& printers = environment_.print.printers;
  try {
    const auto installed = printers.DeviceNames();
    if (std::find(installed.begin(), installed.end(), named) != installed.end()) return std::u16string(named);
    return printers.OpenDefault()->DeviceName();
  } catch (const runtime::RuntimeError&) {
    return {};  // a machine without printers still has the receipt and the special size
  }
}

std::vector<std::u16string> PaperChooser::AcceptedForms(std::u16string_view device) {
  std::vector<std::u16string> accepted;
  if (device.empty() || !environment_.print.spooler.SupportsForms()) return accepted;
  print::PaperForms forms = FormsOf(environment_.print);
  forms.LoadFormNames(device);
  try {
    const std::vector<std::int16_t> codes = environment_.print.printers.PaperCodes(device);
    int code = 0;
    for (const std::u16string& name : environment_.print.paperForms.formNames)
      if (++code; std::find(codes.begin(), codes.end(), code) != codes.end()) accepted.push_back(name);
  } catch (const runtime::RuntimeError&) {
    // A printer that cannot be asked accepts none.
  }
  return accepted;
}

std::optional<ChosenPage> PaperChooser::SpecialSize(std::u16string_view device) {
  using Kind = platform::PropertyEntry::Kind;
  const auto answers = environment_.dialogs.AskProperties(
      kSpecial, {{u"Descripción", std::u16string(kSpecialName), Kind::Text},
                 {u"Anchura en cm.", u"", Kind::Text},
                 {u"Altura en cm.", u"", Kind::Text}});
  if (!answers) return std::nullopt;

  // Every form whose name contains the new one's is taken for stale; all names contain the empty one.
  const std::u16string name = (*answers)[0].empty() ? std::u16string(kSpecialName) : (*answers)[0];
  const runtime::Locale& locale = environment_.print.locale;
  const double width = text::ParseCentimetres((*answers)[1], locale);
  const double height = text::ParseCentimetres((*answers)[2], locale);
  if (!(width > 0) || !(height > 0)) {
    TellRefused();
    return std::nullopt;
  }

  platform::Paper paper{
      .code = 0, .formName = name, .widthTwips = width * kTwipsPerCm, .heightTwips = height * kTwipsPerCm};
  if (environment_.print.spooler.SupportsForms())
    paper.code = FormsOf(environment_.print).PaperCodeForSize(device, width, height, name);
  // A form of that name that could be neither deleted nor made may have any size.
  if (environment_.print.paperForms.lastError != 0) paper.code = 0;
  return PageOf(device, paper);
}

std::optional<ChosenPage> PaperChooser::PageOf(std::u16string_view device, const platform::Paper& paper) {
  std::optional<platform::PageSize> page;
  try {
    page = environment_.print.printers.PageOf(device, paper);
  } catch (const runtime::RuntimeError&) {
    // A printer that fails takes no paper.
  }
  if (!page) {
    TellRefused();
    return std::nullopt;
  }
  const float width = static_cast<float>(page->widthTwips) / kTwipsPerCm;
  const float height = static_cast<float>(page->heightTwips) / kTwipsPerCm;
  const runtime::Locale& locale = environment_.print.locale;
  return ChosenPage{runtime::ToText(width, locale), runtime::ToText(height, locale), width, height};
}

void PaperChooser::TellRefused() {
  environment_.dialogs.Tell(platform::Icon::Critical, u"Tamaño de papel no válido para su impresora");
}

}  // namespace qm::designer
