#pragma once
// Where the concrete parts of the component meet: the Windows implementations of the world outside, the state
// that all print jobs of a process share, the engines, and mail.

#include <utility>

#include "data/print_job.h"
#include "mail/environment.h"
#include "model/model_file.h"
#include "platform/win32/files.h"
#include "platform/win32/folders.h"
#include "platform/win32/picture_surface.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printers.h"
#include "platform/win32/processes.h"
#include "platform/win32/prompts.h"
#include "platform/win32/settings.h"
#include "platform/win32/spooler.h"
#include "platform/win32/user_settings.h"
#include "platform/zip_archiver.h"
#include "print/engine.h"
#include "recordfile/file_record_store.h"
#include "runtime/random.h"

namespace qm::api {

class Composition {
 public:
  Composition();
  Composition(const Composition&) = delete;
  Composition& operator=(const Composition&) = delete;
  ~Composition() = default;

  // Shared by all print jobs of the process.
  [[nodiscard]] model::ModelFile& ModelFile() noexcept { return modelFile_; }

  [[nodiscard]] platform::Files& Files() noexcept { return files_; }
  [[nodiscard]] platform::Clock& Clock() noexcept { return clock_; }

  // False when the user ended the printing early.
  [[nodiscard]] bool Imprimir(data::PrintJob& job);
  // The designer, until it is closed.
  void Show(data::PrintJob& job);

  // Calls action(const mail::Environment&) and gives back what it does.
  template <class Action>
  decltype(auto) WithMail(Action&& action) {
    const print::Environment printing = NewEnvironment();
    const mail::Environment environment{printing, folders_,  processes_, archiver_,
                                        pages_,   profiles_, random_};
    return std::forward<Action>(action)(environment);
  }

 private:
  [[nodiscard]] print::Environment NewEnvironment();

  model::ModelFile modelFile_;
  print::PaperFormState paperForms_;
  platform::win32::Win32Files files_;
  platform::win32::Win32Printers printers_;
  platform::win32::Win32Spooler spooler_;
  platform::win32::Win32Pictures pictures_;
  platform::win32::Win32Prompts prompts_;
  platform::win32::Win32Settings settings_;
  platform::win32::Win32Clock clock_;
  platform::win32::Win32Folders folders_;
  platform::win32::Win32Processes processes_;
  platform::ZipArchiver archiver_{files_};
  platform::win32::Win32PicturePages pages_;
  recordfile::FileRecordStore profiles_;
  runtime::Random random_;
};

// The one of this process.
[[nodiscard]] Composition& TheComposition();

}  // namespace qm::api
