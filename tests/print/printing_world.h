#pragma once
// A world of fakes in which a test prints one model file; printers and pictures write to one log.

#include <string>
#include <string_view>
#include <utility>

#include "data/fields.h"
#include "print/engine.h"
#include "print/label_sheets.h"
#include "print/model_choice.h"
#include "tests/error_of.h"
#include "tests/fakes/fake_pictures.h"
#include "tests/fakes/fake_settings.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_printer.h"
#include "tests/fakes/scripted_prompts.h"
#include "tests/fakes/scripted_spooler.h"

namespace qm::print {

using tests::ErrorOf;

struct PrintingWorld {
  std::string log;
  fakes::MemoryFiles files;
  fakes::FakePrinters printers{log};
  fakes::ScriptedSpooler spooler;
  fakes::FakePictures pictures{files, log};
  fakes::ScriptedPrompts prompts;
  fakes::FakeSettings settings;
  fakes::FixedClock clock;
  model::ModelFile modelFile;
  PaperFormState paperForms;
  data::PrintJob job;
  Environment environment{files,    printers, spooler,   pictures,   prompts,
                          settings, clock,    modelFile, paperForms, runtime::Locale::Spanish()};

  PrintingWorld() {
    modelFile.SetName(u"C:\\Modelos\\fact.xml");
    spooler.supportsForms = false;
  }

  // The bytes of the whole file.
  void SetFile(std::string_view bytes) { files.Replace(modelFile.name, bytes); }
  // One model of number 1, its further attributes and its fields as XML.
  void SetModel(std::string_view attributes, std::string_view fields) {
    std::string text = "<Modelos><Modelo Numero=\"1\" ";
    text.append(attributes).append(">").append(fields).append("</Modelo></Modelos>");
    SetFile(text);
  }

  [[nodiscard]] model::ModelTexts Model() const { return FindCurrentModel(job, environment); }
  bool Print() { return print::Print(job, environment, Model()); }
  bool PrintLabels() { return print::PrintLabels(job, environment, Model()); }
  bool Draw(platform::Surface& surface) { return print::Draw(job, environment, Model(), surface); }

  // What is drawn without a printer, or the number of the error.
  std::string Drawn() {
    fakes::RecordingSurface surface;
    (void)Draw(surface);
    return surface.Log();
  }
};

template <typename Action>
std::u16string ErrorTextOf(Action&& action) {
  try {
    std::forward<Action>(action)();
  } catch (const runtime::RuntimeError& error) {
    return error.description();
  }
  return {};
}

}  // namespace qm::print
