#pragma once
// The model file that the host named, and the operations on it as a whole.

#include <string>
#include <string_view>

#include "model/document.h"
#include "platform/files.h"

namespace qm::model {

// One for the whole process: every print job sees the last name that any of them set.
struct ModelFile {
  std::u16string name;
  std::u16string folder;  // up to and including the last backslash; pictures lie there

  void SetName(std::u16string_view newName);
};

// Reads, replaces one model and writes the file back atomically. A file that holds something that cannot be
// parsed is left as it is (error 91).
void SaveModel(platform::Files& files, std::u16string_view path, const ModelToSave& model,
               const runtime::Locale& locale);

}  // namespace qm::model
