#pragma once
// The last good copy of a model file, in the user's local application data: one copy for each model file,
// "TALVO\Modelos\<its name>-<a hash of its path>.xml", the same bytes.
// Errors: keeping one fails quietly, since nothing may depend on it; restoring has those of platform/files.h.

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/folders.h"

namespace qm::designer {

class LastCopy {
 public:
  LastCopy(platform::Files& files, platform::Folders& folders, std::u16string_view modelFile);

  // Bytes that hold no models, being empty or damaged, are not kept.
  void Keep(std::string_view bytes);
  void KeepFile();  // as it stands on disk
  // Not even XML, and not merely empty.
  [[nodiscard]] static bool IsDamaged(std::string_view bytes);
  [[nodiscard]] bool IsGood();  // there is one that can be read
  // The copy takes the place of the damaged file, which is kept beside it as "<name>.danado".
  void Restore(std::string_view damaged);

  [[nodiscard]] const std::u16string& Path() const { return path_; }  // empty: there is no place for one

 private:
  [[nodiscard]] std::u16string PlaceForDamaged(std::string_view damaged);

  platform::Files& files_;
  platform::Folders& folders_;
  std::u16string modelFile_;
  std::u16string path_;
};

}  // namespace qm::designer
