#pragma once
// A print job's message, with the settings that the host gave it.
// Errors: 50103 with the description of what went wrong; those of composing the document as they are.

#include <string>
#include <string_view>

#include "data/print_job.h"
#include "mail/environment.h"

namespace qm::mail {

// Hands the message to the mail sender; nothing happens where nobody is to be written to.
void EnviarEmail(data::PrintJob& job, const Environment& environment);

// Composes the model as the document zipFile in the folder mydir, a ZIP archive or a PDF by the name's end,
// and hands it to the mail sender in place of the job's attachments. An empty folder becomes the component's.
void EmailModelo(data::PrintJob& job, const Environment& environment, std::u16string& mydir,
                 std::u16string_view zipFile);

}  // namespace qm::mail
