#pragma once
// A world of fakes in which a page of two texts, "Señor" and "Total", becomes a file to send.

#include <set>
#include <string>

#include "mail/attachments.h"
#include "platform/zip_archiver.h"
#include "tests/error_of.h"
#include "tests/fakes/fake_picture_page.h"
#include "tests/fakes/fake_pictures.h"
#include "tests/fakes/fake_settings.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recorded_archiver.h"
#include "tests/fakes/recording_printer.h"
#include "tests/fakes/scripted_prompts.h"
#include "tests/fakes/scripted_spooler.h"

namespace qm::mail {

// Files of which one finds no room on the disk.
class NearlyFullDisk : public fakes::MemoryFiles {
 public:
  std::u16string fullFor;

  void Replace(std::u16string_view path, std::string_view bytes) override {
    if (path == fullFor) throw runtime::RuntimeError(runtime::ErrorNumber::DiskFull);
    MemoryFiles::Replace(path, bytes);
  }
};

class OutputFolders : public platform::Folders {
 public:
  std::u16string current = u"C:\\";
  std::set<std::u16string, std::less<>> found;
  std::vector<std::u16string> made;
  bool makes = true;
  std::optional<runtime::ErrorNumber> failCurrentWith;

  [[nodiscard]] std::u16string CarpetaEspecial(int) override { return {}; }
  [[nodiscard]] std::u16string RutaTrabajo(std::u16string_view) override { return {}; }
  [[nodiscard]] std::u16string ComponentFolder() override { return u"C:\\Componente"; }
  [[nodiscard]] std::u16string LocalData() override { return {}; }
  [[nodiscard]] std::u16string UserName() override { return {}; }
  [[nodiscard]] std::u16string CurrentFolder() override { return current; }
  void SetCurrentFolder(std::u16string_view folder) override {
    if (failCurrentWith) throw runtime::RuntimeError(*failCurrentWith);
    current = folder;
  }
  [[nodiscard]] std::u16string FullPath(std::u16string_view path) override {
    return current + std::u16string(path);
  }
  [[nodiscard]] bool Matches(std::u16string_view pattern) override { return found.contains(pattern); }
  bool Make(std::u16string_view folder) override {
    if (makes) made.emplace_back(folder);
    return makes;
  }
};

class NoProcesses : public platform::Processes {
 public:
  void StartHidden(std::u16string_view, std::u16string_view) override {}
  void RunAndWait(std::u16string_view, std::u16string_view) override {}
};

class NoProfiles : public platform::RecordStore {
 public:
  void Open(std::u16string_view, std::u16string_view) override {}
  void Close() noexcept override {}
  void SelectKey(int) override {}
  void First() override {}
  void Next() override {}
  void Seek(std::u16string_view) override {}
  [[nodiscard]] bool AtEnd() override { return true; }
  [[nodiscard]] int Position() override { return 0; }
  [[nodiscard]] int Count() override { return 0; }
  [[nodiscard]] int FieldCount() override { return 0; }
  [[nodiscard]] std::u16string Value(int) override { return {}; }
  void Add() override {}
  void Write(int, std::u16string_view) override {}
  void Store() override {}
};

struct AttachmentWorld {
  explicit AttachmentWorld(const std::string& attributes = {}) {
    modelFile.SetName(u"C:\\Modelos\\fact.xml");
    files.contents[modelFile.name] =
        "<Modelos><Modelo Numero=\"1\" Width=\"3000\" Height=\"3000\" " + attributes +
        "><Campo><Descripcion>#Se\xF1or</Descripcion><Top>100</Top><Left>1000</Left><Width>1500</Width>"
        "<Height>300</Height></Campo><Campo><Descripcion>#Total</Descripcion><Top>400</Top></Campo>"
        "</Modelo></Modelos>";
  }

  // The number of the error it ends with, 0 for none.
  int CrearZip(std::u16string eDir, std::u16string_view zipFile) {
    return tests::ErrorOf([&] {
      mail::CrearZip(job, useRealArchiver ? withRealArchiver : environment, eDir, zipFile);
      return 0;
    });
  }
  int CrearPdf(std::u16string eDir, std::u16string_view zipFile) {
    return tests::ErrorOf([&] {
      mail::CrearPdf(job, environment, eDir, zipFile);
      return 0;
    });
  }

  std::string log;
  NearlyFullDisk files;
  fakes::FakePrinters printers{log};
  fakes::ScriptedSpooler spooler;
  fakes::FakePictures pictures{files, log};
  fakes::ScriptedPrompts prompts;
  fakes::FakeSettings settings;
  fakes::FixedClock clock;
  model::ModelFile modelFile;
  print::PaperFormState paperForms;
  data::PrintJob job;
  OutputFolders folders;
  NoProcesses processes;
  fakes::RecordedArchiver archiver;
  platform::ZipArchiver realArchiver{files};
  bool useRealArchiver = false;
  fakes::FakePicturePages pages;
  runtime::Random random;
  NoProfiles profiles;
  print::Environment printing{files,    printers, spooler,   pictures,   prompts,
                              settings, clock,    modelFile, paperForms, runtime::Locale::Spanish()};
  Environment environment{printing, folders, processes, archiver, pages, profiles, random};
  Environment withRealArchiver{printing, folders, processes, realArchiver, pages, profiles, random};
};

}  // namespace qm::mail
