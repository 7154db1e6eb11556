#pragma once
// A record file by its path: opened, walked, searched and added to. Fields and keys are numbered from 1, a
// key walks by the field of its number. A file that does not exist counts as one without records; storing
// makes it. Errors: those of the record files and of platform::Files. Implemented by
// recordfile/file_record_store and the tests' FakeRecordStore.

#include <string>
#include <string_view>

namespace qm::platform {

class RecordStore {
 public:
  virtual ~RecordStore() = default;

  // A path without a drive or folder in front is taken from the directory, when that is not empty.
  virtual void Open(std::u16string_view path, std::u16string_view directory) = 0;
  virtual void Close() noexcept = 0;  // drops what is not stored

  virtual void SelectKey(int field) = 0;
  virtual void First() = 0;
  virtual void Next() = 0;
  virtual void Seek(std::u16string_view key) = 0;  // to the end when there is none
  [[nodiscard]] virtual bool AtEnd() = 0;
  [[nodiscard]] virtual int Position() = 0;  // of the current record, from 1; 0 at the end
  [[nodiscard]] virtual int Count() = 0;
  [[nodiscard]] virtual int FieldCount() = 0;
  [[nodiscard]] virtual std::u16string Value(int field) = 0;  // of the current record

  virtual void Add() = 0;
  virtual void Write(int field, std::u16string_view text) = 0;
  virtual void Store() = 0;
};

}  // namespace qm::platform
