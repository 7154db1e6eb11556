#pragma once
// What the worlds of the mail tests have in common: the fakes that a print job and its message meet.

#include <string>

#include "mail/environment.h"
#include "tests/fakes/fake_folders.h"
#include "tests/fakes/fake_picture_page.h"
#include "tests/fakes/fake_pictures.h"
#include "tests/fakes/fake_settings.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recorded_processes.h"
#include "tests/fakes/recording_printer.h"
#include "tests/fakes/scripted_prompts.h"
#include "tests/fakes/scripted_spooler.h"

namespace qm::mail {

template <class FilesInMemory = fakes::MemoryFiles>
struct MailFakes {
  std::string log;
  FilesInMemory files;
  fakes::FakePrinters printers{log};
  fakes::ScriptedSpooler spooler;
  fakes::FakePictures pictures{files, log};
  fakes::ScriptedPrompts prompts;
  fakes::FakeSettings settings;
  fakes::FixedClock clock;
  model::ModelFile modelFile;
  print::PaperFormState paperForms;
  fakes::FakeFolders folders;
  fakes::RecordedProcesses processes;
  fakes::FakePicturePages pages;
  runtime::Random random;
  print::Environment printing = PrintingWith(files);

  // The world of the print engine, with these files in place of its own.
  print::Environment PrintingWith(platform::Files& others) {
    return {others,   printers, spooler,   pictures,   prompts,
            settings, clock,    modelFile, paperForms, runtime::Locale::Spanish()};
  }
};

}  // namespace qm::mail
