#pragma once
// A world of fakes in which messages are handed off. Profiles are kept in a real record file, in memory.

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mail/profiles.h"
#include "recordfile/field_list.h"
#include "recordfile/file_record_store.h"
#include "tests/mail/mail_fakes.h"

namespace qm::mail {

// What was packed, with the bytes that the files had at that moment, and the current folder of each run.
class SnapshotArchiver : public platform::Archiver {
 public:
  explicit SnapshotArchiver(platform::Files& files, fakes::FakeFolders& folders)
      : files_(files), folders_(folders) {}

  struct Run {
    std::vector<std::u16string> files;
    std::u16string currentFolder;

    bool operator==(const Run&) const = default;
  };

  std::u16string archive;
  std::vector<Run> runs;
  std::map<std::u16string, std::string> packed;  // by full path
  platform::ZipResult result = platform::ZipResult::Done;

  [[nodiscard]] platform::ZipResult Add(std::u16string_view name,
                                        const std::vector<std::u16string>& paths) override {
    archive = name;
    runs.push_back({paths, folders_.currentFolder});
    for (const std::u16string& path : paths) {
      if (auto bytes = files_.Read(path)) packed[path] = *bytes;
    }
    return result;
  }

 private:
  platform::Files& files_;
  fakes::FakeFolders& folders_;
};

using ProfileTexts = std::vector<std::pair<ProfileField, std::u16string>>;

struct MailWorld : MailFakes {
  SnapshotArchiver archiver{files, folders};
  recordfile::FileRecordStore profiles{files, kProfileTable, recordfile::ParseFieldList(kProfileFieldList)};
  Environment environment{printing, folders, processes, archiver, pages, profiles, random};

  static constexpr std::u16string_view kProfilePath =
      u"C:\\Users\\ana\\Documents\\Quillmar\\CRM\\Config\\email\\email00.qmd";
  static constexpr std::u16string_view kRequestPath = u"C:\\Users\\ana\\Trabajo\\EMAIL.TXT";
  static constexpr std::u16string_view kBodyPath = u"C:\\Users\\ana\\Trabajo\\EMAIL.HTM";

  void AddProfile(const ProfileTexts& texts) {
    profiles.Open(RutaPerfiles(environment), u"");
    profiles.Add();
    for (const auto& [field, text] : texts) profiles.Write(static_cast<int>(field), text);
    profiles.Store();
    profiles.Close();
  }
  void AddProfileNamed(std::u16string_view name) { AddProfile({{ProfileField::Name, std::u16string(name)}}); }

  [[nodiscard]] const std::string& PackedRequest() const {
    return archiver.packed.at(std::u16string(kRequestPath));
  }
  [[nodiscard]] const std::string& PackedBody() const {
    return archiver.packed.at(std::u16string(kBodyPath));
  }
  // The value of a line of the request that was packed.
  [[nodiscard]] std::string Line(std::string_view key) const {
    const std::string text = "\r\n" + PackedRequest();
    const std::size_t at = text.find("\r\n" + std::string(key) + "=");
    if (at == std::string::npos) return "(no line)";
    const std::size_t from = at + key.size() + 3;
    return text.substr(from, text.find("\r\n", from) - from);
  }
  [[nodiscard]] bool LooseFilesAreGone() const {
    return !files.contents.contains(kRequestPath) && !files.contents.contains(kBodyPath);
  }
  [[nodiscard]] bool NothingWasHandedOff() const {
    return archiver.runs.empty() && processes.started.empty() && LooseFilesAreGone();
  }
};

}  // namespace qm::mail
