#pragma once
// What the worlds of the mail tests have in common: the world of the print engine, and what a message meets
// besides.

#include "mail/environment.h"
#include "tests/fakes/fake_folders.h"
#include "tests/fakes/fake_picture_page.h"
#include "tests/fakes/recorded_processes.h"
#include "tests/print/printing_world.h"

namespace qm::mail {

struct MailFakes : print::PrintingWorld {
  fakes::FakeFolders folders;
  fakes::RecordedProcesses processes;
  fakes::FakePicturePages pages;
  runtime::Random random;
  const print::Environment& printing = PrintingWorld::environment;  // beside the mail's own environment

  // The world of the print engine, with these files in place of its own.
  print::Environment PrintingWith(platform::Files& others) {
    return {others,   printers, spooler,   pictures,   prompts,
            settings, clock,    modelFile, paperForms, runtime::Locale::Spanish()};
  }
};

}  // namespace qm::mail
