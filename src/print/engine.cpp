#include "print/engine.h"

#include "data/value_lookup.h"
#include "print/field_printer.h"
#include "print/field_reader.h"
#include "print/page_settings.h"
#include "print/printer_page.h"
#include "runtime/strings.h"

namespace qm::print {

namespace {

// One run over a model's fields: what a field leaves standing holds for the next one and for the next copy.
class Composition {
 public:
  Composition(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model,
              platform::Surface& surface)
      : locale_(environment.locale),
        model_(model),
        lookup_(job, environment.prompts, environment.clock, environment.locale),
        printer_(surface, environment.files, environment.pictures) {
    field_.font = printer_.SurfaceFont();
  }

  void PrintFields(std::int16_t copy) {
    for (const auto& elements : model_.fields) {
      ReadField(elements, locale_, field_);
      std::int16_t kind = data::kPlainText;
      const std::u16string value = lookup_.ObtenerValor(field_.descripcion, copy, kind);
      const platform::Point topLeft{static_cast<double>(field_.left), static_cast<double>(field_.top)};
      printer_.Print(field_, topLeft, value, kind);
    }
  }

 private:
  const runtime::Locale& locale_;
  const model::ModelTexts& model_;
  data::ValueLookup lookup_;
  FieldPrinter printer_;
  FieldState field_;
};

}  // namespace

bool EsEtiqueta(const model::ModelTexts& model) {
  return runtime::Trim(model.Attribute(u"EsEtiqueta")) == u"1";
}

bool Print(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model) {
  const auto settings = ReadPageSettings(model, job, environment, Output::Printer);
  if (!settings) return false;
  if (settings->copies < 1) return true;  // also for a model that does not say how many

  const auto printer = OpenPrinter(*settings, environment);
  Composition composition(job, environment, model, *printer);
  for (int copy = 1; copy <= settings->copies; ++copy) {
    BeginJob(*printer, settings->width, settings->height, environment);
    PaintBackground(*printer, *settings, environment);
    UntilThePrinterFails([&] { composition.PrintFields(static_cast<std::int16_t>(copy)); });
    printer->EndDoc();
  }
  return true;
}

bool Draw(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model,
          platform::Surface& surface) {
  const auto settings = ReadPageSettings(model, job, environment, Output::Drawing);
  if (!settings) return false;

  surface.SetPageSize(settings->width, settings->height);
  PaintBackground(surface, *settings, environment);
  Composition composition(job, environment, model, surface);
  UntilThePrinterFails([&] { composition.PrintFields(data::kNoCopyNumbering); });
  return true;
}

}  // namespace qm::print
