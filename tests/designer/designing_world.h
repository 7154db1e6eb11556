#pragma once
// The world of the designer, all of it made of fakes: Spanish settings, two printers, no files.

#include "designer/environment.h"
#include "tests/fakes/fake_folders.h"
#include "tests/fakes/recorded_processes.h"
#include "tests/fakes/scripted_dialogs.h"
#include "tests/print/printing_world.h"

namespace qm::designer {

struct DesigningWorld : print::PrintingWorld {
  fakes::ScriptedDialogs dialogs;
  fakes::FakeFolders folders;
  fakes::RecordedProcesses processes;
  Environment world{environment, dialogs, folders, processes};
};

}  // namespace qm::designer
