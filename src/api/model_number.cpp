#include "api/model_number.h"

#include "automation/com_call.h"
#include "automation/text.h"
#include "automation/variants.h"

namespace qm::api {

using automation::OwnedVariant;
using runtime::ErrorNumber;
using runtime::RuntimeError;

data::ModelNumber ModelNumberOf(const VARIANT& value) {
  OwnedVariant plain;
  try {
    automation::Resolve(value, plain);
  } catch (const RuntimeError& error) {
    if (error.Is(ErrorNumber::InvalidUseOfNull)) return data::NullNumber{};
    throw;
  }
  if (plain->vt == VT_EMPTY) return std::monostate{};
  if (plain->vt == VT_BSTR) return std::u16string(automation::TextOf(plain->bstrVal));
  OwnedVariant number;
  automation::ThrowIfFailed(automation::ChangeType(number.Get(), plain.Get(), VT_R8));
  return number->dblVal;
}

}  // namespace qm::api
