#include "api/host_record_file.h"

#include <dispex.h>
#include <oleauto.h>

#include "automation/object_call.h"
#include "runtime/error.h"

namespace qm::api {

namespace {

using automation::OwnedVariant;
using runtime::ErrorNumber;
using runtime::RuntimeError;

enum Member : std::size_t {
  kTipoCampo,
  kFinArchivo,
  kSiguiente,
  kNumeroRegistros,
  kNumeroCampos,
  kValorCampo,
  kNombreDelCampo,
  kNombreDeTabla,
};

constexpr const wchar_t* kNames[] = {L"TipoCampo",    L"FinArchivo", L"Siguiente",      L"NumeroRegistros",
                                     L"NumeroCampos", L"ValorCampo", L"NombreDelCampo", L"NombreDeTabla"};

std::int16_t AsInteger(const OwnedVariant& answer) {
  OwnedVariant number;
  automation::Convert(answer.Get(), VT_I2, number);
  return number->iVal;
}

}  // namespace

HostRecordFile::HostRecordFile(IUnknown* object) {
  if (!object) throw RuntimeError(ErrorNumber::ObjectNotSet);
  if (FAILED(object->QueryInterface(IID_PPV_ARGS(&object_)))) throw RuntimeError(ErrorNumber::TypeMismatch);
  Microsoft::WRL::ComPtr<IDispatchEx> script;
  ofScript_ = SUCCEEDED(object_.As(&script));
}

std::int16_t HostRecordFile::TipoCampo(std::int16_t campo) {
  OwnedVariant answer;
  AskOfField(kTipoCampo, campo, answer);
  return AsInteger(answer);
}

bool HostRecordFile::FinArchivo() {
  OwnedVariant answer, end;
  Ask(kFinArchivo, answer);
  automation::Convert(answer.Get(), VT_BOOL, end);
  return end->boolVal != VARIANT_FALSE;
}

void HostRecordFile::Siguiente() { Invoke(kSiguiente, nullptr, nullptr); }

std::int32_t HostRecordFile::NumeroRegistros() {
  OwnedVariant answer, count;
  Ask(kNumeroRegistros, answer);
  automation::Convert(answer.Get(), VT_I4, count);
  return count->lVal;
}

std::int16_t HostRecordFile::NumeroCampos() {
  OwnedVariant answer;
  Ask(kNumeroCampos, answer);
  return AsInteger(answer);
}

std::u16string HostRecordFile::ValorCampo(std::int16_t campo) {
  OwnedVariant answer;
  AskOfField(kValorCampo, campo, answer);
  return automation::TextOf(answer.Get());
}

std::u16string HostRecordFile::NombreDelCampo(std::int16_t campo) {
  OwnedVariant answer;
  AskOfField(kNombreDelCampo, campo, answer);
  return automation::TextOf(answer.Get());
}

std::u16string HostRecordFile::NombreDeTabla() {
  OwnedVariant answer;
  Ask(kNombreDeTabla, answer);
  return automation::TextOf(answer.Get());
}

// An operation with an answer may be a property of the object.
void HostRecordFile::Invoke(std::size_t member, VARIANT* argument, VARIANT* result) {
  std::optional<DISPID>& id = ids_[member];
  if (!id) id = automation::IdOfMember(*object_.Get(), kNames[member]);
  const int flags = result ? DISPATCH_METHOD | DISPATCH_PROPERTYGET : DISPATCH_METHOD;
  automation::InvokeObject(*object_.Get(), *id, static_cast<WORD>(flags), argument, result);
}

void HostRecordFile::Ask(std::size_t member, OwnedVariant& answer) { Invoke(member, nullptr, &answer.Get()); }

// The object gets a number of its own, which it may change.
void HostRecordFile::AskOfField(std::size_t member, std::int16_t field, OwnedVariant& answer) {
  OwnedVariant number;
  number->vt = VT_I2;
  number->iVal = field;
  VARIANT reference{};
  reference.vt = VT_BYREF | (ofScript_ ? VT_VARIANT : VT_I2);
  reference.byref = ofScript_ ? static_cast<void*>(&number.Get()) : &number->iVal;
  Invoke(member, &reference, &answer.Get());
}

}  // namespace qm::api
