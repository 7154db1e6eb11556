#pragma once
// A host's open record file, positioned on a record: the eight operations that loading needs, in the order in
// which they stand in its interface. Fields are numbered from 1.
// Errors: whatever the host's object raises, unchanged; 94 for a Null where a value is needed, 13 and 6 for
//         values that do not convert.
// Implemented by api/host_record_file and the tests' RecordedRecordFile.

#include <cstdint>
#include <string>

namespace qm::platform {

class RecordFile {
 public:
  virtual ~RecordFile() = default;

  [[nodiscard]] virtual std::int16_t TipoCampo(std::int16_t campo) = 0;  // 5 means a date
  [[nodiscard]] virtual bool FinArchivo() = 0;                           // past the last record
  virtual void Siguiente() = 0;
  [[nodiscard]] virtual std::int32_t NumeroRegistros() = 0;
  [[nodiscard]] virtual std::int16_t NumeroCampos() = 0;
  // In the current record, as text by the automation runtime's rules and the user's locale.
  [[nodiscard]] virtual std::u16string ValorCampo(std::int16_t campo) = 0;
  [[nodiscard]] virtual std::u16string NombreDelCampo(std::int16_t campo) = 0;  // may be padded with blanks
  [[nodiscard]] virtual std::u16string NombreDeTabla() = 0;
};

}  // namespace qm::platform
