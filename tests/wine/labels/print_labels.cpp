// print_labels PRINTER MODELS.xml ROWS ANSWER...: prints the label model of a file for that many rows through
// the engine and Windows, answering the options with six texts; a lone "cancelar" cancels, "aceptar" accepts.
// Prints the options that were offered, separated by "|", and then "impreso" or "anulado".
// The row of number n has the cells NOMBRE (CLIEN), "Ñandú<n>", and SALDO (CLIEN), of kind 3, n + 0.5.

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/files.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printers.h"
#include "platform/win32/prompts.h"
#include "platform/win32/settings.h"
#include "platform/win32/spooler.h"
#include "platform/win32/user_settings.h"
#include "print/label_sheets.h"
#include "print/model_choice.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "tests/platform/win32/window_driver.h"

namespace {

using namespace qm;
using platform::win32::Text;
using platform::win32::WindowDriver;
using Texts = std::vector<std::u16string>;

// The program's printer in the place of the default one, for models that name none.
class ChosenPrinter : public platform::win32::Win32Printers {
 public:
  explicit ChosenPrinter(std::u16string name) : name_(std::move(name)) {}
  std::unique_ptr<platform::PrinterSurface> OpenDefault() override { return Open(name_); }

 private:
  std::u16string name_;
};

data::Cells Row(int number) {
  const std::u16string text = runtime::FromUtf8(std::to_string(number));
  return {{u"CLIEN", u"NOMBRE (CLIEN)", u"Ñandú" + text, 0}, {u"CLIEN", u"SALDO (CLIEN)", text + u".5", 3}};
}

// What the user does with the dialog, having written down what it offers.
void AnswerDialog(HWND dialog, const Texts& answers) {
  std::string offered;
  std::size_t place = 0;
  for (HWND entry = nullptr; (entry = FindWindowExW(dialog, entry, L"Edit", nullptr)); ++place) {
    if (place > 0) offered += "|";
    offered += runtime::ToUtf8(WindowDriver::TextOf(entry));
    if (answers.size() > 1 && place < answers.size())
      SendMessageW(entry, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(platform::win32::Wide(answers[place])));
  }
  std::printf("%s\n", offered.c_str());
  WindowDriver::Click(dialog, answers.front() == u"cancelar" ? IDCANCEL : IDOK);
}

bool Print(const std::u16string& printer, const std::u16string& models, int rows, const Texts& answers) {
  platform::win32::Win32Files files;
  ChosenPrinter printers(printer);
  platform::win32::Win32Spooler spooler;
  platform::win32::Win32Pictures pictures;
  platform::win32::Win32Prompts prompts;
  platform::win32::Win32Settings settings;
  platform::win32::Win32Clock clock;
  model::ModelFile modelFile;
  modelFile.SetName(models);
  print::PaperFormState paperForms;
  const print::Environment environment{
      files,    printers, spooler,   pictures,   prompts,
      settings, clock,    modelFile, paperForms, platform::win32::UserLocale()};
  data::PrintJob job;
  for (int row = 1; row <= rows; ++row) job.rows.emplace_back(Row(row));

  WindowDriver user(u"Opciones de Etiquetas", [&](HWND dialog) { AnswerDialog(dialog, answers); });
  return print::PrintLabels(job, environment, print::FindCurrentModel(job, environment));
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 5 && argc != 10) {
    std::fprintf(stderr, "usage: print_labels PRINTER MODELS.xml ROWS aceptar | cancelar | SIX ANSWERS\n");
    return 2;
  }
  try {
    Texts answers;
    for (int i = 4; i < argc; ++i) answers.push_back(Text(argv[i]));
    const bool printed = Print(Text(argv[1]), Text(argv[2]), std::stoi(argv[3]), answers);
    std::printf("%s\n", printed ? "impreso" : "anulado");
  } catch (const runtime::RuntimeError& error) {
    std::printf("error %d\n", error.number());
  }
  return 0;
}
