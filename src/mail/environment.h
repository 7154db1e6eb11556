#pragma once
// The world that mail works in: that of the print engine, and what mail needs besides.

#include "platform/archiver.h"
#include "platform/folders.h"
#include "platform/picture_page.h"
#include "platform/processes.h"
#include "platform/record_store.h"
#include "print/engine.h"
#include "runtime/random.h"

namespace qm::mail {

struct Environment {
  const print::Environment& print;
  platform::Folders& folders;
  platform::Processes& processes;
  platform::Archiver& archiver;
  platform::PicturePages& pages;
  platform::RecordStore& profiles;
  runtime::Random& random;  // one for the life of the process
};

}  // namespace qm::mail
