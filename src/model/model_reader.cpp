#include "model/model_reader.h"

#include <cstddef>
#include <pugixml.hpp>

#include "model/xml_text.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace qm::model {
namespace {

using pugi::xml_node;
using runtime::ErrorNumber;
using runtime::RuntimeError;

// White space between elements is dropped; a leaf keeps its text even when it is nothing else.
constexpr unsigned kParseOptions = pugi::parse_pi | pugi::parse_comments | pugi::parse_cdata |
                                   pugi::parse_escapes | pugi::parse_eol | pugi::parse_wconv_attribute |
                                   pugi::parse_ws_pcdata_single;

std::string_view LocalName(std::string_view name) { return name.substr(name.find(':') + 1); }

class Parsed {
 public:
  explicit Parsed(std::string_view bytes) : text_(Utf8FromCodePage(bytes)) {
    const auto result =
        document_.load_buffer_inplace(text_.data(), text_.size(), kParseOptions, pugi::encoding_utf8);
    if (result.status == pugi::status_out_of_memory) throw RuntimeError(ErrorNumber::OutOfMemory);
    if (!result) throw RuntimeError(ErrorNumber::ObjectNotSet);
  }

  [[nodiscard]] xml_node Element() const { return document_.first_child(); }

 private:
  std::string text_;  // the nodes' texts lie in it
  pugi::xml_document document_;
};

bool IsText(xml_node node) { return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata; }

// The texts of an element and of the elements inside it, whose nesting the outline has limited.
void CollectText(xml_node element, std::string& text) {
  for (const xml_node child : element.children()) {
    if (IsText(child)) {
      text += child.value();
    } else {
      CollectText(child, text);
    }
  }
}

std::u16string TextOf(xml_node element) {
  const xml_node only = element.first_child();
  if (!only) return {};
  if (IsText(only) && !only.next_sibling()) return runtime::FromUtf8(only.value());
  std::string text;
  CollectText(element, text);
  return runtime::FromUtf8(text);
}

// Looked for from behind the one before: elements mostly stand in their usual order.
std::optional<FieldElement> ElementNamed(std::string_view name, std::size_t& likely) {
  for (std::size_t tried = 0; tried < kFieldElementNames.size(); ++tried) {
    const std::size_t element = likely;
    likely = (likely + 1) % kFieldElementNames.size();
    if (kFieldElementNames[element] == name) return static_cast<FieldElement>(element);
  }
  return std::nullopt;
}

std::vector<FieldText> FieldTexts(xml_node campo) {
  std::vector<FieldText> texts;
  texts.reserve(kFieldElementNames.size());
  std::size_t likely = 0;
  for (const xml_node child : campo.children()) {
    if (child.type() != pugi::node_element) continue;
    if (const auto element = ElementNamed(LocalName(child.name()), likely))
      texts.push_back({*element, TextOf(child)});
  }
  return texts;
}

}  // namespace

ModelTexts ReadModel(std::string_view element) {
  const Parsed parsed(element);
  ModelTexts texts;
  for (const pugi::xml_attribute attribute : parsed.Element().attributes())
    texts.attributes.push_back(
        {runtime::FromUtf8(LocalName(attribute.name())), runtime::FromUtf8(attribute.value())});
  for (const xml_node child : parsed.Element().children())
    if (child.type() == pugi::node_element && LocalName(child.name()) == "Campo")
      texts.fields.push_back(FieldTexts(child));
  return texts;
}

std::string AttributeOf(std::string_view element, const char* name) {
  return Parsed(element).Element().attribute(name).value();
}

}  // namespace qm::model
