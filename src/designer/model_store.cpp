#include "designer/model_store.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "print/field_reader.h"
#include "print/text/text_helpers.h"
#include "runtime/error.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::designer {
namespace {

using runtime::Locale;
using Text = std::u16string_view;

constexpr float kA4WidthCm = 21;
constexpr float kA4HeightCm = 29.7F;
constexpr double kHundredthsAbove = 600;  // sizes of some models are in hundredths of a point

float Single(double value) {
  constexpr double kMost = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(value, -kMost, kMost));
}

// Files are written without grouping, so that a lone comma is a decimal sign wherever they are opened.
float Twips(Text text, const Locale& locale) { return Single(text::ParseCentimetres(text, locale)); }

// Nothing for a number that does not fit 16 bits.
std::optional<int> RoundedValue(Text text) {
  try {
    return runtime::CInt(runtime::Val(text));
  } catch (const runtime::RuntimeError&) {
    return std::nullopt;
  }
}

// ---- The attributes of a model

class AttributeReader {
 public:
  AttributeReader(Layout& layout, const Locale& locale, const LoadPicture& load)
      : layout_(layout), locale_(locale), load_(load) {}

  void Read(const model::Property& attribute) {
    for (const Entry& entry : kAttributes)
      if (entry.attribute == attribute.name) (this->*entry.read)(attribute.text);
  }

 private:
  using Member = void (AttributeReader::*)(Text);
  struct Entry {
    Text attribute;
    Member read;
  };
  static const std::array<Entry, 7> kAttributes;

  void ReadWidth(Text text) { layout_.ancho = BoxText(text::ParseNumber(text, locale_), locale_); }
  void ReadHeight(Text text) { layout_.alto = BoxText(text::ParseNumber(text, locale_), locale_); }
  void ReadCopias(Text text);
  void ReadPrinter(Text text) { layout_.printer = text; }
  void ReadEsEtiqueta(Text text) { layout_.esEtiqueta = RoundedValue(text) == 1; }
  void ReadImagen(Text text);
  void ReadImagenLogo(Text text);

  Layout& layout_;
  const Locale& locale_;
  const LoadPicture& load_;
};

const std::array<AttributeReader::Entry, 7> AttributeReader::kAttributes = {{
    {u"Width", &AttributeReader::ReadWidth},
    {u"Height", &AttributeReader::ReadHeight},
    {u"Copias", &AttributeReader::ReadCopias},
    {u"Printer", &AttributeReader::ReadPrinter},
    {u"EsEtiqueta", &AttributeReader::ReadEsEtiqueta},
    {u"Imagen", &AttributeReader::ReadImagen},
    {u"ImagenLogo", &AttributeReader::ReadImagenLogo},
}};

// "3" selects "03"; a number that the selector does not offer stays as it is written.
void AttributeReader::ReadCopias(Text text) {
  const std::optional<int> copies = RoundedValue(text);
  const bool offered = copies && *copies >= 1 && *copies <= static_cast<int>(kCopias.size());
  layout_.copias = offered ? kCopias[static_cast<std::size_t>(*copies) - 1] : text;
}

void AttributeReader::ReadImagen(Text text) {
  if (text.empty()) return;
  layout_.imagen = text;
  layout_.background = load_(text);
}

void AttributeReader::ReadImagenLogo(Text text) {
  std::vector<std::u16string> parts = runtime::Split(text, u"|");
  parts.resize(5);
  if (parts[0].empty()) return;
  Logo logo;
  logo.archivo = parts[0];
  logo.box = {Twips(parts[1], locale_), Twips(parts[2], locale_), Twips(parts[3], locale_),
              Twips(parts[4], locale_)};
  logo.picture = load_(logo.archivo);
  layout_.logo = std::make_shared<const Logo>(std::move(logo));
}

// ---- Fields

void ReadForeColor(Field& field, Text text, const Locale& locale) {
  const std::optional<double> color = runtime::TryCDbl(text, locale);
  if (color && *color >= std::numeric_limits<std::int32_t>::min() &&
      *color <= std::numeric_limits<std::int32_t>::max())
    field.font.foreColor = runtime::CLng(*color);
}

void ReadFontSize(Field& field, Text text, const Locale& locale) {
  double points = text::ParseNumber(text, locale);
  if (points > kHundredthsAbove) points /= 100;
  if (points > 0) field.font.size = Single(std::min(points, print::kLargestFontSize));
}

void ReadAlignment(Field& field, Text text) {
  const int code = RoundedValue(text).value_or(0);
  field.alignment = code == print::kAlignRight || code == print::kAlignCentre ? code : 0;
}

void Read(Field& field, model::FieldElement element, Text text, const Locale& locale) {
  using enum model::FieldElement;
  switch (element) {
    case Descripcion:
      field.caption = text;
      break;
    case Top:
      field.box.top = Twips(text, locale);
      break;
    case Left:
      field.box.left = Twips(text, locale);
      break;
    case Width:
      field.box.width = Twips(text, locale);
      break;
    case Height:
      field.box.height = Twips(text, locale);
      break;
    case ForeColor:
      return ReadForeColor(field, text, locale);
    case Bold:
      field.font.bold = text::ParseBoolean(text, locale);
      break;
    case FontSize:
      return ReadFontSize(field, text, locale);
    case FontItalic:
      field.font.italic = text::ParseBoolean(text, locale);
      break;
    case Alignment:
      return ReadAlignment(field, text);
    case Underline:
      field.font.underline = text::ParseBoolean(text, locale);
      break;
    case FontName:
      field.font.name = text;
      break;
  }
}

// ---- Saving

std::u16string SavedName(Text name, Text imageFolder) {
  const bool inFolder = name.size() > imageFolder.size() &&
                        runtime::EqualFolded(name.substr(0, imageFolder.size()), imageFolder);
  return std::u16string(inFolder ? name.substr(imageFolder.size()) : name);
}

// The format, where a field has one, stands in the place of its font's name.
model::FieldToSave FieldOf(const Field& field, int key) {
  return {.key = key,
          .descripcion = field.caption,
          .top = field.box.top,
          .left = field.box.left,
          .width = field.box.width,
          .height = field.box.height,
          .foreColor = field.font.foreColor,
          .bold = field.font.bold,
          .fontSize = field.font.size,
          .fontItalic = field.font.italic,
          .alignment = field.alignment,
          .underline = field.font.underline,
          .fontName = field.tag.empty() ? field.font.name : field.tag};
}

}  // namespace

Layout NewLayout(const Locale& locale) {
  Layout layout;
  layout.pageWidthCm = kA4WidthCm;
  layout.pageHeightCm = kA4HeightCm;
  layout.canvasWidth = TwipsOf(kA4WidthCm);
  layout.canvasHeight = TwipsOf(kA4HeightCm);
  layout.ancho = BoxText(layout.canvasWidth, locale);
  layout.alto = BoxText(layout.canvasHeight, locale);
  return layout;
}

Layout WithoutContents(const Layout& layout) {
  Layout empty = layout;
  empty.imagen.clear();
  empty.background = nullptr;
  empty.logo = nullptr;
  empty.men.assign(1, nullptr);
  return empty;
}

LoadedModel ReadLayout(const model::ModelTexts& model, const Layout& former, const Locale& locale,
                       const LoadPicture& load) {
  LoadedModel loaded{WithoutContents(former), {}};
  Layout& layout = loaded.layout;
  AttributeReader reader(layout, locale, load);
  for (const model::Property& attribute : model.attributes) reader.Read(attribute);
  loaded.tooLarge =
      SetPageSize(layout, CentimetresOf(layout.ancho, locale), CentimetresOf(layout.alto, locale));

  Field field;
  for (const auto& elements : model.fields) {
    for (const auto& [element, text] : elements) Read(field, element, text, locale);
    layout.men.push_back(std::make_shared<const Field>(field));
  }
  return loaded;
}

model::ModelToSave ModelOf(const Layout& layout, std::int16_t numero, std::u16string_view imageFolder) {
  model::ModelToSave model;
  model.numero = numero;
  model.width = TwipsOf(layout.pageWidthCm);
  model.height = TwipsOf(layout.pageHeightCm);
  model.copias = layout.copias;
  model.printer = layout.printer;
  model.esEtiqueta = layout.esEtiqueta;
  model.imagen = SavedName(layout.imagen, imageFolder);
  if (const Logo* logo = layout.logo.get())
    model.imagenLogo = {SavedName(logo->archivo, imageFolder), logo->box.left, logo->box.top, logo->box.width,
                        logo->box.height};
  for (std::size_t key = 1; key < layout.men.size(); ++key)
    if (const Field* field = layout.men[key].get())
      model.fields.push_back(FieldOf(*field, static_cast<int>(key)));
  return model;
}

}  // namespace qm::designer
