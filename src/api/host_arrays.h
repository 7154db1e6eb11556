#pragma once
// The host's two-dimensional arrays, with the bounds that they have: texts and integers, or anything that
// converts to them.
// Errors: 9 for an index outside an array, for an array that was never dimensioned and for one of another
//         number of dimensions; 13, 6 and 94 for elements that do not convert. Raised where an element is
//         asked for, not before.

#include <windows.h>

#include <oaidl.h>

#include "data/bulk_loading.h"

namespace qm::api {

// Locked while it is used, so that the host cannot take it away in a call made meanwhile.
class HostArray {
 public:
  explicit HostArray(SAFEARRAY* array);
  ~HostArray();
  HostArray(const HostArray&) = delete;
  HostArray& operator=(const HostArray&) = delete;

  // A reference to the element, valid as long as the array is.
  [[nodiscard]] VARIANT At(std::int16_t file, std::int16_t field) const;

 private:
  SAFEARRAY* array_;
};

class HostArrays final : public data::RecordArrays {
 public:
  HostArrays(SAFEARRAY* values, SAFEARRAY* types) : values_(values), types_(types) {}

  [[nodiscard]] std::u16string Value(std::int16_t file, std::int16_t field) override;
  [[nodiscard]] std::int16_t Type(std::int16_t file, std::int16_t field) override;

 private:
  HostArray values_;
  HostArray types_;
};

}  // namespace qm::api
