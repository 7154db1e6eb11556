#include "data/fields.h"

#include <utility>

namespace qm::data {

std::shared_ptr<Field> AsignarCampo(PrintJob& job, std::u16string_view nombreCampo, std::u16string valor) {
  for (const auto& field : job.fields) {
    if (field->campo != nombreCampo) continue;
    field->valor = std::move(valor);
    return nullptr;
  }
  auto added = AñadirCampo(job, nombreCampo);
  added->valor = std::move(valor);
  return added;
}

std::shared_ptr<Field> AñadirCampo(PrintJob& job, std::u16string_view nombreCampo) {
  auto field = std::make_shared<Field>();
  field->campo = nombreCampo;
  job.fields.push_back(field);
  return field;
}

std::shared_ptr<Table> AñadirTabla(PrintJob& job, std::u16string_view nombreTabla) {
  auto table = std::make_shared<Table>();
  table->tabla = nombreTabla;
  job.tables.push_back(table);
  return table;
}

void AñadirCampoTabla(PrintJob& job, Cell cell) { job.cells.push_back(std::move(cell)); }

}  // namespace qm::data
