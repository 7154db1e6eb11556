// vtable_host MODELFILE [MANIFEST FOLDER]: a host that was compiled long ago. It knows the component's vtable
// by the numbers of its places alone, from its own list and not from the component's headers.

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

#include <cwchar>
#include <initializer_list>

#include "tests/wine/hosts/activation.h"
#include "tests/wine/hosts/expectations.h"

namespace {

constexpr CLSID kPrintForm = {0xEF7037AF, 0xBD84, 0x4BAA, {0x94, 0xE3, 0xC2, 0x35, 0xA8, 0x7C, 0xBF, 0x75}};
constexpr IID kPrintFormFace = {0x8889E8E6, 0x5DA6, 0x4A77, {0x9D, 0x55, 0xDB, 0x88, 0xCA, 0x34, 0x12, 0xFA}};

enum class Holds { Text, Long, Boolean };

struct Field {
  int get;  // the let follows it
  Holds holds;
  const char* name;
};

constexpr Field kFields[] = {
    {10, Holds::Text, "eDir"},
    {12, Holds::Long, "Error"},
    {14, Holds::Text, "ErrDescription"},
    {16, Holds::Boolean, "ImpresionAnulada"},
    {18, Holds::Text, "Attachments"},
    {20, Holds::Text, "HtmDir"},
    {22, Holds::Text, "RutaEmail"},
    {24, Holds::Text, "Email"},
    {26, Holds::Text, "EmailCC"},
    {28, Holds::Text, "DesCC"},
    {30, Holds::Text, "NombreDestinatario"},
    {32, Holds::Text, "EmailTexto"},
    {34, Holds::Text, "EmailTema"},
    {36, Holds::Text, "SMTPHost"},
    {38, Holds::Long, "SMTPPort"},
    {40, Holds::Boolean, "SSL"},
    {42, Holds::Text, "From"},
    {44, Holds::Text, "FromDisplayName"},
    {46, Holds::Text, "UserName"},
    {48, Holds::Text, "Password"},
    {50, Holds::Boolean, "UseAuthentication"},
    {52, Holds::Boolean, "UsePopAuthentication"},
    {54, Holds::Text, "PoP3Host"},
    {56, Holds::Boolean, "Receipt"},
};

// Calls the function at a place of the vtable.
template <class... Arguments>
HRESULT At(void* object, int place, Arguments... arguments) {
  using Function = HRESULT(STDMETHODCALLTYPE*)(void*, Arguments...);
  return reinterpret_cast<Function>((*static_cast<void***>(object))[place])(object, arguments...);
}

void Release(void* object) { static_cast<IUnknown*>(object)->Release(); }

// Each accessor pair reaches the dispatch member of its name: a wrong order would show as another's value.
void CheckFields(void* form, hosts::Expectations& expect) {
  auto* late = static_cast<IDispatch*>(form);
  for (const Field& field : kFields) {
    wchar_t name[40];
    std::swprintf(name, 40, L"%hs", field.name);
    LPOLESTR asked = name;
    DISPID id = 0;
    expect.Result(field.name, S_OK, late->GetIDsOfNames(IID_NULL, &asked, 1, 0, &id));
    BSTR text = SysAllocString(name);
    switch (field.holds) {
      case Holds::Text:
        expect.Result(field.name, S_OK, At(form, field.get + 1, text));
        break;
      case Holds::Long:
        expect.Result(field.name, S_OK, At(form, field.get + 1, LONG{field.get}));
        break;
      case Holds::Boolean:
        expect.Result(field.name, S_OK, At(form, field.get + 1, VARIANT_BOOL{VARIANT_TRUE}));
        break;
    }
    DISPPARAMS none{};
    VARIANT value{};
    expect.Result(field.name, S_OK,
                  late->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr));
    BSTR read = nullptr;
    LONG number = 0;
    VARIANT_BOOL flag = 0;
    switch (field.holds) {
      case Holds::Text:
        expect.Result(field.name, S_OK, At(form, field.get, &read));
        expect.True(field.name, std::wcscmp(read, name) == 0 && value.vt == VT_BSTR &&
                                    std::wcscmp(value.bstrVal, name) == 0);
        break;
      case Holds::Long:
        expect.Result(field.name, S_OK, At(form, field.get, &number));
        expect.True(field.name, number == field.get && value.vt == VT_I4 && value.lVal == number);
        break;
      case Holds::Boolean:
        expect.Result(field.name, S_OK, At(form, field.get, &flag));
        expect.True(field.name, flag == VARIANT_TRUE && value.vt == VT_BOOL && value.boolVal == VARIANT_TRUE);
        At(form, field.get + 1, VARIANT_BOOL{VARIANT_FALSE});
        break;
    }
    SysFreeString(read);
    SysFreeString(text);
    VariantClear(&value);
  }
}

void CheckModelNumber(void* form, hosts::Expectations& expect) {
  VARIANT number{}, read{};
  number.vt = VT_R8;
  number.dblVal = 2.5;
  expect.Result("NumeroModelo let", S_OK, At(form, 8, number));
  expect.Result("NumeroModelo get", S_OK, At(form, 7, &read));
  expect.True("NumeroModelo", read.vt == VT_R8 && read.dblVal == 2.5);
  number.vt = VT_UNKNOWN;
  number.punkVal = static_cast<IUnknown*>(form);
  expect.Result("NumeroModelo set", S_OK, At(form, 9, number));
  expect.Result("NumeroModelo get", S_OK, At(form, 7, &read));
  expect.True("NumeroModelo set", read.vt == VT_UNKNOWN && read.punkVal == form);
  VariantClear(&read);
  number.vt = VT_I2;
  number.iVal = 1;
  expect.Result("NumeroModelo let", S_OK, At(form, 8, number));
}

void Print(void* form, const wchar_t* modelFile, hosts::Expectations& expect) {
  BSTR file = SysAllocString(modelFile), read = nullptr, name = SysAllocString(L"CLIENTE");
  BSTR table = SysAllocString(L"FACTU"), column = SysAllocString(L"IMPORTE (FACTU)"),
       amount = SysAllocString(L"7.25");
  SHORT kind = 3;
  VARIANT value{};
  value.vt = VT_BSTR;
  value.bstrVal = SysAllocString(L"Pe\u00F1a");
  void* record = nullptr;
  expect.Result("XMLFileName let", S_OK, At(form, 69, file));
  expect.Result("XMLFileName get", S_OK, At(form, 70, &read));
  expect.True("XMLFileName", std::wcscmp(read, modelFile) == 0);
  expect.Result("AsignarCampo", S_OK, At(form, 63, &name, &value, &record));
  expect.True("AsignarCampo", record != nullptr);
  if (record) {
    BSTR field = nullptr;
    expect.Result("Campo get", S_OK, At(record, 7, &field));
    expect.True("Campo", std::wcscmp(field, L"CLIENTE") == 0);
    SysFreeString(field);
    expect.Result("Valor get", S_OK, At(record, 9, &field));
    expect.True("Valor", std::wcscmp(field, L"Pe\u00F1a") == 0);
    SysFreeString(field);
    Release(record);
  }
  expect.Result("AñadirTabla", S_OK, At(form, 65, &table, &record));
  Release(record);
  expect.Result("AñadirCampoTabla", S_OK, At(form, 58, &table, &column, &amount, &kind));
  expect.Result("AñadirCampo", S_OK, At(form, 64, &name, &record));
  Release(record);
  expect.Result("ImprimirModelo", S_OK, At(form, 62));
  VARIANT_BOOL cancelled = VARIANT_TRUE;
  At(form, 16, &cancelled);
  expect.True("not cancelled", cancelled == VARIANT_FALSE);
  for (BSTR text : {file, read, name, table, column, amount, value.bstrVal}) SysFreeString(text);
}

// Nobody is to be written to, so nothing is handed off.
void CheckMail(void* form, hosts::Expectations& expect) {
  BSTR folder = SysAllocString(L"C:\\");
  BSTR file = SysAllocString(L"carta.doc");
  BSTR unused = nullptr;
  expect.Result("put_Email", S_OK, At(form, 25, unused));
  expect.Result("EmailModelo", S_OK, At(form, 59, &folder, &unused, &file));
  expect.Result("EnviarEmail", S_OK, At(form, 60));
  SysFreeString(folder);
  SysFreeString(file);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2 && count != 4) return 2;
  hosts::Expectations expect;
  const hosts::ActivationContext context(count == 4 ? arguments[2] : nullptr,
                                         count == 4 ? arguments[3] : nullptr);
  expect.True("activation context", context.Active() == (count == 4));
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  void* form = nullptr;
  expect.Result("create", S_OK,
                CoCreateInstance(kPrintForm, nullptr, CLSCTX_INPROC_SERVER, kPrintFormFace, &form));
  if (form) {
    CheckFields(form, expect);
    CheckModelNumber(form, expect);
    CheckMail(form, expect);
    Print(form, arguments[1], expect);
    Release(form);
  }
  CoUninitialize();
  return expect.Finish();
}
