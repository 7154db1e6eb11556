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

struct AttachmentWorld : MailFakes {
  explicit AttachmentWorld(const std::string& attributes = {}) {
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

  fakes::RecordedArchiver archiver;
  platform::ZipArchiver realArchiver{files};
  bool useRealArchiver = false;
  recordfile::FileRecordStore profiles{files, u"", {}};
  Environment environment{printing, folders, processes, archiver, pages, profiles, random};
  Environment withRealArchiver{printing, folders, processes, realArchiver, pages, profiles, random};
};

}  // namespace qm::mail
