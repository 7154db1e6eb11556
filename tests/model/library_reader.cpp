#include "tests/model/library_reader.h"

#include <algorithm>
#include <pugixml.hpp>

#include "runtime/code_page.h"

namespace qm::model {
namespace {

using pugi::xml_node;

// White space between elements is dropped; a leaf keeps its text even when it is nothing else.
constexpr unsigned kParseOptions = pugi::parse_pi | pugi::parse_comments | pugi::parse_cdata |
                                   pugi::parse_escapes | pugi::parse_eol | pugi::parse_wconv_attribute |
                                   pugi::parse_ws_pcdata_single;

std::string_view LocalName(std::string_view name) { return name.substr(name.find(':') + 1); }

void CollectText(xml_node element, std::string& text) {
  for (const xml_node child : element.children()) {
    const bool isText = child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata;
    if (isText) text += child.value();
    if (!isText) CollectText(child, text);
  }
}

std::vector<FieldText> FieldTexts(xml_node campo) {
  std::vector<FieldText> texts;
  for (const xml_node child : campo.children()) {
    const auto* const known =
        std::find(kFieldElementNames.begin(), kFieldElementNames.end(), LocalName(child.name()));
    if (child.type() != pugi::node_element || known == kFieldElementNames.end()) continue;
    std::string text;
    CollectText(child, text);
    texts.push_back({static_cast<FieldElement>(known - kFieldElementNames.begin()), runtime::FromUtf8(text)});
  }
  return texts;
}

}  // namespace

ModelTexts ReadByLibrary(std::string_view element) {
  const std::string bytes = runtime::ToUtf8(runtime::FromBytes(element));
  pugi::xml_document document;
  ModelTexts texts;
  if (!document.load_buffer(bytes.data(), bytes.size(), kParseOptions, pugi::encoding_utf8)) return texts;
  const xml_node modelo = document.first_child();
  for (const pugi::xml_attribute attribute : modelo.attributes())
    texts.attributes.push_back(
        {runtime::FromUtf8(LocalName(attribute.name())), runtime::FromUtf8(attribute.value())});
  for (const xml_node child : modelo.children())
    if (child.type() == pugi::node_element && LocalName(child.name()) == "Campo")
      texts.fields.push_back(FieldTexts(child));
  return texts;
}

bool SameTexts(const ModelTexts& a, const ModelTexts& b) {
  const auto sameField = [](const auto& x, const auto& y) {
    return std::ranges::equal(
        x, y, [](const auto& p, const auto& q) { return p.element == q.element && p.text == q.text; });
  };
  const auto sameAttribute = [](const auto& p, const auto& q) {
    return p.name == q.name && p.text == q.text;
  };
  return std::ranges::equal(a.attributes, b.attributes, sameAttribute) &&
         std::ranges::equal(a.fields, b.fields, sameField);
}

}  // namespace qm::model
