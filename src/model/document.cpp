#include "model/document.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <deque>
#include <utility>

#include "model/model_reader.h"
#include "model/well_formed.h"
#include "model/xml_text.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace qm::model {
namespace {

using runtime::ErrorNumber;
using runtime::Locale;
using runtime::RuntimeError;

constexpr std::string_view kBlanks = " \t\r\n";

// ---- Lookup

// The number of an attribute's text as XPath has it: blanks around, no "+", no exponent.
std::optional<double> NumberOf(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  if (digits.find_first_not_of("0123456789.") != std::string_view::npos) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::optional<double> NumberOf(const XmlOutline::Child& child) {
  if (child.numero.find('&') == std::string_view::npos) return NumberOf(child.numero);
  return NumberOf(std::string_view(AttributeOf(child.whole, "Numero")));
}

// ---- Writing

void AppendAttribute(std::string& out, std::string_view name, std::u16string_view text) {
  out.append(" ").append(name).append("=\"");
  AppendEscaped(out, text, Escape::AttributeValue);
  out += '"';
}

void AppendChild(std::string& out, FieldElement element, std::u16string_view text) {
  const std::string_view name = NameOf(element);
  out.append("<").append(name);
  if (text.empty()) {
    out += "/>";
    return;
  }
  out += '>';
  AppendEscaped(out, text, Escape::Text);
  out.append("</").append(name).append(">");
}

std::u16string LogoText(const LogoBox& logo, const Locale& locale) {
  std::u16string text = logo.path;
  for (const float number : {logo.left, logo.top, logo.width, logo.height})
    text.append(u"|").append(runtime::ToText(number, locale));
  return text;
}

void AppendField(std::string& out, const FieldToSave& field, const Locale& locale) {
  out += "<Campo";
  AppendAttribute(out, "Key", runtime::ToText(field.key));
  out += '>';
  AppendChild(out, FieldElement::Descripcion, field.descripcion);
  AppendChild(out, FieldElement::Top, runtime::ToText(field.top, locale));
  AppendChild(out, FieldElement::Left, runtime::ToText(field.left, locale));
  AppendChild(out, FieldElement::Width, runtime::ToText(field.width, locale));
  AppendChild(out, FieldElement::Height, runtime::ToText(field.height, locale));
  AppendChild(out, FieldElement::ForeColor, runtime::ToText(field.foreColor));
  AppendChild(out, FieldElement::Bold, runtime::ToText(field.bold, locale));
  AppendChild(out, FieldElement::FontSize, runtime::ToText(field.fontSize, locale));
  AppendChild(out, FieldElement::FontItalic, runtime::ToText(field.fontItalic, locale));
  AppendChild(out, FieldElement::Alignment, runtime::ToText(field.alignment));
  AppendChild(out, FieldElement::Underline, runtime::ToText(field.underline, locale));
  AppendChild(out, FieldElement::FontName, field.fontName);
  out += "</Campo>";
}

std::string Written(const ModelToSave& model, const Locale& locale) {
  const std::u16string_view etiqueta = model.esEtiqueta ? u"1" : u"0";
  std::string out = "<Modelo";
  AppendAttribute(out, "Numero", runtime::ToText(model.numero));
  AppendAttribute(out, "Width", runtime::ToText(model.width, locale));
  AppendAttribute(out, "Height", runtime::ToText(model.height, locale));
  AppendAttribute(out, "Copias", model.copias);
  AppendAttribute(out, "Printer", model.printer);
  AppendAttribute(out, "EsEtiqueta", etiqueta);
  AppendAttribute(out, "Logo", etiqueta);  // the label flag once more: files have always had it so
  if (!model.imagen.empty()) AppendAttribute(out, "Imagen", model.imagen);
  if (model.imagenLogo) AppendAttribute(out, "ImagenLogo", LogoText(*model.imagenLogo, locale));
  if (model.fields.empty()) return out + "/>";
  out += '>';
  for (const FieldToSave& field : model.fields) AppendField(out, field, locale);
  return out + "</Modelo>";
}

}  // namespace

std::u16string_view ModelTexts::Attribute(std::u16string_view name) const {
  for (const Property& attribute : attributes)
    if (attribute.name == name) return attribute.text;
  return {};
}

// The root's content in order, each part as it stands in the file: a save touches no model but its own.
struct ModelDocument::Tree {
  struct Piece {
    std::string_view bytes;
    std::optional<double> number;  // of a model
  };

  std::string file;
  std::deque<std::string> added;  // models that were saved; a deque never moves them
  bool parsed = true;
  bool hasRoot = true;
  std::string_view rootTag = "<Modelos";
  std::string_view rootName = "Modelos";
  std::vector<Piece> pieces;

  explicit Tree(std::string_view bytes);
  void AddText(const char* begin, const char* end);
  [[nodiscard]] std::vector<Piece>::const_iterator Find(std::int32_t numero) const {
    return std::find_if(pieces.begin(), pieces.end(),
                        [numero](const Piece& piece) { return piece.number == numero; });
  }
  void RequireRoot() const {
    if (!hasRoot) throw RuntimeError(ErrorNumber::ObjectNotSet);
  }
};

ModelDocument::Tree::Tree(std::string_view bytes) : file(bytes) {
  if (file.empty()) return;
  const XmlOutline outline = Outline(file);
  parsed = outline.shape != XmlShape::IllFormed;
  hasRoot = outline.shape == XmlShape::RootComesFirst;
  if (!hasRoot) return;
  rootTag = outline.rootTag.substr(0, outline.rootTag.find_last_not_of(kBlanks) + 1);
  rootName = outline.rootName;
  const char* done = outline.content.data();
  for (const XmlOutline::Child& child : outline.children) {
    AddText(done, child.whole.data());
    pieces.push_back({child.whole, NumberOf(child)});
    done = child.whole.data() + child.whole.size();
  }
  AddText(done, outline.content.data() + outline.content.size());
}

// What stands between the models: comments, and white space, which is not kept.
void ModelDocument::Tree::AddText(const char* begin, const char* end) {
  const std::string_view text(begin, end);
  if (text.find_first_not_of(kBlanks) != std::string_view::npos) pieces.push_back({text, std::nullopt});
}

ModelDocument::ModelDocument(std::unique_ptr<Tree> tree) : tree_(std::move(tree)) {}
ModelDocument::ModelDocument(ModelDocument&&) noexcept = default;
ModelDocument& ModelDocument::operator=(ModelDocument&&) noexcept = default;
ModelDocument::~ModelDocument() = default;

ModelDocument ModelDocument::Parse(std::string_view bytes) {
  return ModelDocument(std::make_unique<Tree>(bytes));
}

std::optional<ModelTexts> ModelDocument::Find(std::int32_t numero) const {
  if (!tree_->parsed) throw RuntimeError(ErrorNumber::ObjectNotSet);
  const auto found = tree_->Find(numero);
  if (found == tree_->pieces.end()) return std::nullopt;
  return ReadModel(found->bytes);
}

void ModelDocument::Replace(const ModelToSave& model, const Locale& locale) {
  tree_->RequireRoot();
  tree_->added.push_back(Written(model, locale));
  if (const auto earlier = tree_->Find(model.numero); earlier != tree_->pieces.end())
    tree_->pieces.erase(earlier);
  tree_->pieces.push_back({tree_->added.back(), model.numero});
}

std::string ModelDocument::Serialize() const {
  tree_->RequireRoot();
  std::string out(tree_->rootTag);
  if (tree_->pieces.empty()) return out + "/>";
  std::size_t size = out.size() + tree_->rootName.size() + 4;
  for (const Tree::Piece& piece : tree_->pieces) size += piece.bytes.size();
  out.reserve(size);
  out += '>';
  for (const Tree::Piece& piece : tree_->pieces) out += piece.bytes;
  return out.append("</").append(tree_->rootName).append(">");
}

}  // namespace qm::model
