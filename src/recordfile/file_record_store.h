#pragma once
// The record store of files on disk, linked in: hosts need not have the record-file library registered.
// Errors: errors.h, and what RecordFile raises.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/record_store.h"
#include "recordfile/record_file.h"

namespace qm::recordfile {

class FileRecordStore final : public platform::RecordStore {
 public:
  // The table and fields of a file that has to be made.
  FileRecordStore(platform::Files& files, std::u16string_view tableName, std::vector<FieldDefinition> fields);

  void Open(std::u16string_view path, std::u16string_view directory) override;
  void Close() noexcept override;
  void SelectKey(int field) override;
  void First() override;
  void Next() override;
  void Seek(std::u16string_view key) override;
  [[nodiscard]] bool AtEnd() override { return missing_ || file_.AtEnd(); }
  [[nodiscard]] int Position() override { return missing_ ? 0 : file_.Position(); }
  [[nodiscard]] int Count() override { return missing_ ? 0 : file_.Count(); }
  [[nodiscard]] int FieldCount() override;
  [[nodiscard]] std::u16string Value(int field) override;
  void Add() override;
  void Write(int field, std::u16string_view text) override;
  void Store() override;

 private:
  // A file that was opened and does not exist, and what is to be stored in it.
  struct Missing {
    std::u16string path;
    std::u16string directory;
    std::vector<Record> added;
  };

  RecordFile file_;
  std::u16string tableName_;
  std::vector<FieldDefinition> fields_;
  std::optional<Missing> missing_;
};

}  // namespace qm::recordfile
