#include "designer/field_properties.h"

#include <algorithm>
#include <utility>

#include "print/text/text_helpers.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/strings.h"

namespace qm::designer {

namespace {

constexpr std::u16string_view kSampleText = u"Hello";
constexpr char16_t kFixedText = u'#';
constexpr int kMostDecimals = 6;
constexpr double kLargestFont = 2160;  // points

constexpr float Box::*kBoxMembers[] = {&Box::left, &Box::top, &Box::width, &Box::height};

struct Style {
  std::u16string_view name;
  bool bold;
  bool italic;
};
constexpr Style kStyles[] = {
    {u"Normal", false, false},
    {u"Cursiva", false, true},
    {u"Negrita", true, false},
    {u"Negrita Cursiva", true, true},
};

std::vector<std::u16string> Sizes() {
  std::vector<std::u16string> sizes;
  for (int size = 8; size <= 12; ++size) sizes.push_back(runtime::ToText(size));
  for (int size = 14; size <= 28; size += 2) sizes.push_back(runtime::ToText(size));
  for (const int size : {36, 48, 72}) sizes.push_back(runtime::ToText(size));
  return sizes;
}

// A printer's fonts are numbered from 0, and the first is not on offer: they are asked for from 1 up to and
// including their count, and the empty answer there is skipped like every nameless font.
std::vector<std::u16string> OfferedFonts(platform::Printers& printers, std::u16string_view printer) {
  std::vector<std::u16string> all;
  try {
    all = printers.FontNames(printer);
  } catch (const runtime::RuntimeError&) {
    return {};
  }
  std::vector<std::u16string> offered;
  for (std::size_t position = 1; position < all.size(); ++position)
    if (!all[position].empty()) offered.push_back(std::move(all[position]));
  return offered;
}

// The first entry that is equal ignoring case.
int PositionOf(const std::vector<std::u16string>& entries, std::u16string_view text) {
  const auto found = std::find_if(entries.begin(), entries.end(), [&](const std::u16string& entry) {
    return runtime::EqualFolded(entry, text);
  });
  return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

}  // namespace

FieldProperties::FieldProperties(Document& document, int index, platform::Printers& printers,
                                 std::u16string_view printer, platform::Dialogs& dialogs,
                                 runtime::Locale locale)
    : document_(document), index_(index), dialogs_(dialogs), locale_(std::move(locale)) {
  FillLists(printers, printer);
  if (const Field* field = document_.Current().At(index_)) CARGA_CAMBIOS(*field);
}

void FieldProperties::FillLists(platform::Printers& printers, std::u16string_view printer) {
  justificar_.entries = {u"Izquierda", u"Derecha", u"Centrada"};
  formato_.entries = {u"Texto"};
  for (int decimals = 0; decimals <= kMostDecimals; ++decimals)
    formato_.entries.push_back(u"Númerico con " + runtime::ToText(decimals) + u" decimales");
  formato_.selected = 0;
  fuenList_.entries = OfferedFonts(printers, printer);
  for (const Style& style : kStyles) estiloList_.entries.emplace_back(style.name);
  tamañoList_.entries = Sizes();
}

void FieldProperties::CARGA_CAMBIOS(const Field& field) {
  sample_.tag = field.tag;
  sample_.font = field.font;
  sample_.enabled = field.caption.starts_with(kFixedText);
  sample_.text = sample_.enabled ? field.caption.substr(1) : std::u16string(kSampleText);
  // A tag of another making stands for no entry and is kept until one is chosen.
  for (int position = 1; formato_.Has(position); ++position)
    if (field.tag == runtime::ToText(position)) formato_.selected = position;

  nombreFuente_ = field.font.name;
  fuenList_.selected = PositionOf(fuenList_.entries, nombreFuente_);
  tamaño_ = runtime::ToText(field.font.size, locale_);
  tamañoList_.selected = PositionOf(tamañoList_.entries, tamaño_);
  estiloList_.selected = static_cast<int>(std::find_if(std::begin(kStyles), std::end(kStyles),
                                                       [&](const Style& style) {
                                                         return style.bold == field.font.bold &&
                                                                style.italic == field.font.italic;
                                                       }) -
                                          std::begin(kStyles));
  subrayado_ = field.font.underline;

  for (std::size_t i = 0; i < kBoxes; ++i) boxes_[i] = runtime::ToText(field.box.*kBoxMembers[i], locale_);
  justificar_.selected = justificar_.Has(field.alignment) ? field.alignment : 0;
}

void FieldProperties::SetFonts() {
  sample_.font.name = nombreFuente_;
  // While a size is being typed there is none for a moment; the sample keeps the last one.
  const double size = text::ParseNumber(tamaño_, locale_);
  if (size > 0 && size <= kLargestFont) sample_.font.size = static_cast<float>(size);
  if (estiloList_.Has(estiloList_.selected)) {
    const Style& style = kStyles[estiloList_.selected];
    sample_.font.bold = style.bold;
    sample_.font.italic = style.italic;
  }
  sample_.font.underline = subrayado_;
  if (!sample_.enabled) sample_.text = kSampleText;  // a fixed text shows itself
}

void FieldProperties::FuenList_Click(int position) {
  if (!fuenList_.Has(position)) return;
  fuenList_.selected = position;
  nombreFuente_ = fuenList_.entries[static_cast<std::size_t>(position)];
  SetFonts();
}

void FieldProperties::EstiloList_Click(int position) {
  if (!estiloList_.Has(position)) return;
  estiloList_.selected = position;
  SetFonts();
}

void FieldProperties::TamañoList_Click(int position) {
  if (!tamañoList_.Has(position)) return;
  Tamaño_Change(std::u16string(tamañoList_.entries[static_cast<std::size_t>(position)]));
}

void FieldProperties::Tamaño_Change(std::u16string_view text) {
  tamaño_ = text;
  tamañoList_.selected = PositionOf(tamañoList_.entries, tamaño_);
  SetFonts();
}

void FieldProperties::Subrayado_Click(bool ticked) {
  subrayado_ = ticked;
  SetFonts();
}

void FieldProperties::Justificar_Click(int position) {
  if (justificar_.Has(position)) justificar_.selected = position;
}

void FieldProperties::Formato_Click(int position) {
  if (!formato_.Has(position)) return;
  formato_.selected = position;
  sample_.tag = position == 0 ? std::u16string() : runtime::ToText(position);
}

void FieldProperties::LbL_Men_Change(std::u16string_view text) {
  if (sample_.enabled) sample_.text = text;
}

void FieldProperties::Command2_Click() {
  if (const auto color = dialogs_.ChooseColor(sample_.font.foreColor)) sample_.font.foreColor = *color;
}

Field FieldProperties::Applied(Field field) const {
  field.tag = sample_.tag;
  if (sample_.enabled) field.caption = kFixedText + sample_.text;
  field.font = sample_.font;
  if (todos_) return field;  // fonts only, also for the field being edited
  for (std::size_t i = 0; i < kBoxes; ++i) {
    float& length = field.box.*kBoxMembers[i];
    if (boxes_[i] != runtime::ToText(length, locale_))  // one left alone keeps its digits beyond those shown
      length = static_cast<float>(std::clamp(text::ParseNumber(boxes_[i], locale_), -kFurthest, kFurthest));
  }
  field.box.width = std::max(0.0F, field.box.width);
  field.box.height = std::max(0.0F, field.box.height);
  field.alignment = justificar_.selected;
  return field;
}

// What was typed as text or chosen as format belongs to the one field: with Todos only its font spreads.
void FieldProperties::AplicaValores() {
  document_.Edit([this](Layout& layout) {
    ChangeField(layout, index_, [this](Field& field) { field = Applied(field); });
    if (!todos_) return;
    for (std::size_t i = 1; i < layout.men.size(); ++i)
      ChangeField(layout, static_cast<int>(i), [this](Field& field) { field.font = sample_.font; });
  });
}

}  // namespace qm::designer
