#pragma once
// The world of the designer, all of it made of fakes: Spanish settings, two printers, no files.

#include "designer/environment.h"
#include "tests/fakes/fake_folders.h"
#include "tests/fakes/fake_pictures.h"
#include "tests/fakes/fake_settings.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recorded_processes.h"
#include "tests/fakes/recording_printer.h"
#include "tests/fakes/scripted_dialogs.h"
#include "tests/fakes/scripted_prompts.h"
#include "tests/fakes/scripted_spooler.h"

namespace qm::designer {

struct DesigningWorld {
  DesigningWorld() { modelFile.SetName(u"C:\\Modelos\\facturas.xml"); }

  fakes::MemoryFiles files;
  std::string printerLog;
  fakes::FakePrinters printers{printerLog};
  fakes::ScriptedSpooler spooler;
  fakes::FakePictures pictures{files};
  fakes::ScriptedPrompts prompts;
  fakes::FakeSettings settings;
  fakes::FixedClock clock;
  model::ModelFile modelFile;
  print::PaperFormState paperForms;
  print::Environment printing{files,    printers, spooler,   pictures,   prompts,
                              settings, clock,    modelFile, paperForms, runtime::Locale::Spanish()};
  fakes::ScriptedDialogs dialogs;
  fakes::FakeFolders folders;
  fakes::RecordedProcesses processes;
  Environment environment{printing, dialogs, folders, processes};
};

}  // namespace qm::designer
