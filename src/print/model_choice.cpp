#include "print/model_choice.h"

#include "runtime/error.h"
#include "runtime/numbers.h"

namespace qm::print {

namespace {

using runtime::RuntimeError;

constexpr std::int32_t kDefaultModel = 1;

// A model number as the host gave it, as a number; nothing and "" count as 0.
struct NumberReader {
  const runtime::Locale& locale;

  double operator()(std::monostate) const { return 0; }
  double operator()(data::NullNumber) const { throw RuntimeError(runtime::ErrorNumber::InvalidUseOfNull); }
  double operator()(double number) const { return number; }
  double operator()(const std::u16string& text) const {
    return text.empty() ? 0 : runtime::CDbl(text, locale);
  }
};

}  // namespace

std::int32_t WantedModel(const data::PrintJob& job, const runtime::Locale& locale) {
  const double number = std::visit(NumberReader{locale}, job.numeroModelo);
  return number == 0 ? kDefaultModel : runtime::CLng(number);
}

model::ModelTexts FindCurrentModel(const data::PrintJob& job, const Environment& environment) {
  const std::u16string& name = environment.modelFile.name;
  if (name.empty()) throw RuntimeError(50101, u"Debe asignar un nombre de archivo a XMLFileName");

  const auto bytes = environment.files.Read(name);
  if (!bytes || bytes->empty())
    throw RuntimeError(50100, u"No existen modelos de impresión...debe crearlos primero");

  const std::int32_t number = WantedModel(job, environment.locale);
  auto model = model::ModelDocument::Parse(*bytes).Find(number);
  if (!model) throw RuntimeError(50102, u"No existe el modelo de impresión...debe crearlo primero");
  return *std::move(model);
}

}  // namespace qm::print
