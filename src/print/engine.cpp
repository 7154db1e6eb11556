#include "print/engine.h"

#include "data/value_lookup.h"
#include "print/field_printer.h"
#include "print/field_reader.h"
#include "print/model_choice.h"
#include "print/page_settings.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace qm::print {

namespace {

constexpr double kTwipsPerCm = 567;
constexpr double kExtraHeight =
    10;  // twips that a printer's paper is longer than the model's page, on purpose

// One run over a model: what a field leaves standing holds for the next field and the next copy.
class Composition {
 public:
  Composition(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model,
              const PageSettings& settings, platform::Surface& surface)
      : environment_(environment),
        model_(model),
        settings_(settings),
        surface_(surface),
        lookup_(job, environment.prompts, environment.clock, environment_.locale),
        printer_(surface, environment.files, environment.pictures) {
    field_.font = printer_.SurfaceFont();
  }

  void PaintBackground();
  void PrintFields(std::int16_t copy);

 private:
  const Environment& environment_;
  const model::ModelTexts& model_;
  const PageSettings& settings_;
  platform::Surface& surface_;
  data::ValueLookup lookup_;
  FieldPrinter printer_;
  FieldState field_;
};

void Composition::PaintBackground() {
  if (!settings_.background) return;
  const auto picture = environment_.pictures.Load(*settings_.background);
  surface_.PaintPicture(*picture, {0, 0});
}

// A printer that fails ends the fields of a copy; the copy goes out as it stands.
void Composition::PrintFields(std::int16_t copy) {
  try {
    for (const auto& children : model_.fields) {
      ReadField(children, environment_.locale, field_);
      std::int16_t kind = data::kPlainText;
      const std::u16string value = lookup_.ObtenerValor(field_.descripcion, copy, kind);
      const platform::Point topLeft{static_cast<double>(field_.left), static_cast<double>(field_.top)};
      printer_.Print(field_, topLeft, value, kind);
    }
  } catch (const runtime::RuntimeError& error) {
    if (!error.Is(runtime::ErrorNumber::PrinterError)) throw;
  }
}

void SetPaper(const PageSettings& settings, const Environment& environment,
              platform::PrinterSurface& printer) {
  if (!environment.spooler.SupportsForms()) return printer.SetPageSize(settings.width, settings.height);
  platform::Paper paper{.code = 0,
                        .formName = std::u16string(kFormName),
                        .widthTwips = settings.width,
                        .heightTwips = settings.height + kExtraHeight};
  PaperForms forms(environment.paperForms, environment.spooler, environment.prompts);
  paper.code = forms.PaperCodeForSize(printer.DeviceName(), paper.widthTwips / kTwipsPerCm,
                                      paper.heightTwips / kTwipsPerCm, kFormName);
  printer.SetPaper(paper);
}

std::unique_ptr<platform::PrinterSurface> OpenPrinter(const PageSettings& settings,
                                                      const Environment& environment) {
  return settings.printer ? environment.printers.Open(*settings.printer) : environment.printers.OpenDefault();
}

}  // namespace

bool EsEtiqueta(const data::PrintJob& job, const Environment& environment) {
  return runtime::Trim(FindCurrentModel(job, environment).Attribute(u"EsEtiqueta")) == u"1";
}

bool Print(data::PrintJob& job, const Environment& environment) {
  const model::ModelTexts model = FindCurrentModel(job, environment);
  const auto settings = ReadPageSettings(model, job, environment, Output::Printer);
  if (!settings) return false;
  if (settings->copies < 1) return true;  // also for a model that does not say how many

  const auto printer = OpenPrinter(*settings, environment);
  Composition composition(job, environment, model, *settings, *printer);
  for (int copy = 1; copy <= settings->copies; ++copy) {
    SetPaper(*settings, environment, *printer);
    printer->PrintText({0, 0}, u" ");  // starts the job, so that an empty model gives a page too
    composition.PaintBackground();
    composition.PrintFields(static_cast<std::int16_t>(copy));
    printer->EndDoc();
  }
  return true;
}

bool Draw(data::PrintJob& job, const Environment& environment, platform::Surface& surface) {
  const model::ModelTexts model = FindCurrentModel(job, environment);
  const auto settings = ReadPageSettings(model, job, environment, Output::Drawing);
  if (!settings) return false;

  surface.SetPageSize(settings->width, settings->height);
  Composition composition(job, environment, model, *settings, surface);
  composition.PaintBackground();
  composition.PrintFields(data::kNoCopyNumbering);
  return true;
}

}  // namespace qm::print
