#include "print/label_sheets.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "data/value_lookup.h"
#include "print/field_printer.h"
#include "print/field_reader.h"
#include "print/label_options.h"
#include "print/page_settings.h"
#include "print/printer_page.h"

namespace qm::print {

namespace {

int FilledRows(const data::PrintJob& job) {
  const auto end = std::find(job.rows.begin(), job.rows.end(), std::nullopt);
  return static_cast<int>(end - job.rows.begin());
}

// The fields of a label after one another, label after label. What a field does not say it has from the one
// before it, so only a copy's first label can differ from its others: the states of the second one are kept.
class LabelFields {
 public:
  LabelFields(const model::ModelTexts& model, const runtime::Locale& locale, platform::Font font)
      : model_(model), locale_(locale) {
    current_.font = std::move(font);
    lasting_.reserve(model.fields.size());
  }

  // A copy that a failing printer cut short leaves standing what the last field printed had.
  void StartCopy() {
    if (labels_ > 1 && !lasting_.empty()) current_ = lasting_[last_];
    labels_ = 0;
    lasting_.clear();
  }

  template <typename Print>
  void ForEach(Print&& print) {
    const bool read = labels_ < 2;
    for (std::size_t i = 0; i < model_.fields.size(); ++i) {
      last_ = i;
      if (read) ReadField(model_.fields[i], locale_, current_);
      if (read && labels_ == 1) lasting_.push_back(current_);
      print(read ? current_ : lasting_[i]);
    }
    if (read) ++labels_;
  }

 private:
  const model::ModelTexts& model_;
  const runtime::Locale& locale_;
  FieldState current_;
  std::vector<FieldState> lasting_;
  std::size_t last_ = 0;  // the field that was printed last
  int labels_ = 0;
};

// A run over all labels, copy after copy, on one printer.
class LabelRun {
 public:
  LabelRun(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model,
           const PageSettings& label, const LabelOptions& options, platform::PrinterSurface& surface)
      : label_(label),
        options_(options),
        rows_(FilledRows(job)),
        surface_(surface),
        lookup_(job, environment.prompts, environment.clock, environment.locale),
        printer_(surface, environment.files, environment.pictures),
        fields_(model, environment.locale, printer_.SurfaceFont()) {}

  // On the sheet that was begun and on as many more as it takes.
  void PrintLabels(std::int16_t copy, const platform::Picture* background) {
    fields_.StartCopy();
    const int labelsPerSheet = options_.across * options_.down;
    for (int row = 0; row < rows_; ++row) {
      const int place = row % labelsPerSheet;
      if (place == 0 && row > 0) {
        surface_.NewPage();
        PaintBackground(surface_, background);
      }
      PrintLabel(copy, row, CornerOf(place));
    }
  }

 private:
  // The top margin is a gap above each row; the left margin is the sheet's.
  [[nodiscard]] platform::Point CornerOf(int place) const {
    const int column = place % options_.across;
    const int row = place / options_.across;
    return {column * label_.width + options_.leftMargin,
            row * label_.height + (row + 1) * options_.topMargin};
  }

  void PrintLabel(std::int16_t copy, int row, platform::Point corner) {
    fields_.ForEach([&](const FieldState& field) {
      std::int16_t kind = data::kPlainText;
      const std::u16string value = lookup_.ObtenerValorFila(field.descripcion, copy, kind, row);
      printer_.Print(field, {corner.x + field.left, corner.y + field.top}, value, kind);
    });
  }

  const PageSettings& label_;
  const LabelOptions& options_;
  int rows_;
  platform::PrinterSurface& surface_;
  data::ValueLookup lookup_;
  FieldPrinter printer_;
  LabelFields fields_;
};

}  // namespace

bool PrintLabels(data::PrintJob& job, const Environment& environment, const model::ModelTexts& model) {
  const auto options = AskLabelOptions(environment);
  if (!options) return false;
  const auto settings = ReadPageSettings(model, job, environment, Output::Printer);
  if (!settings) return false;
  if (settings->copies < 1 || FilledRows(job) == 0) return true;

  const auto printer = OpenPrinter(*settings, environment);
  LabelRun run(job, environment, model, *settings, *options, *printer);
  for (int copy = 1; copy <= settings->copies; ++copy) {
    BeginJob(*printer, options->sheetWidth, options->sheetHeight, environment);
    const auto background = LoadBackground(*settings, environment);
    PaintBackground(*printer, background.get());
    UntilThePrinterFails([&] { run.PrintLabels(static_cast<std::int16_t>(copy), background.get()); });
    printer->EndDoc();
  }
  return true;
}

}  // namespace qm::print
