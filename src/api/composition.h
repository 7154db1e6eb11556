#pragma once
// Where the concrete parts of the component meet: the Windows implementations of the world outside, the state
// that all print jobs of a process share, and the engines.

#include "data/print_job.h"
#include "model/model_file.h"
#include "platform/win32/files.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printers.h"
#include "platform/win32/prompts.h"
#include "platform/win32/settings.h"
#include "platform/win32/spooler.h"
#include "platform/win32/user_settings.h"
#include "print/engine.h"

namespace qm::api {

class Composition {
 public:
  Composition() = default;
  Composition(const Composition&) = delete;
  Composition& operator=(const Composition&) = delete;

  // Shared by all print jobs of the process.
  [[nodiscard]] model::ModelFile& ModelFile() noexcept { return modelFile_; }

  [[nodiscard]] platform::Files& Files() noexcept { return files_; }
  [[nodiscard]] platform::Clock& Clock() noexcept { return clock_; }

  // False when the user ended the printing early.
  [[nodiscard]] bool Imprimir(data::PrintJob& job);
  // The designer, until it is closed.
  void Show(data::PrintJob& job);

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
};

// The one of this process.
[[nodiscard]] Composition& TheComposition();

}  // namespace qm::api
