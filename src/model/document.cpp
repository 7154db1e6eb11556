#include "model/document.h"

#include <algorithm>
#include <charconv>
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
bool IsNumber(std::string_view text, std::int32_t number) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  if (digits.find_first_not_of("0123456789.") != std::string_view::npos) return false;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() && value == number;
}

// The first child element of any name with that number.
xml_node FindModel(xml_node root, std::int32_t numero) {
  for (const xml_node child : root.children()) {
    const xml_attribute attribute = child.attribute("Numero");
    if (attribute && child.type() == pugi::node_element && IsNumber(attribute.value(), numero)) return child;
  }
  return {};
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

// ---- Building a model

template <typename Handle>
Handle Made(Handle handle) {
  if (!handle) throw RuntimeError(ErrorNumber::OutOfMemory);
  return handle;
}

void Check(bool stored) {
  if (!stored) throw RuntimeError(ErrorNumber::OutOfMemory);
}

void SetAttribute(xml_node element, const char* name, std::u16string_view text) {
  Check(Made(element.append_attribute(name)).set_value(XmlUtf8(text).c_str()));
}

void AddChildNode(xml_node parent, const char* name, std::u16string_view text) {
  xml_node child = Made(parent.append_child(name));
  if (text.empty()) return;
  Check(Made(child.append_child(pugi::node_pcdata)).set_value(XmlUtf8(text).c_str()));
}

std::u16string LogoText(const LogoBox& logo, const Locale& locale) {
  std::u16string text = logo.path;
  for (const float number : {logo.left, logo.top, logo.width, logo.height})
    text.append(u"|").append(runtime::ToText(number, locale));
  return text;
}

void AddField(xml_node modelo, const FieldToSave& field, const Locale& locale) {
  xml_node campo = Made(modelo.append_child("Campo"));
  AddChildNode(campo, "Descripcion", field.descripcion);
  AddChildNode(campo, "Top", runtime::ToText(field.top, locale));
  AddChildNode(campo, "Left", runtime::ToText(field.left, locale));
  AddChildNode(campo, "Width", runtime::ToText(field.width, locale));
  AddChildNode(campo, "Height", runtime::ToText(field.height, locale));
  AddChildNode(campo, "ForeColor", runtime::ToText(field.foreColor));
  AddChildNode(campo, "Bold", runtime::ToText(field.bold, locale));
  AddChildNode(campo, "FontSize", runtime::ToText(field.fontSize, locale));
  AddChildNode(campo, "FontItalic", runtime::ToText(field.fontItalic, locale));
  AddChildNode(campo, "Alignment", runtime::ToText(field.alignment));
  AddChildNode(campo, "Underline", runtime::ToText(field.underline, locale));
  AddChildNode(campo, "FontName", field.fontName);
  SetAttribute(campo, "Key", runtime::ToText(field.key));
}

void AddModel(xml_node root, const ModelToSave& model, const Locale& locale) {
  xml_node modelo = Made(root.append_child("Modelo"));
  const std::u16string_view etiqueta = model.esEtiqueta ? u"1" : u"0";
  SetAttribute(modelo, "Numero", runtime::ToText(model.numero));
  SetAttribute(modelo, "Width", runtime::ToText(model.width, locale));
  SetAttribute(modelo, "Height", runtime::ToText(model.height, locale));
  SetAttribute(modelo, "Copias", model.copias);
  SetAttribute(modelo, "Printer", model.printer);
  SetAttribute(modelo, "EsEtiqueta", etiqueta);
  SetAttribute(modelo, "Logo", etiqueta);  // the label flag once more: files have always had it so
  if (!model.imagen.empty()) SetAttribute(modelo, "Imagen", model.imagen);
  if (model.imagenLogo) SetAttribute(modelo, "ImagenLogo", LogoText(*model.imagenLogo, locale));
  for (const FieldToSave& field : model.fields) AddField(modelo, field, locale);
}

// ---- Writing

void WriteNode(std::string& out, xml_node node);

void WriteElement(std::string& out, xml_node element) {
  const std::string_view name = element.name();
  out += '<';
  AppendInCodePage(out, name, Escape::None);
  for (xml_attribute attribute = element.first_attribute(); attribute;
       attribute = attribute.next_attribute()) {
    out += ' ';
    AppendInCodePage(out, attribute.name(), Escape::None);
    out += "=\"";
    AppendInCodePage(out, attribute.value(), Escape::AttributeValue);
    out += '"';
  }
  xml_node child = element.first_child();
  if (!child) {
    out += "/>";
    return;
  }
  out += '>';
  for (; child; child = child.next_sibling()) WriteNode(out, child);
  out += "</";
  AppendInCodePage(out, name, Escape::None);
  out += '>';
}

void WriteText(std::string& out, xml_node node) {
  std::string_view text = node.value();
  const bool onlyBlanks = text.find_first_not_of(kBlanks) == std::string_view::npos;
  if (onlyBlanks && !text.empty() && (node.previous_sibling() || node.next_sibling())) {
    out.append("&#").append(std::to_string(text.front())).append(";");  // else a reader would drop it
    text.remove_prefix(1);
  }
  AppendInCodePage(out, text, Escape::Text);
}

void WriteEnclosed(std::string& out, std::string_view before, std::string_view text, std::string_view after) {
  out += before;
  AppendInCodePage(out, text, Escape::None);
  out += after;
}

void WriteNode(std::string& out, xml_node node) {
  switch (node.type()) {
    case pugi::node_element:
      return WriteElement(out, node);
    case pugi::node_pcdata:
      return WriteText(out, node);
    case pugi::node_cdata:
      return WriteEnclosed(out, "<![CDATA[", node.value(), "]]>");
    case pugi::node_comment:
      return WriteEnclosed(out, "<!--", node.value(), "-->");
    case pugi::node_pi:
      WriteEnclosed(out, "<?", node.name(), *node.value() != '\0' ? " " : "");
      return WriteEnclosed(out, "", node.value(), "?>");
    default:
      return;  // nothing else is read
  }
}

}  // namespace

std::u16string_view ModelTexts::Attribute(std::u16string_view name) const {
  for (const Property& attribute : attributes)
    if (attribute.name == name) return attribute.text;
  return {};
}

struct ModelDocument::Tree {
  std::string text;  // parsed in place: the nodes' texts lie in it
  pugi::xml_document document;
  bool parsed = false;
  xml_node root;  // the first node, when it is an element

  void Load(std::string_view bytes);
  [[nodiscard]] xml_node RootElement() const;
};

void ModelDocument::Tree::Load(std::string_view bytes) {
  if (bytes.empty()) {
    root = Made(document.append_child("Modelos"));
    parsed = true;
    return;
  }
  const XmlShape shape = Examine(bytes);
  parsed = shape != XmlShape::IllFormed;
  if (shape != XmlShape::RootComesFirst) return;
  text = Utf8FromCodePage(bytes);
  const pugi::xml_parse_result result =
      document.load_buffer_inplace(text.data(), text.size(), kParseOptions, pugi::encoding_utf8);
  if (result.status == pugi::status_out_of_memory) throw RuntimeError(ErrorNumber::OutOfMemory);
  parsed = result.status == pugi::status_ok;
  if (parsed) root = document.first_child();
}

xml_node ModelDocument::Tree::RootElement() const {
  if (!root) throw RuntimeError(ErrorNumber::ObjectNotSet);
  return root;
}

ModelDocument::ModelDocument(std::unique_ptr<Tree> tree) : tree_(std::move(tree)) {}
ModelDocument::ModelDocument(ModelDocument&&) noexcept = default;
ModelDocument& ModelDocument::operator=(ModelDocument&&) noexcept = default;
ModelDocument::~ModelDocument() = default;

ModelDocument ModelDocument::Parse(std::string_view bytes) {
  auto tree = std::make_unique<Tree>();
  tree->Load(bytes);
  return ModelDocument(std::move(tree));
}

std::optional<ModelTexts> ModelDocument::Find(std::int32_t numero) const {
  if (!tree_->parsed) throw RuntimeError(ErrorNumber::ObjectNotSet);
  const xml_node model = FindModel(tree_->root, numero);
  if (!model) return std::nullopt;
  return ReadModel(model);
}

void ModelDocument::Replace(const ModelToSave& model, const Locale& locale) {
  xml_node root = tree_->RootElement();
  if (const xml_node earlier = FindModel(root, model.numero)) root.remove_child(earlier);
  AddModel(root, model, locale);
}

std::string ModelDocument::Serialize() const {
  std::string out;
  out.reserve(tree_->text.size() + 0x4000);
  WriteElement(out, tree_->RootElement());
  return out;
}

}  // namespace qm::model
