#pragma once
// The records of a table in the order of a key: a field without its outer blanks, case folded. Records of the
// same key follow each other in the order of the file.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "recordfile/table.h"

namespace qm::recordfile {

class KeyOrder {
 public:
  // The file's own order, in which nothing can be sought.
  explicit KeyOrder(std::size_t recordCount);
  KeyOrder(const Table& table, std::size_t field);

  [[nodiscard]] std::size_t Count() const { return records_.size(); }
  [[nodiscard]] bool HasKey() const { return hasKey_; }
  [[nodiscard]] std::size_t RecordAt(std::size_t place) const { return records_[place]; }
  [[nodiscard]] std::size_t PlaceOf(std::size_t record) const;
  // The place of the first record of that key; one with the very same letters goes before others.
  [[nodiscard]] std::optional<std::size_t> Find(std::u16string_view key) const;

 private:
  struct Key {
    std::u16string folded;
    std::u16string exact;
  };

  bool hasKey_;
  std::vector<std::size_t> records_;  // by place
  std::vector<Key> keys_;             // by place
};

}  // namespace qm::recordfile
