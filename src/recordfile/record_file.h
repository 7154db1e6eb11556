#pragma once
// A record file opened by a host: a table of text fields, a current record, an order to walk it in.
// Fields, records and keys are numbered from 1. Everything is read when the file is opened and nothing stays
// open: storing writes the whole file anew beside the old one and swaps them, so that at any moment the file
// is the old or the new one. What fails leaves the file and this object as they were.
// Errors: errors.h; 9 for a field that is not there, 53 for a file that is not there, 58 for one that is
//         there already, and what platform::Files raises.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "recordfile/key_order.h"
#include "recordfile/table.h"

namespace qm::recordfile {

class RecordFile {
 public:
  explicit RecordFile(platform::Files& files) : files_(files) {}

  // A path without a drive or folder in front is taken from the directory, when that is not empty.
  // Makes a file without records and opens it.
  void Create(std::u16string_view path, std::u16string_view directory, std::u16string_view tableName,
              std::vector<FieldDefinition> fields);
  // Stands on the first record, in the file's own order. Another file that was open is closed.
  void Open(std::u16string_view path, std::u16string_view directory);
  // Drops what is not stored.
  void Close() noexcept { open_.reset(); }

  // Walk by that field; 0 for the file's own order. The current record stays.
  void SelectKey(int field);
  void First();
  void Next();  // at the end it stays there
  // To the record of that key, or to the end when there is none.
  void Seek(std::u16string_view key);
  [[nodiscard]] bool AtEnd() const;
  [[nodiscard]] int Position() const;  // of the current record in the file's own order; 0 at the end

  [[nodiscard]] int Count() const;
  [[nodiscard]] int FieldCount() const;
  [[nodiscard]] const FieldDefinition& Field(int number) const;
  [[nodiscard]] const std::u16string& TableName() const;
  // Of the record being written, else of the current one.
  [[nodiscard]] const std::u16string& Value(int field) const;

  // Begins a new record; others that were begun before wait with it to be stored.
  void Add();
  // Into the new record, or into the current one when none was begun.
  void Write(int field, std::u16string_view text);
  // Puts all that was written into the file, at once, and stands on the last record written.
  // Moving about before that is an error; Close drops it.
  void Store();

 private:
  struct Change {
    std::optional<std::size_t> record;  // nothing for a new one
    Record texts;
  };
  struct Opened {
    std::u16string path;
    std::uint32_t checksum;  // of the file as it was read or stored
    Table table;
    int key;
    KeyOrder order;
    std::size_t place;  // in the order
    std::vector<Change> changes;
  };

  [[nodiscard]] Opened& Open();
  [[nodiscard]] const Opened& Open() const;
  [[nodiscard]] Opened& OpenToMove();
  [[nodiscard]] static std::size_t CurrentRecord(const Opened& open);
  [[nodiscard]] static std::size_t FieldIndex(const Opened& open, int number);
  [[nodiscard]] static KeyOrder OrderOf(const Table& table, int key);
  void CheckUnchanged(const Opened& open);

  platform::Files& files_;
  std::optional<Opened> open_;
};

}  // namespace qm::recordfile
