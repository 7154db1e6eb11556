// Any model file as a layout of the designer: what can be read can be saved, and the saved model has the same
// fields.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "designer/model_store.h"
#include "runtime/error.h"

namespace {

using qm::designer::Layout;
using qm::model::ModelDocument;

constexpr std::int16_t kNumber = 1;

void Require(bool condition) {
  if (!condition) std::abort();
}

Layout LayoutOf(const qm::model::ModelTexts& model, const qm::runtime::Locale& locale) {
  return qm::designer::ReadLayout(model, qm::designer::NewLayout(locale), locale,
                                  [](std::u16string_view) { return qm::designer::PicturePointer(); })
      .layout;
}

void ReadAndSave(const qm::model::ModelTexts& model, const qm::runtime::Locale& locale) {
  const Layout layout = LayoutOf(model, locale);
  ModelDocument document = ModelDocument::Parse("");
  document.Replace(qm::designer::ModelOf(layout, kNumber, u"C:\\Modelos\\"), locale);
  const auto saved = ModelDocument::Parse(document.Serialize()).Find(kNumber);
  Require(saved.has_value());
  const Layout again = LayoutOf(*saved, locale);
  Require(again.men.size() == layout.men.size());
  for (std::size_t i = 1; i < layout.men.size(); ++i) {
    Require(again.men[i]->caption == layout.men[i]->caption);
    Require(again.men[i]->alignment == layout.men[i]->alignment);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::optional<qm::model::ModelTexts> model;
  try {
    model = ModelDocument::Parse({reinterpret_cast<const char*>(data), size}).Find(kNumber);
  } catch (const qm::runtime::RuntimeError&) {
    return 0;
  }
  if (!model) return 0;
  ReadAndSave(*model, qm::runtime::Locale::Spanish());
  ReadAndSave(*model, qm::runtime::Locale::English());
  return 0;
}
