#pragma once
// A world of fakes in which a page of two texts, "Señor" and "Total", becomes a file to send.

#include <string>
#include <string_view>

#include "mail/attachments.h"
#include "platform/zip_archiver.h"
#include "recordfile/file_record_store.h"
#include "tests/error_of.h"
#include "tests/fakes/recorded_archiver.h"
#include "tests/mail/mail_fakes.h"

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

struct AttachmentWorld : MailFakes<NearlyFullDisk> {
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

  data::PrintJob job;
  fakes::RecordedArchiver archiver;
  platform::ZipArchiver realArchiver{files};
  bool useRealArchiver = false;
  recordfile::FileRecordStore profiles{files, u"", {}};
  Environment environment{printing, folders, processes, archiver, pages, profiles, random};
  Environment withRealArchiver{printing, folders, processes, realArchiver, pages, profiles, random};
};

}  // namespace qm::mail
