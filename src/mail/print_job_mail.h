#pragma once
// A print job's message, with the settings that the host gave it.
// Errors: 50103 with the description of what went wrong.

#include <string>
#include <string_view>

#include "data/print_job.h"
#include "mail/environment.h"

namespace qm::mail {

// Hands the message to the mail sender; nothing happens where nobody is to be written to.
void EnviarEmail(data::PrintJob& job, const Environment& environment);

}  // namespace qm::mail
