#include "data/bulk_loading.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "data/dates.h"
#include "data/definition_file.h"
#include "data/fields.h"
#include "runtime/error.h"

namespace qm::data {
namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr std::int16_t kDate = 5;
constexpr std::int16_t kLastRow = std::numeric_limits<std::int16_t>::max();

// Hosts see this order of calls. The type and the table's name are asked twice: the first type decides
// whether the value is a date, the second is stored.
Cell LoadedCell(platform::RecordFile& records, std::int16_t field, platform::Clock& clock) {
  Cell cell;
  const std::int16_t type = records.TipoCampo(field);
  cell.tabla = records.NombreDeTabla();
  const std::u16string name = records.NombreDelCampo(field);
  cell.campo = CellName(name, records.NombreDeTabla());
  cell.valor = records.ValorCampo(field);
  if (type == kDate) cell.valor = NormalizeDate(cell.valor, clock.Now().year);
  cell.tipo = records.TipoCampo(field);
  return cell;
}

template <class Each>
void ForEachField(std::int16_t count, Each&& each) {
  for (int field = 1; field <= count; ++field) each(static_cast<std::int16_t>(field));
}

// One slot more than there are records. Slots beyond the last row number could never be filled and are not
// made, whatever count the host's object gives.
void ReplaceRows(PrintJob& job, std::int32_t records) {
  if (records < 0) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  constexpr std::int32_t kMostRows = kLastRow + 1;
  job.rows.clear();
  job.rows.resize(static_cast<std::size_t>(std::min(records, kMostRows)) + 1);
}

// The rows are looked up for each cell: the host's object may have loaded others meanwhile.
void AddToRow(PrintJob& job, std::int16_t row, Cell cell) {
  const auto slot = static_cast<std::size_t>(row);
  if (slot >= job.rows.size()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  std::optional<Cells>& cells = job.rows[slot];
  if (!cells) cells.emplace();
  cells->push_back(std::move(cell));
}

}  // namespace

void AsignarDatosTabla(PrintJob& job, std::u16string_view tabla, std::int16_t numArchivo,
                       RecordArrays& arrays, platform::Files& files) {
  std::erase_if(job.cells, [&](const Cell& cell) { return cell.tabla == tabla; });
  const Definition definition = ReadDefinition(files, tabla);
  std::int16_t field = 0;
  for (const std::u16string& name : definition.names) {
    ++field;
    Cell cell;
    cell.tabla = tabla;
    cell.campo = CellName(name, TableTag(tabla));
    cell.valor = arrays.Value(numArchivo, field);
    cell.tipo = arrays.Type(numArchivo, field);
    AñadirCampoTabla(job, std::move(cell));
  }
}

void AsignarDatosTablaQmF(PrintJob& job, platform::RecordFile& records, platform::Clock& clock) {
  ForEachField(records.NumeroCampos(),
               [&](std::int16_t field) { AñadirCampoTabla(job, LoadedCell(records, field, clock)); });
}

void AsignarDatosTablaQmF2(PrintJob& job, platform::RecordFile& records, platform::Clock& clock) {
  ReplaceRows(job, records.NumeroRegistros());
  std::int16_t row = 0;
  while (!records.FinArchivo()) {
    ForEachField(records.NumeroCampos(),
                 [&](std::int16_t field) { AddToRow(job, row, LoadedCell(records, field, clock)); });
    if (row == kLastRow) throw RuntimeError(ErrorNumber::Overflow);
    ++row;
    records.Siguiente();
  }
}

}  // namespace qm::data
