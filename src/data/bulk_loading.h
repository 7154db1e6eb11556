#pragma once
// Whole records of the host as cells of a print job: from its arrays, or from its record file.
// A cell is named after its field and its table: "NOMBRE (CLIEN)". What was loaded before an error stays.
// Errors: those of the definition file, of the host's arrays and of its record file, as they come; 9 for more
//         records than were counted and for a negative count, 6 for a row number past 32767.

#include <cstdint>
#include <string>
#include <string_view>

#include "data/print_job.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/record_file.h"

namespace qm::data {

// The host's arrays of values and of their types; the first index is the host's number of the file, the
// second the number of the field, counted from 1. Error 9 for an index outside its array.
class RecordArrays {
 public:
  virtual ~RecordArrays() = default;
  [[nodiscard]] virtual std::u16string Value(std::int16_t file, std::int16_t field) = 0;
  [[nodiscard]] virtual std::int16_t Type(std::int16_t file, std::int16_t field) = 0;
};

// One record of a table in place of the one loaded before. The fields are named by the definition file.
void AsignarDatosTabla(PrintJob& job, std::u16string_view tabla, std::int16_t numArchivo,
                       RecordArrays& arrays, platform::Files& files);
// The current record, after whatever is loaded already: of two records of a table the first is printed.
void AsignarDatosTablaQmF(PrintJob& job, platform::RecordFile& records, platform::Clock& clock);
// The records from the current one to the end, a row each, in place of all rows loaded before.
void AsignarDatosTablaQmF2(PrintJob& job, platform::RecordFile& records, platform::Clock& clock);

}  // namespace qm::data
