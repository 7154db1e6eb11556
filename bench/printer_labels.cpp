// Sheets of labels on a printer: the label-sheet engine beside a program that makes the same drawing calls
// itself, sheet by sheet, sorted by font by hand. Goal: at most 1.2 times the time of those plain calls.
//   bench_printer_labels [PRINTER]     default: the default printer

#include <cstdio>

#include "bench/label_sheet.h"
#include "bench/raw_scene.h"
#include "bench/stopwatch.h"
#include "platform/win32/files.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printers.h"
#include "platform/win32/spooler.h"
#include "platform/win32/user_settings.h"
#include "print/label_sheets.h"
#include "print/model_choice.h"
#include "tests/fakes/fake_settings.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/scripted_prompts.h"

namespace {

using namespace qm;

constexpr int kAcross = 2;
constexpr int kDown = 8;
constexpr int kSheets = 40;
constexpr int kLabels = kSheets * kAcross * kDown;

class ChosenPrinter : public platform::win32::Win32Printers {
 public:
  explicit ChosenPrinter(std::u16string name) : name_(std::move(name)) {}
  std::unique_ptr<platform::PrinterSurface> OpenDefault() override { return Open(name_); }

 private:
  std::u16string name_;
};

struct World {
  fakes::MemoryFiles files;
  ChosenPrinter printers;
  platform::win32::Win32Spooler spooler;
  platform::win32::Win32Pictures pictures;
  fakes::ScriptedPrompts prompts;
  fakes::FakeSettings settings;
  platform::win32::Win32Clock clock;
  model::ModelFile modelFile;
  print::PaperFormState paperForms;
  data::PrintJob job;
  print::Environment environment{files,    printers, spooler,   pictures,   prompts,
                                 settings, clock,    modelFile, paperForms, runtime::Locale::Spanish()};

  explicit World(const std::u16string& device) : printers(device) {
    modelFile.SetName(u"C:\\Modelos\\etiquetas.xml");
    files.Replace(modelFile.name, bench::LabelModelBytes());
    for (int row = 0; row < kLabels; ++row) job.rows.emplace_back(bench::LabelRow(row));
  }

  void Print() { (void)print::PrintLabels(job, environment, print::FindCurrentModel(job, environment)); }
};

std::vector<bench::SceneField> SheetFields(int sheet) {
  std::vector<bench::SceneField> fields;
  for (int place = 0; place < kAcross * kDown; ++place) {
    for (std::size_t i = 0; i < std::size(bench::kLabelFields); ++i) {
      const bench::LabelField& field = bench::kLabelFields[i];
      bench::SceneField& scene = fields.emplace_back();
      scene.font = {runtime::FromUtf8(field.font), bench::kFontPoints, field.bold};
      scene.left = place % kAcross * bench::kLabelWidth + bench::kFieldLeft;
      scene.top =
          place / kAcross * bench::kLabelHeight + bench::kFieldTop + static_cast<int>(i) * bench::kFieldStep;
      scene.width = 5000;
      scene.text = field.kind == 3 ? u"1.234,50" : bench::CellValue(sheet * kAcross * kDown + place, i);
    }
  }
  return fields;
}

void PrintRaw(const std::u16string& device, const std::vector<bench::RawScene>& sheets) {
  const platform::win32::OwnedDc dc(CreateDCW(L"WINSPOOL", platform::win32::Wide(device), nullptr, nullptr));
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = L"raw";
  StartDocW(dc.Get(), &document);
  for (const bench::RawScene& sheet : sheets) {
    StartPage(dc.Get());
    sheet.Draw(dc.Get());
    EndPage(dc.Get());
  }
  EndDoc(dc.Get());
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  const std::u16string device = argc > 1 ? platform::win32::Text(argv[1])
                                         : platform::win32::Win32Printers().OpenDefault()->DeviceName();
  World world(device);
  const int dotsPerInch = [&] {
    const platform::win32::OwnedDc dc(
        CreateDCW(L"WINSPOOL", platform::win32::Wide(device), nullptr, nullptr));
    return GetDeviceCaps(dc.Get(), LOGPIXELSX);
  }();
  std::vector<bench::RawScene> sheets;
  for (int sheet = 0; sheet < kSheets; ++sheet) {
    sheets.emplace_back(SheetFields(sheet), dotsPerInch, DEFAULT_QUALITY);
    sheets.back().OrderByFont();
  }
  const std::vector<double> times =
      bench::FastestTurns(6, {[&] { world.Print(); }, [&] { PrintRaw(device, sheets); }});
  std::printf("%d labels: engine %.0f ms (%.0f labels a second), plain calls sorted by font %.0f ms\n",
              kLabels, times[0], kLabels / times[0] * 1000, times[1]);
  std::printf("the engine takes %.2f times as long (goal: at most 1.2)\n", times[0] / times[1]);
  return 0;
}
