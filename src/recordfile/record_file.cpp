#include "recordfile/record_file.h"

#include <utility>
#include <variant>

#include "recordfile/checksum.h"
#include "recordfile/codec.h"
#include "recordfile/errors.h"
#include "runtime/error.h"

namespace qm::recordfile {

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr int kFileExists = 58;
constexpr std::size_t kLargestFile = 0x7FFFFFFF;  // what can be read back

bool IsSeparator(char16_t letter) { return letter == u'\\' || letter == u'/'; }

std::u16string FullPath(std::u16string_view path, std::u16string_view directory) {
  const bool rooted = !path.empty() && (IsSeparator(path[0]) || (path.size() > 1 && path[1] == u':'));
  if (rooted || directory.empty()) return std::u16string(path);
  std::u16string full(directory);
  if (!IsSeparator(full.back())) full += u'\\';
  return full.append(path);
}

Table Read(std::string_view bytes, std::u16string_view path) {
  auto read = Decode(bytes);
  if (auto* table = std::get_if<Table>(&read)) return std::move(*table);
  switch (std::get<Flaw>(read)) {
    case Flaw::Foreign:
      Throw(RecordFileError::Foreign, path);
    case Flaw::Newer:
      Throw(RecordFileError::Newer, path);
    case Flaw::Damaged:
      break;
  }
  Throw(RecordFileError::Damaged, path);
}

std::string Bytes(const Table& table, std::u16string_view path) {
  std::string bytes = Encode(table);
  if (bytes.size() > kLargestFile) Throw(RecordFileError::TooLarge, path);
  return bytes;
}

}  // namespace

void RecordFile::Create(std::u16string_view path, std::u16string_view directory,
                        std::u16string_view tableName, std::vector<FieldDefinition> fields) {
  if (fields.empty() || fields.size() > kMostFields) throw RuntimeError(ErrorNumber::InvalidArgument);
  std::u16string full = FullPath(path, directory);
  if (files_.Exists(full)) throw RuntimeError(kFileExists, u"El archivo ya existe");
  Table table{std::u16string(tableName), std::move(fields), {}};
  const std::string bytes = Bytes(table, full);
  files_.Replace(full, bytes);
  open_ = Opened{std::move(full), Crc32(bytes), std::move(table), 0, KeyOrder(0), 0, {}};
}

void RecordFile::Open(std::u16string_view path, std::u16string_view directory) {
  std::u16string full = FullPath(path, directory);
  const std::optional<std::string> bytes = files_.Read(full);
  if (!bytes) throw RuntimeError(ErrorNumber::FileNotFound);
  Table table = Read(*bytes, full);
  const KeyOrder order(table.records.size());
  open_ = Opened{std::move(full), Crc32(*bytes), std::move(table), 0, order, 0, {}};
}

RecordFile::Opened& RecordFile::Open() {
  if (!open_) Throw(RecordFileError::NotOpen);
  return *open_;
}

const RecordFile::Opened& RecordFile::Open() const {
  if (!open_) Throw(RecordFileError::NotOpen);
  return *open_;
}

RecordFile::Opened& RecordFile::OpenToMove() {
  Opened& open = Open();
  if (!open.changes.empty()) Throw(RecordFileError::Unstored);
  return open;
}

std::size_t RecordFile::CurrentRecord(const Opened& open) {
  if (open.place >= open.order.Count()) Throw(RecordFileError::NoRecord);
  return open.order.RecordAt(open.place);
}

std::size_t RecordFile::FieldIndex(const Opened& open, int number) {
  if (number < 1 || static_cast<std::size_t>(number) > open.table.fields.size()) {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  }
  return static_cast<std::size_t>(number) - 1;
}

KeyOrder RecordFile::OrderOf(const Table& table, int key) {
  return key == 0 ? KeyOrder(table.records.size()) : KeyOrder(table, static_cast<std::size_t>(key) - 1);
}

void RecordFile::SelectKey(int field) {
  Opened& open = Open();
  if (field != 0) static_cast<void>(FieldIndex(open, field));
  KeyOrder order = OrderOf(open.table, field);
  const bool atEnd = open.place >= open.order.Count();
  open.place = atEnd ? order.Count() : order.PlaceOf(open.order.RecordAt(open.place));
  open.order = std::move(order);
  open.key = field;
}

void RecordFile::First() { OpenToMove().place = 0; }

void RecordFile::Next() {
  Opened& open = OpenToMove();
  if (open.place < open.order.Count()) ++open.place;
}

void RecordFile::Seek(std::u16string_view key) {
  Opened& open = OpenToMove();
  if (!open.order.HasKey()) Throw(RecordFileError::NoKey);
  open.place = open.order.Find(key).value_or(open.order.Count());
}

bool RecordFile::AtEnd() const { return Open().place >= Open().order.Count(); }

int RecordFile::Position() const {
  return AtEnd() ? 0 : static_cast<int>(Open().order.RecordAt(Open().place)) + 1;
}

int RecordFile::Count() const { return static_cast<int>(Open().table.records.size()); }
int RecordFile::FieldCount() const { return static_cast<int>(Open().table.fields.size()); }
const std::u16string& RecordFile::TableName() const { return Open().table.name; }

const FieldDefinition& RecordFile::Field(int number) const {
  return Open().table.fields[FieldIndex(Open(), number)];
}

const std::u16string& RecordFile::Value(int field) const {
  const Opened& open = Open();
  const std::size_t index = FieldIndex(open, field);
  if (!open.changes.empty()) return open.changes.back().texts[index];
  return open.table.records[CurrentRecord(open)][index];
}

void RecordFile::Add() {
  Opened& open = Open();
  open.changes.push_back({std::nullopt, Record(open.table.fields.size())});
}

void RecordFile::Write(int field, std::u16string_view text) {
  Opened& open = Open();
  const std::size_t index = FieldIndex(open, field);
  if (open.changes.empty()) {
    const std::size_t record = CurrentRecord(open);
    open.changes.push_back({record, open.table.records[record]});
  }
  open.changes.back().texts[index] = text;
}

// Another host may have stored meanwhile: its records are not overwritten.
void RecordFile::CheckUnchanged(const Opened& open) {
  const std::optional<std::string> bytes = files_.Read(open.path);
  if (!bytes) throw RuntimeError(ErrorNumber::FileNotFound);
  if (Crc32(*bytes) != open.checksum) Throw(RecordFileError::ChangedMeanwhile, open.path);
}

void RecordFile::Store() {
  Opened& open = Open();
  if (open.changes.empty()) return;
  CheckUnchanged(open);
  Table table = open.table;
  std::size_t last = 0;
  for (const Change& change : open.changes) {
    last = change.record.value_or(table.records.size());
    if (last == table.records.size()) table.records.emplace_back();
    table.records[last] = change.texts;
  }
  const std::string bytes = Bytes(table, open.path);
  KeyOrder order = OrderOf(table, open.key);
  files_.Replace(open.path, bytes);
  open.checksum = Crc32(bytes);
  open.table = std::move(table);
  open.place = order.PlaceOf(last);
  open.order = std::move(order);
  open.changes.clear();
}

}  // namespace qm::recordfile
