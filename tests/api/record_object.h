#pragma once
// A record file of a host.

#include "tests/api/component.h"
#include "tests/api/host_object.h"

namespace qm::tests {

// Two records of two fields; the position is past the end after two moves.
class RecordObject : public HostObject {
 public:
  int position = 0;
  int count = 2;

  RecordObject() {
    Set(L"TipoCampo", [](const Call& call) { return Give(call, Value::Short(0)); });
    Set(L"FinArchivo", [this](const Call& call) { return Give(call, Value::Boolean(position >= 2)); });
    Set(L"Siguiente", [this](const Call&) {
      ++position;
      return S_OK;
    });
    Set(L"NumeroRegistros", [this](const Call& call) { return Give(call, Value(static_cast<LONG>(count))); });
    Set(L"NumeroCampos", [](const Call& call) { return Give(call, Value::Short(2)); });
    Set(L"ValorCampo", [](const Call& call) { return Give(call, Value(L"valor")); });
    Set(L"NombreDelCampo", [](const Call& call) { return Give(call, Value(L"CAMPO")); });
    Set(L"NombreDeTabla", [](const Call& call) { return Give(call, Value(L"CLIEN")); });
  }

  static HRESULT Give(const Call& call, const Value& value) {
    return VariantCopy(call.result, const_cast<Value*>(&value));
  }
};

}  // namespace qm::tests
