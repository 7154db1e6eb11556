#include "model/document.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <deque>
#include <pugixml.hpp>
#include <utility>

#include "model/well_formed.h"
#include "model/xml_text.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace qm::model {
namespace {

using pugi::xml_attribute;
using pugi::xml_node;
using runtime::ErrorNumber;
using runtime::Locale;
using runtime::RuntimeError;

constexpr std::string_view kBlanks = " \t\r\n";

// White space between elements is dropped; a leaf keeps its text even when it is nothing else.
constexpr unsigned kParseOptions = pugi::parse_pi | pugi::parse_comments | pugi::parse_cdata |
                                   pugi::parse_escapes | pugi::parse_eol | pugi::parse_wconv_attribute |
                                   pugi::parse_ws_pcdata_single;

std::string_view LocalName(std::string_view name) { return name.substr(name.find(':') + 1); }

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

// An element parsed on its own.
struct Element {
  explicit Element(std::string_view bytes) : text(Utf8FromCodePage(bytes)) {
    const auto result =
        document.load_buffer_inplace(text.data(), text.size(), kParseOptions, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory) throw RuntimeError(ErrorNumber::OutOfMemory);
    if (!result) throw RuntimeError(ErrorNumber::ObjectNotSet);
  }

  std::string text;  // the nodes' texts lie in it
  pugi::xml_document document;
};

std::optional<double> NumberOf(const XmlOutline::Child& child) {
  if (child.numero.find('&') == std::string_view::npos) return NumberOf(child.numero);
  return NumberOf(std::string_view(Element(child.whole).document.first_child().attribute("Numero").value()));
}

// ---- Reading

bool IsText(xml_node node) { return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata; }

// The texts of an element and of the elements inside it, which are at most kMaxDepth deep.
void CollectText(xml_node element, std::string& text) {
  for (const xml_node child : element.children()) {
    if (IsText(child)) {
      text += child.value();
    } else {
      CollectText(child, text);
    }
  }
}

Property ElementProperty(xml_node element) {
  std::u16string name = runtime::FromUtf8(LocalName(element.name()));
  const xml_node only = element.first_child();
  if (only && IsText(only) && !only.next_sibling()) return {std::move(name), runtime::FromUtf8(only.value())};
  std::string text;
  CollectText(element, text);
  return {std::move(name), runtime::FromUtf8(text)};
}

std::vector<Property> FieldProperties(xml_node campo) {
  std::vector<Property> properties;
  for (const xml_node child : campo.children())
    if (child.type() == pugi::node_element) properties.push_back(ElementProperty(child));
  return properties;
}

ModelTexts ReadModel(xml_node modelo) {
  ModelTexts texts;
  for (const xml_attribute attribute : modelo.attributes())
    texts.attributes.push_back(
        {runtime::FromUtf8(LocalName(attribute.name())), runtime::FromUtf8(attribute.value())});
  for (const xml_node child : modelo.children())
    if (child.type() == pugi::node_element && LocalName(child.name()) == "Campo")
      texts.fields.push_back(FieldProperties(child));
  return texts;
}

// ---- Writing

void AppendAttribute(std::string& out, std::string_view name, std::u16string_view text) {
  out.append(" ").append(name).append("=\"");
  AppendEscaped(out, text, Escape::AttributeValue);
  out += '"';
}

void AppendChild(std::string& out, std::string_view name, std::u16string_view text) {
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
  AppendChild(out, "Descripcion", field.descripcion);
  AppendChild(out, "Top", runtime::ToText(field.top, locale));
  AppendChild(out, "Left", runtime::ToText(field.left, locale));
  AppendChild(out, "Width", runtime::ToText(field.width, locale));
  AppendChild(out, "Height", runtime::ToText(field.height, locale));
  AppendChild(out, "ForeColor", runtime::ToText(field.foreColor));
  AppendChild(out, "Bold", runtime::ToText(field.bold, locale));
  AppendChild(out, "FontSize", runtime::ToText(field.fontSize, locale));
  AppendChild(out, "FontItalic", runtime::ToText(field.fontItalic, locale));
  AppendChild(out, "Alignment", runtime::ToText(field.alignment));
  AppendChild(out, "Underline", runtime::ToText(field.underline, locale));
  AppendChild(out, "FontName", field.fontName);
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
  return ReadModel(Element(found->bytes).document.first_child());
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
