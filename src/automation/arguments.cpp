#include "automation/arguments.h"

#include <oleauto.h>

#include "automation/com_call.h"
#include "automation/text.h"

namespace qm::automation {

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

RuntimeError Missing() { return {449, u"Argumento no opcional"}; }
RuntimeError WrongCount() {
  return {450, u"Número de argumentos incorrecto o asignación de propiedad no válida"};
}

VARTYPE VariantTypeOf(Type type) {
  switch (type) {
    case Type::Text:
      return VT_BSTR;
    case Type::Integer:
      return VT_I2;
    case Type::Long:
      return VT_I4;
    case Type::Boolean:
      return VT_BOOL;
    case Type::Variant:
      return VT_VARIANT;
    case Type::Dispatch:
    case Type::Object:
      return VT_DISPATCH;
    case Type::TextArray:
    case Type::IntegerArray:
      return VT_ARRAY;
    case Type::None:
      break;
  }
  return VT_EMPTY;
}

// Script hosts pass their variables as references to variants.
const VARIANT& Inner(const VARIANT& source) {
  return source.vt == (VT_BYREF | VT_VARIANT) && source.pvarVal ? *source.pvarVal : source;
}

bool IsMissing(const VARIANT& source) {
  const VARIANT& value = Inner(source);
  return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

// The address of the array reference, wherever it is held.
SAFEARRAY** ArrayOf(const VARIANT& source) {
  const VARIANT& value = Inner(source);
  if (!(value.vt & VT_ARRAY)) throw RuntimeError(ErrorNumber::TypeMismatch);
  return value.vt & VT_BYREF ? value.pparray : const_cast<SAFEARRAY**>(&value.parray);
}

IUnknown* ObjectOf(const VARIANT& source) {
  const VARIANT& value = Inner(source);
  switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL:  // JScript's null
      return nullptr;
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return value.punkVal;
    case VT_BYREF | VT_DISPATCH:
    case VT_BYREF | VT_UNKNOWN:
      return value.ppunkVal ? *value.ppunkVal : nullptr;
    default:
      throw RuntimeError(ErrorNumber::TypeMismatch);
  }
}

LONG NumberIn(const VARIANT& value) { return value.vt == VT_I4 ? value.lVal : value.iVal; }

void StoreThrough(const VARIANT& reference, const VARIANT& value) noexcept {
  if (reference.vt == (VT_BYREF | VT_VARIANT)) {
    VariantCopy(reference.pvarVal, const_cast<VARIANT*>(&value));
    return;
  }
  VARIANT converted{};
  const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
  if (FAILED(ChangeType(converted, value, type))) return;
  switch (type) {
    case VT_BSTR:
      SysFreeString(*reference.pbstrVal);
      *reference.pbstrVal = converted.bstrVal;
      break;
    case VT_I2:
    case VT_BOOL:
      *reference.piVal = converted.iVal;
      break;
    case VT_I4:
    case VT_INT:
      *reference.plVal = converted.lVal;
      break;
    case VT_R8:
      *reference.pdblVal = converted.dblVal;
      break;
    default:
      VariantClear(&converted);
      break;
  }
}

}  // namespace

Arguments::Argument& Arguments::Add(VARTYPE type) {
  Argument& argument = arguments_[count_];
  types_[count_] = type;
  values_[count_] = &argument.passed;
  ++count_;
  return argument;
}

// Sorts positional and named arguments into the order of the parameters.
void Arguments::Place(const Function& function, const DISPPARAMS& passed,
                      std::array<const VARIANT*, kMostParameters>& given) {
  const std::size_t most = function.access == Access::Call  ? function.member->ParameterCount()
                           : function.access == Access::Get ? 0
                                                            : 1;
  if (passed.cArgs > most || passed.cNamedArgs > passed.cArgs) throw WrongCount();
  if (passed.cArgs > 0) Required(passed.rgvarg);
  if (passed.cNamedArgs > 0) Required(passed.rgdispidNamedArgs);
  for (UINT i = passed.cNamedArgs; i < passed.cArgs; ++i) given[passed.cArgs - 1 - i] = &passed.rgvarg[i];
  for (UINT i = 0; i < passed.cNamedArgs; ++i) {
    DISPID id = passed.rgdispidNamedArgs[i];
    if (id == DISPID_PROPERTYPUT && function.access != Access::Call) id = 0;
    wrong_ = i;
    if (id < 0 || static_cast<std::size_t>(id) >= most || given[static_cast<std::size_t>(id)]) {
      throw RuntimeError(448, u"No se encontró el argumento con nombre");
    }
    given[static_cast<std::size_t>(id)] = &passed.rgvarg[i];
  }
}

void Arguments::Take(const Function& function, const DISPPARAMS& passed) {
  std::array<const VARIANT*, kMostParameters> given{};
  Place(function, passed, given);
  const Member& member = *function.member;
  if (function.access == Access::Let || function.access == Access::Set) {
    if (!given[0]) throw Missing();
    wrong_ = 0;
    TakeValue(*given[0], member.type, Add(VariantTypeOf(member.type)));
    return;
  }
  for (std::size_t i = 0; i < member.ParameterCount(); ++i) {
    const Parameter& parameter = member.parameters[i];
    wrong_ = given[i] ? static_cast<UINT>(given[i] - passed.rgvarg) : 0;
    Argument& argument = Add(static_cast<VARTYPE>(VT_BYREF | VariantTypeOf(parameter.type)));
    if (given[i] && !IsMissing(*given[i])) {
      TakeReference(*given[i], parameter, argument);
    } else if (parameter.optional) {
      const VARIANT nothing{};
      TakeReference(nothing, parameter, argument);
    } else {
      throw Missing();
    }
  }
}

void Arguments::TakeReference(const VARIANT& source, const Parameter& parameter, Argument& argument) {
  switch (parameter.type) {
    case Type::Variant:
      argument.passed.byref = const_cast<VARIANT*>(&Inner(source));
      break;
    case Type::TextArray:
    case Type::IntegerArray:
      argument.passed.byref = ArrayOf(source);
      break;
    case Type::Object: {  // any automation object will do: its members are called by their names
      argument.converted->vt = VT_UNKNOWN;
      argument.converted->punkVal = nullptr;
      IUnknown* object = ObjectOf(source);
      if (object && FAILED(object->QueryInterface(IID_IDispatch,
                                                  reinterpret_cast<void**>(&argument.converted->punkVal)))) {
        argument.converted->punkVal = nullptr;
        throw RuntimeError(ErrorNumber::TypeMismatch);
      }
      argument.passed.byref = &argument.converted->punkVal;
      break;
    }
    default:
      TakeScalarReference(source, VariantTypeOf(parameter.type), argument);
      break;
  }
  argument.passed.vt = VT_BYREF;
}

void Arguments::TakeScalarReference(const VARIANT& source, VARTYPE type, Argument& argument) {
  const VARIANT& value = Inner(source);
  const bool isReference = source.vt & VT_BYREF;
  if (value.vt == (VT_BYREF | type) && value.byref) {
    argument.passed.byref = value.byref;
    return;
  }
  Convert(value, type, argument.converted);
  argument.passed.byref = &argument.converted->byref;  // the members of the union share their address
  if (!isReference) return;
  argument.origin = value.vt & VT_BYREF ? &value : &source;
  if (type == VT_BSTR)
    argument.textBefore = TextOf(argument.converted->bstrVal);
  else
    argument.numberBefore = NumberIn(argument.converted.Get());
}

void Arguments::TakeValue(const VARIANT& source, Type type, Argument& argument) {
  if (type == Type::Variant) {
    argument.passed = source;  // the method copies what it keeps
    return;
  }
  Convert(source, VariantTypeOf(type), argument.converted);
  argument.passed = argument.converted.Get();
}

void Arguments::AddResult(const Function& function, OwnedVariant& returned) {
  const Type type = function.member->type;
  if (type == Type::None || function.access == Access::Let || function.access == Access::Set) return;
  Argument& argument = Add(static_cast<VARTYPE>(VT_BYREF | VariantTypeOf(type)));
  argument.passed.vt = VT_BYREF;
  if (type == Type::Variant) {
    argument.passed.byref = &returned.Get();
    return;
  }
  returned->vt = VariantTypeOf(type);
  returned->byref = nullptr;
  argument.passed.byref = &returned->byref;
}

void Arguments::GiveBack() noexcept {
  for (Argument& argument : arguments_) {
    if (!argument.origin) continue;
    const VARIANT& value = argument.converted.Get();
    const bool changed = value.vt == VT_BSTR ? TextOf(value.bstrVal) != argument.textBefore
                                             : NumberIn(value) != argument.numberBefore;
    if (changed) StoreThrough(*argument.origin, value);
  }
}

}  // namespace qm::automation
