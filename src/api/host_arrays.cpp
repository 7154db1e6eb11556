#include "api/host_arrays.h"

#include <oleauto.h>

#include "automation/com_call.h"
#include "automation/variants.h"

namespace qm::api {

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

struct Feature {
  USHORT flag;
  VARTYPE type;
};

constexpr Feature kFeatures[] = {{FADF_BSTR, VT_BSTR},
                                 {FADF_VARIANT, VT_VARIANT},
                                 {FADF_DISPATCH, VT_DISPATCH},
                                 {FADF_UNKNOWN, VT_UNKNOWN}};

// Compiled hosts may leave the type out; then the array's features tell what must be copied and freed, and
// the size of the rest is that of an integer.
VARTYPE ElementType(SAFEARRAY& array) {
  VARTYPE type = VT_EMPTY;
  if (FAILED(SafeArrayGetVartype(&array, &type))) {
    if (SafeArrayGetElemsize(&array) == sizeof(SHORT)) type = VT_I2;
    for (const Feature& feature : kFeatures) {
      if (array.fFeatures & feature.flag) type = feature.type;
    }
  }
  if (type == VT_EMPTY || type == VT_RECORD) throw RuntimeError(ErrorNumber::TypeMismatch);
  return type;
}

}  // namespace

HostArray::HostArray(SAFEARRAY* array) : array_(array) {
  if (array) automation::ThrowIfFailed(SafeArrayLock(array));
}

HostArray::~HostArray() {
  if (array_) SafeArrayUnlock(array_);
}

VARIANT HostArray::At(std::int16_t file, std::int16_t field) const {
  if (!array_ || SafeArrayGetDim(array_) != 2) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  LONG indices[] = {file, field};
  VARIANT element{};
  automation::ThrowIfFailed(SafeArrayPtrOfIndex(array_, indices, &element.byref));
  element.vt = static_cast<VARTYPE>(VT_BYREF | ElementType(*array_));
  return element;
}

std::u16string HostArrays::Value(std::int16_t file, std::int16_t field) {
  return automation::TextOf(values_.At(file, field));
}

std::int16_t HostArrays::Type(std::int16_t file, std::int16_t field) {
  automation::OwnedVariant number;
  automation::Convert(types_.At(file, field), VT_I2, number);
  return number->iVal;
}

}  // namespace qm::api
