#include "recordfile/key_order.h"

#include <algorithm>
#include <numeric>

#include "runtime/strings.h"

namespace qm::recordfile {

KeyOrder::KeyOrder(std::size_t recordCount) : hasKey_(false), records_(recordCount) {
  std::iota(records_.begin(), records_.end(), std::size_t{0});
}

KeyOrder::KeyOrder(const Table& table, std::size_t field) : KeyOrder(table.records.size()) {
  hasKey_ = true;
  std::vector<Key> byRecord;
  byRecord.reserve(table.records.size());
  for (const Record& record : table.records) {
    std::u16string exact(runtime::Trim(record[field]));
    byRecord.push_back({runtime::UCase(exact), std::move(exact)});
  }
  std::stable_sort(records_.begin(), records_.end(),
                   [&](std::size_t a, std::size_t b) { return byRecord[a].folded < byRecord[b].folded; });
  keys_.reserve(byRecord.size());
  for (const std::size_t record : records_) keys_.push_back(std::move(byRecord[record]));
}

std::size_t KeyOrder::PlaceOf(std::size_t record) const {
  return static_cast<std::size_t>(std::find(records_.begin(), records_.end(), record) - records_.begin());
}

std::optional<std::size_t> KeyOrder::Find(std::u16string_view key) const {
  const std::u16string_view exact = runtime::Trim(key);
  const std::u16string folded = runtime::UCase(std::u16string(exact));
  auto place =
      std::lower_bound(keys_.begin(), keys_.end(), folded,
                       [](const Key& each, const std::u16string& sought) { return each.folded < sought; });
  if (place == keys_.end() || place->folded != folded) return std::nullopt;
  const auto first = place;
  for (; place != keys_.end() && place->folded == folded; ++place) {
    if (place->exact == exact) return static_cast<std::size_t>(place - keys_.begin());
  }
  return static_cast<std::size_t>(first - keys_.begin());
}

}  // namespace qm::recordfile
