#include "automation/variants.h"

#include <oleauto.h>
#include <wrl/client.h>

#include "automation/com_call.h"
#include "automation/object_call.h"
#include "automation/text.h"

namespace qm::automation {

namespace {

using Microsoft::WRL::ComPtr;
using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr int kDeepestDefault = 16;  // a default property may be an object again

void GetDefaultProperty(IUnknown* object, OwnedVariant& value) {
  if (!object) throw RuntimeError(ErrorNumber::ObjectNotSet);
  ComPtr<IDispatch> dispatch;
  if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch)))) throw RuntimeError(ErrorNumber::TypeMismatch);
  InvokeObject(*dispatch.Get(), DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, nullptr, &value.Get());
}

}  // namespace

void OwnedVariant::CopyFrom(const VARIANT& source) {
  if ((source.vt & VT_BYREF) && !source.byref) throw RuntimeError(ErrorNumber::InvalidArgument);
  ThrowIfFailed(VariantCopyInd(&value_, const_cast<VARIANT*>(&source)));
}

VARIANT OwnedVariant::Release() noexcept {
  const VARIANT released = value_;
  VariantInit(&value_);
  return released;
}

HRESULT ChangeType(VARIANT& converted, const VARIANT& value, VARTYPE type) noexcept {
  return VariantChangeTypeEx(&converted, const_cast<VARIANT*>(&value), GetUserDefaultLCID(),
                             VARIANT_LOCALBOOL, type);
}

void Resolve(const VARIANT& source, OwnedVariant& plain) {
  plain.CopyFrom(source);
  for (int depth = 0; plain->vt == VT_DISPATCH || plain->vt == VT_UNKNOWN; ++depth) {
    if (depth == kDeepestDefault) throw RuntimeError(ErrorNumber::TypeMismatch);
    OwnedVariant value;
    GetDefaultProperty(plain->punkVal, value);
    plain.CopyFrom(value.Get());
  }
  if (plain->vt == VT_NULL) throw RuntimeError(ErrorNumber::InvalidUseOfNull);
  if (plain->vt == VT_ERROR || (plain->vt & VT_ARRAY)) throw RuntimeError(ErrorNumber::TypeMismatch);
}

void Convert(const VARIANT& value, VARTYPE type, OwnedVariant& converted) {
  OwnedVariant plain;
  Resolve(value, plain);
  ThrowIfFailed(ChangeType(converted.Get(), plain.Get(), type));
}

std::u16string TextOf(const VARIANT& value) {
  OwnedVariant text;
  Convert(value, VT_BSTR, text);
  return std::u16string(TextOf(text->bstrVal));
}

}  // namespace qm::automation
