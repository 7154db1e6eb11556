// Any bytes as a model file: they are read or refused, and a file that is
// read survives a save.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/document.h"
#include "model/model_reader.h"
#include "model/well_formed.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "tests/model/same_texts.h"

namespace {

using qm::model::ModelDocument;
using qm::model::ModelTexts;
using qm::model::ModelToSave;

constexpr std::int32_t kOther = 1;
constexpr std::int32_t kSaved = 2;

void Require(bool condition) {
  if (!condition) std::abort();
}

bool Same(const std::optional<ModelTexts>& a, const std::optional<ModelTexts>& b) {
  return a && b ? qm::model::SameTexts(*a, *b) : !a && !b;
}

std::u16string WithoutForbidden(std::u16string text) {
  std::erase_if(text, [](char16_t c) { return c < 0x20 && c != u'\t' && c != u'\n' && c != u'\r'; });
  return text;
}

// The file's own bytes serve as the texts of a model to save.
ModelToSave ModelOf(std::string_view bytes) {
  const std::u16string text = qm::runtime::FromBytes(bytes.substr(0, 200));
  ModelToSave model;
  model.numero = kSaved;
  model.printer = text;
  model.imagen = text;
  model.fields.resize(2);
  model.fields[0].descripcion = text;
  model.fields[1].fontName = text;
  return model;
}

void SaveAndReadAgain(ModelDocument document, std::string_view bytes,
                      const std::optional<ModelTexts>& other) {
  const ModelToSave model = ModelOf(bytes);
  while (document.Find(kSaved)) {  // a save removes the first only; the saved one must become the first
    const std::string before = document.Serialize();
    document.Replace(model, qm::runtime::Locale::Spanish());
    if (document.Serialize() == before) break;
  }
  document.Replace(model, qm::runtime::Locale::Spanish());
  const std::string saved = document.Serialize();
  const ModelDocument again = ModelDocument::Parse(saved);
  Require(again.Serialize() == saved);
  Require(Same(again.Find(kOther), other));
  const auto read = again.Find(kSaved);
  Require(read && read->Attribute(u"Printer") == WithoutForbidden(model.printer));
  Require(read->fields.size() == 2 && read->fields[0].front().text == WithoutForbidden(model.printer));
  Require(read->fields[1].back().text == WithoutForbidden(model.printer));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const qm::model::XmlOutline outline = qm::model::Outline(bytes);
  const auto shape = outline.shape;
  for (const auto& child : outline.children) (void)qm::model::ReadModel(child.whole);  // the library takes it
  ModelDocument document = ModelDocument::Parse(bytes);
  std::optional<ModelTexts> other;
  try {
    other = document.Find(kOther);
    Require(size == 0 || shape != qm::model::XmlShape::IllFormed);
  } catch (const qm::runtime::RuntimeError& error) {
    Require(error.Is(qm::runtime::ErrorNumber::ObjectNotSet) && shape == qm::model::XmlShape::IllFormed);
    return 0;
  }
  if (size == 0 || shape == qm::model::XmlShape::RootComesFirst)
    SaveAndReadAgain(std::move(document), bytes, other);
  return 0;
}
