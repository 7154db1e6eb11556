// apartment_host: a host in a multithreaded apartment. The component lives in the apartment that COM makes
// for it, and every call goes through the automation marshaler, by name and through the vtable. The marshaler
// reads the type libraries, the one that the component's imports as well: both are registered.

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <cwchar>

#include "api/typelib/QmModImp3.h"
#include "tests/wine/hosts/expectations.h"

namespace {

using namespace Qm_Modelo_Impresion3;
using Microsoft::WRL::ComPtr;

bool Is(BSTR text, const wchar_t* expected) {
  const bool same = text && std::wcscmp(text, expected) == 0;
  SysFreeString(text);
  return same;
}

void CallByName(hosts::Expectations& expect) {
  ComPtr<IDispatch> form;
  expect.Result("create", S_OK,
                CoCreateInstance(CLSID_PrintForm, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&form)));
  if (!form) return;
  DISPPARAMS none{};
  VARIANT value{};
  EXCEPINFO exception{};
  expect.Result(
      "get", S_OK,
      form->Invoke(0x40030008, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, &exception, nullptr));
  expect.True("Error", value.vt == VT_I4 && value.lVal == 0);
  expect.Result("ImprimirModelo", DISP_E_EXCEPTION,
                form->Invoke(0x60030009, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, &exception, nullptr));
  expect.Result("error", static_cast<HRESULT>(0x800AC3B5), exception.scode);
}

void CallThroughTheVtable(hosts::Expectations& expect) {
  ComPtr<_PrintForm> form;
  expect.Result("create", S_OK,
                CoCreateInstance(CLSID_PrintForm, nullptr, CLSCTX_INPROC_SERVER, IID__PrintForm,
                                 reinterpret_cast<void**>(form.GetAddressOf())));
  if (!form) return;
  BSTR name = SysAllocString(L"CAMPO"), read = nullptr;
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = 5;
  ComPtr<_Campos> record;
  expect.Result("let", S_OK, form->put_eDir(name));
  expect.Result("get", S_OK, form->get_eDir(&read));
  expect.True("eDir", Is(read, L"CAMPO"));
  expect.Result("AsignarCampo", S_OK, form->AsignarCampo(&name, &value, &record));
  expect.True("record", record != nullptr);
  if (record) {
    expect.Result("Valor", S_OK, record->get_Valor(&read));
    expect.True("Valor", Is(read, L"5"));
  }
  expect.Result("ImprimirModelo", static_cast<HRESULT>(0x800AC3B5), form->ImprimirModelo());
  SysFreeString(name);
}

}  // namespace

int wmain() {
  hosts::Expectations expect;
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  CallByName(expect);
  CallThroughTheVtable(expect);
  const int code = expect.Finish();
  CoUninitialize();
  return code;
}
