#pragma once
// The world the designer works in: that of the print engine, and what a user at the screen adds to it.

#include "platform/dialogs.h"
#include "platform/folders.h"
#include "platform/processes.h"
#include "print/engine.h"

namespace qm::designer {

struct Environment {
  const print::Environment& print;
  platform::Dialogs& dialogs;
  platform::Folders& folders;
  platform::Processes& processes;
};

}  // namespace qm::designer
