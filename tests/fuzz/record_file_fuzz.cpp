// Any bytes as a record file, and as what stands behind the header of one: they are read or refused, and what
// is read is written as the same bytes.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <variant>

#include "recordfile/codec.h"
#include "recordfile/field_list.h"
#include "recordfile/key_order.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace {

using qm::recordfile::KeyOrder;
using qm::recordfile::Table;

void Require(bool condition) {
  if (!condition) std::abort();
}

void FindEveryRecord(const Table& table) {
  const KeyOrder order(table, table.fields.size() - 1);
  Require(order.Count() == table.records.size());
  for (std::size_t place = 0; place < order.Count() && place < 100; ++place) {
    const auto found = order.Find(table.records[order.RecordAt(place)].back());
    Require(found && *found <= place);
  }
}

void ReadAndWrite(const std::string& bytes) {
  const auto read = qm::recordfile::Decode(bytes);
  if (const auto* table = std::get_if<Table>(&read)) {
    Require(qm::recordfile::Encode(*table) == bytes);
    FindEveryRecord(*table);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  ReadAndWrite(bytes);
  ReadAndWrite(qm::recordfile::WithHeader(bytes));
  if (size >= qm::recordfile::kHeaderSize)
    ReadAndWrite(qm::recordfile::WithHeader(bytes.substr(qm::recordfile::kHeaderSize)));
  try {
    static_cast<void>(qm::recordfile::ParseFieldList(qm::runtime::FromBytes(bytes)));
  } catch (const qm::runtime::RuntimeError&) {
  }
  return 0;
}
