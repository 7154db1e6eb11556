#pragma once
// The page of a print job as a file to send: a ZIP archive with the page's bitmap, or a PDF. Both leave the
// bitmap, EFactura.bmp, in the folder.
// eDir:   the folder with its final backslash; an empty one becomes the component's folder.
// Errors: 52 for a name that no file can have; those of finding the model and of files. An archive that
//         cannot be made is told to the user instead.

#include <string>
#include <string_view>

#include "data/print_job.h"
#include "mail/environment.h"

namespace qm::mail {

// What makes a document of the job in a folder. An empty folder is replaced by the one it stands for.
using ComposeDocument = void(data::PrintJob& job, const Environment& environment, std::u16string& folder,
                             std::u16string_view file);

// A file name ending in ".PDF", in any case, makes a PDF. The folder becomes the current one.
void CrearZip(data::PrintJob& job, const Environment& environment, std::u16string& eDir,
              std::u16string_view zipFile);

// Nothing is made and nothing said when another program keeps the file open to itself. Without its final
// backslash the folder has no bitmap where it is looked for: error 53.
void CrearPdf(data::PrintJob& job, const Environment& environment, std::u16string& eDir,
              std::u16string_view zipFile);

}  // namespace qm::mail
