#pragma once
// The host's data operations on a print job. Nothing is validated; the first of several records of a name is
// the one that counts.

#include <memory>
#include <string>
#include <string_view>

#include "data/print_job.h"

namespace qm::data {

// Sets the first field of exactly this name; a record is returned only when one had to be added.
std::shared_ptr<Field> AsignarCampo(PrintJob& job, std::u16string_view nombreCampo, std::u16string valor);
std::shared_ptr<Field> AñadirCampo(PrintJob& job, std::u16string_view nombreCampo);
std::shared_ptr<Table> AñadirTabla(PrintJob& job, std::u16string_view nombreTabla);
void AñadirCampoTabla(PrintJob& job, Cell cell);

}  // namespace qm::data
