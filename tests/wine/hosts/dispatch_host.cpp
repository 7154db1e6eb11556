// dispatch_host MODELFILE [MANIFEST FOLDER]: a C++ host that calls by name only, from the program id to the
// last action, and that calls through the component's own type information as well.

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <cwchar>
#include <initializer_list>
#include <iterator>
#include <vector>

#include "tests/wine/hosts/activation.h"
#include "tests/wine/hosts/expectations.h"

namespace {

using Microsoft::WRL::ComPtr;

VARIANT Text(const wchar_t* text) {
  VARIANT value{};
  value.vt = VT_BSTR;
  value.bstrVal = SysAllocString(text);
  return value;
}

VARIANT Number(LONG number) {
  VARIANT value{};
  value.vt = VT_I4;
  value.lVal = number;
  return value;
}

// Takes the arguments over. The number of a raised error comes back as its HRESULT.
HRESULT Invoke(IDispatch* object, const wchar_t* name, WORD flags, std::initializer_list<VARIANT> given,
               VARIANT* result = nullptr) {
  auto* asked = const_cast<LPOLESTR>(name);
  DISPID id = 0, put = DISPID_PROPERTYPUT;
  std::vector<VARIANT> arguments(std::rbegin(given), std::rend(given));
  HRESULT outcome = object->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
  if (SUCCEEDED(outcome)) {
    const UINT named = flags == DISPATCH_PROPERTYPUT ? 1 : 0;
    DISPPARAMS parameters{arguments.data(), named ? &put : nullptr, static_cast<UINT>(arguments.size()),
                          named};
    EXCEPINFO exception{};
    outcome =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &exception, nullptr);
    if (outcome == DISP_E_EXCEPTION) outcome = exception.scode;
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
  }
  for (VARIANT& argument : arguments) VariantClear(&argument);
  return outcome;
}

void Print(IDispatch* form, const wchar_t* modelFile, hosts::Expectations& expect) {
  VARIANT record{};
  expect.Result("XMLFileName", S_OK, Invoke(form, L"XMLFileName", DISPATCH_PROPERTYPUT, {Text(modelFile)}));
  expect.Result("NumeroModelo", S_OK, Invoke(form, L"NumeroModelo", DISPATCH_PROPERTYPUT, {Number(1)}));
  expect.Result(
      "AsignarCampo", S_OK,
      Invoke(form, L"AsignarCampo", DISPATCH_METHOD, {Text(L"CLIENTE"), Text(L"G\u00F3mez")}, &record));
  expect.True("record", record.vt == VT_DISPATCH && record.pdispVal);
  VariantClear(&record);
  expect.Result("AñadirCampoTabla", S_OK,
                Invoke(form, L"A\u00F1adirCampoTabla", DISPATCH_METHOD,
                       {Text(L"FACTU"), Text(L"IMPORTE (FACTU)"), Text(L"0.5"), Number(3)}));
  expect.Result("ImprimirModelo", S_OK, Invoke(form, L"ImprimirModelo", DISPATCH_METHOD, {}));
  expect.Result("NumeroModelo", S_OK, Invoke(form, L"NumeroModelo", DISPATCH_PROPERTYPUT, {Number(99)}));
  expect.Result("no such model", static_cast<HRESULT>(0x800AC3B6),
                Invoke(form, L"ImprimirModelo", DISPATCH_METHOD, {}));
}

// Hosts that keep the type information call the object through it.
void CallThroughTypeInformation(IDispatch* form, hosts::Expectations& expect) {
  ComPtr<ITypeInfo> information;
  expect.Result("type information", S_OK, form->GetTypeInfo(0, LOCALE_USER_DEFAULT, &information));
  if (!information) return;
  VARIANT value = Text(L"por el tipo");
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{&value, &put, 1, 1}, none{};
  EXCEPINFO exception{};
  expect.Result(
      "let", S_OK,
      information->Invoke(form, 0x40030007, DISPATCH_PROPERTYPUT, &parameters, nullptr, &exception, nullptr));
  VariantClear(&value);
  expect.Result(
      "get", S_OK,
      information->Invoke(form, 0x40030007, DISPATCH_PROPERTYGET, &none, &value, &exception, nullptr));
  expect.True("value", value.vt == VT_BSTR && std::wcscmp(value.bstrVal, L"por el tipo") == 0);
  VariantClear(&value);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2 && count != 4) return 2;
  hosts::Expectations expect;
  const hosts::ActivationContext context(count == 4 ? arguments[2] : nullptr,
                                         count == 4 ? arguments[3] : nullptr);
  expect.True("activation context", context.Active() == (count == 4));
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  {
    CLSID id{};
    ComPtr<IDispatch> form;
    expect.Result("program id", S_OK, CLSIDFromProgID(L"Qm_Modelo_Impresion3.PrintForm", &id));
    expect.Result("create", S_OK, CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&form)));
    if (form) {
      Print(form.Get(), arguments[1], expect);
      CallThroughTypeInformation(form.Get(), expect);
    }
  }
  CoUninitialize();
  return expect.Finish();
}
