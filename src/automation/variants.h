#pragma once
// Variants of the host as values of the core, by the rules of the automation runtime and in the user's
// locale. Errors: 94 for Null, 13 for arrays, error values and texts that are no number, 91 for Nothing, 6
// overflow;
//         an object stands for its default property, whose errors pass as they are.

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace qm::automation {

class OwnedVariant {
 public:
  OwnedVariant() noexcept { VariantInit(&value_); }
  ~OwnedVariant() { VariantClear(&value_); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;

  [[nodiscard]] VARIANT& Get() noexcept { return value_; }
  [[nodiscard]] const VARIANT& Get() const noexcept { return value_; }
  VARIANT* operator->() noexcept { return &value_; }
  // A copy of the value, or of what it refers to.
  void CopyFrom(const VARIANT& source);
  // Gives the value away.
  [[nodiscard]] VARIANT Release() noexcept;

 private:
  VARIANT value_;
};

// The automation library's conversion in the user's locale, with the locale's words for Booleans.
[[nodiscard]] HRESULT ChangeType(VARIANT& converted, const VARIANT& value, VARTYPE type) noexcept;

[[nodiscard]] std::u16string TextOf(const VARIANT& value);
// The value as one of VT_BSTR, VT_I2, VT_I4 and VT_BOOL.
void Convert(const VARIANT& value, VARTYPE type, OwnedVariant& converted);
// A plain value: no reference, no object, no Null, nothing without a value.
void Resolve(const VARIANT& source, OwnedVariant& plain);

}  // namespace qm::automation
