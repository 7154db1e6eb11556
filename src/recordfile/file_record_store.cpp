#include "recordfile/file_record_store.h"

#include <utility>

#include "recordfile/errors.h"
#include "runtime/error.h"

namespace qm::recordfile {

using runtime::ErrorNumber;
using runtime::RuntimeError;

FileRecordStore::FileRecordStore(platform::Files& files, std::u16string_view tableName,
                                 std::vector<FieldDefinition> fields)
    : file_(files), tableName_(tableName), fields_(std::move(fields)) {}

void FileRecordStore::Open(std::u16string_view path, std::u16string_view directory) {
  Close();
  try {
    file_.Open(path, directory);
  } catch (const RuntimeError& error) {
    if (!error.Is(ErrorNumber::FileNotFound)) throw;
    missing_ = Missing{std::u16string(path), std::u16string(directory), {}};
  }
}

void FileRecordStore::Close() noexcept {
  file_.Close();
  missing_.reset();
}

void FileRecordStore::SelectKey(int field) {
  if (!missing_) file_.SelectKey(field);
}

void FileRecordStore::First() {
  if (!missing_) file_.First();
}

void FileRecordStore::Next() {
  if (!missing_) file_.Next();
}

void FileRecordStore::Seek(std::u16string_view key) {
  if (!missing_) file_.Seek(key);
}

int FileRecordStore::FieldCount() { return missing_ ? static_cast<int>(fields_.size()) : file_.FieldCount(); }

std::u16string FileRecordStore::Value(int field) {
  if (missing_) Throw(RecordFileError::NoRecord);
  return file_.Value(field);
}

void FileRecordStore::Add() {
  if (!missing_) return file_.Add();
  missing_->added.emplace_back(fields_.size());
}

void FileRecordStore::Write(int field, std::u16string_view text) {
  if (!missing_) return file_.Write(field, text);
  if (missing_->added.empty()) Throw(RecordFileError::NoRecord);
  if (field < 1 || static_cast<std::size_t>(field) > fields_.size())
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  missing_->added.back()[static_cast<std::size_t>(field) - 1] = text;
}

void FileRecordStore::Store() {
  if (missing_) {
    if (missing_->added.empty()) return;
    file_.Create(missing_->path, missing_->directory, tableName_, fields_);
    const Missing made = std::move(*std::exchange(missing_, std::nullopt));
    for (const Record& record : made.added) {
      file_.Add();
      for (std::size_t i = 0; i < record.size(); ++i) file_.Write(static_cast<int>(i) + 1, record[i]);
    }
  }
  file_.Store();
}

}  // namespace qm::recordfile
