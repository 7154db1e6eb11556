// bulk_host vtable|dispatch MODELFILE TABLE: a C++ host that loads records from its arrays and from a record
// file of its own. Bound through the vtable it passes the arrays by their address, as compiled hosts do, and
// knows the interface by the numbers of its places; late-bound it passes variants.

#include <windows.h>

#include <objbase.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <cwchar>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include "tests/api/host_object.h"
#include "tests/api/safe_array.h"
#include "tests/wine/hosts/expectations.h"

namespace {

using Microsoft::WRL::ComPtr;
using qm::tests::HostObject;
using qm::tests::SafeArray;

constexpr CLSID kPrintForm = {0xEF7037AF, 0xBD84, 0x4BAA, {0x94, 0xE3, 0xC2, 0x35, 0xA8, 0x7C, 0xBF, 0x75}};
constexpr IID kPrintFormFace = {0x8889E8E6, 0x5DA6, 0x4A77, {0x9D, 0x55, 0xDB, 0x88, 0xCA, 0x34, 0x12, 0xFA}};

constexpr HRESULT ErrorResult(unsigned number) { return static_cast<HRESULT>(0x800A0000U | number); }

class Form {
 public:
  virtual ~Form() = default;
  virtual HRESULT SetFile(const wchar_t* name) = 0;
  virtual HRESULT LoadArrays(const std::wstring& table, SHORT file, SAFEARRAY** values,
                             SAFEARRAY** types) = 0;
  virtual HRESULT LoadOne(IDispatch* records) = 0;
  virtual HRESULT LoadAll(IDispatch* records) = 0;
  virtual HRESULT Print() = 0;
};

class VtableForm : public Form {
 public:
  VtableForm() { CoCreateInstance(kPrintForm, nullptr, CLSCTX_INPROC_SERVER, kPrintFormFace, &form_); }
  ~VtableForm() override { static_cast<IUnknown*>(form_)->Release(); }

  HRESULT SetFile(const wchar_t* name) override {
    BSTR text = SysAllocString(name);
    const HRESULT result = At(69, text);
    SysFreeString(text);
    return result;
  }
  HRESULT LoadArrays(const std::wstring& table, SHORT file, SAFEARRAY** values, SAFEARRAY** types) override {
    BSTR text = SysAllocString(table.c_str());
    const HRESULT result = At(66, &text, &file, values, types);
    SysFreeString(text);
    return result;
  }
  HRESULT LoadOne(IDispatch* records) override { return At(67, &records); }
  HRESULT LoadAll(IDispatch* records) override { return At(71, &records); }
  HRESULT Print() override { return At(62); }

 private:
  template <class... Arguments>
  HRESULT At(int place, Arguments... arguments) {
    using Function = HRESULT(STDMETHODCALLTYPE*)(void*, Arguments...);
    return reinterpret_cast<Function>((*static_cast<void***>(form_))[place])(form_, arguments...);
  }

  void* form_ = nullptr;
};

class DispatchForm : public Form {
 public:
  DispatchForm() {
    CLSID id{};
    CLSIDFromProgID(L"Qm_Modelo_Impresion3.PrintForm", &id);
    CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&form_));
  }

  HRESULT SetFile(const wchar_t* name) override {
    return Invoke(L"XMLFileName", DISPATCH_PROPERTYPUT, {Text(name)});
  }
  HRESULT LoadArrays(const std::wstring& table, SHORT file, SAFEARRAY** values, SAFEARRAY** types) override {
    VARIANT number{}, texts{}, kinds{};
    number.vt = VT_BYREF | VT_I2;
    number.piVal = &file;
    texts.vt = VT_ARRAY | VT_BYREF | VT_BSTR;
    texts.pparray = values;
    kinds.vt = VT_ARRAY | VT_BYREF | VT_I2;
    kinds.pparray = types;
    return Invoke(L"AsignarDatosTabla", DISPATCH_METHOD, {Text(table.c_str()), number, texts, kinds});
  }
  HRESULT LoadOne(IDispatch* records) override {
    return Invoke(L"AsignarDatosTablaQmF", DISPATCH_METHOD, {Reference(&records)});
  }
  HRESULT LoadAll(IDispatch* records) override {
    return Invoke(L"AsignarDatosTablaQmF2", DISPATCH_METHOD, {Reference(&records)});
  }
  HRESULT Print() override { return Invoke(L"ImprimirModelo", DISPATCH_METHOD, {}); }

 private:
  static VARIANT Text(const wchar_t* text) {
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(text);
    return value;
  }
  static VARIANT Reference(IDispatch** object) {
    VARIANT value{};
    value.vt = VT_BYREF | VT_DISPATCH;
    value.ppdispVal = object;
    return value;
  }
  // Takes the arguments over. The number of a raised error comes back as its HRESULT.
  HRESULT Invoke(const wchar_t* name, WORD flags, std::initializer_list<VARIANT> given) {
    auto* asked = const_cast<LPOLESTR>(name);
    DISPID id = 0, put = DISPID_PROPERTYPUT;
    std::vector<VARIANT> arguments(std::rbegin(given), std::rend(given));
    form_->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
    const UINT named = flags == DISPATCH_PROPERTYPUT ? 1 : 0;
    DISPPARAMS parameters{arguments.data(), named ? &put : nullptr, static_cast<UINT>(arguments.size()),
                          named};
    EXCEPINFO exception{};
    HRESULT outcome =
        form_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, nullptr, &exception, nullptr);
    if (outcome == DISP_E_EXCEPTION) outcome = exception.scode;
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
    for (VARIANT& argument : arguments) VariantClear(&argument);
    return outcome;
  }

  ComPtr<IDispatch> form_;
};

// Files 2 to 4 of five fields counted from 0, of which the first is not used. Files and fields have other
// first numbers in the types.
struct Arrays {
  SafeArray values{VT_BSTR, {{3, 2}, {5, 0}}};
  SafeArray types{VT_I2, {{9, 0}, {4, 1}}};

  Arrays() {
    for (LONG file = 2; file <= 4; ++file) {
      const std::wstring digit = std::to_wstring(file);
      values.PutText({file, 1}, (L"fichero " + digit).c_str());
      values.PutText({file, 2}, (L"D" + digit).c_str());
      values.PutText({file, 3}, L"-1234.5");
      values.PutText({file, 4}, L"B51231");
      types.PutShort({file, 3}, 3);
      types.PutShort({file, 4}, 5);
    }
  }
};

void LoadFromArrays(Form& form, const std::wstring& table, hosts::Expectations& expect) {
  Arrays arrays;
  SAFEARRAY* none = nullptr;
  const std::wstring folder = table.substr(0, table.rfind(L'\\') + 1);
  const auto load = [&](const std::wstring& name, SHORT file) {
    return form.LoadArrays(name, file, arrays.values.Ref(), arrays.types.Ref());
  };
  expect.Result("file 2", S_OK, load(table, 2));
  expect.Result("below the first file", ErrorResult(9), load(table, 1));
  expect.Result("beyond the last file", ErrorResult(9), load(table, 5));
  expect.Result("no arrays", ErrorResult(9), form.LoadArrays(table, 2, &none, &none));
  SafeArray line(VT_BSTR, {{9, 0}});
  expect.Result("one dimension", ErrorResult(9), form.LoadArrays(table, 2, line.Ref(), arrays.types.Ref()));
  SafeArray narrow(VT_I2, {{9, 0}, {2, 1}});
  expect.Result("too few fields", ErrorResult(9),
                form.LoadArrays(table, 2, arrays.values.Ref(), narrow.Ref()));
  expect.Result("definition cut short", ErrorResult(62), load(folder + L"CORTA", 2));
  expect.Result("no folder", ErrorResult(76), load(folder + L"no hay\\CLIEN", 2));
  const std::wstring missing = folder + L"NUEVA";
  expect.Result("no definition", S_OK, load(missing, 2));
  WIN32_FILE_ATTRIBUTE_DATA made{};
  expect.True("definition made",
              GetFileAttributesExW((missing + L".Qma").c_str(), GetFileExInfoStandard, &made));
  expect.True("definition empty", made.nFileSizeLow == 0);
  expect.Result("file 3", S_OK, load(table, 3));
  expect.True("arrays free again", arrays.values.Get()->cLocks == 0 && arrays.types.Get()->cLocks == 0);
}

// One field, TOTAL, of three records.
class Records : public HostObject {
 public:
  int position = 0;

  Records() {
    Set(L"TipoCampo", [](const Call& call) { return Number(call, 3); });
    Set(L"FinArchivo", [this](const Call& call) {
      call.result->vt = VT_BOOL;
      call.result->boolVal = position >= 3 ? VARIANT_TRUE : VARIANT_FALSE;
      return S_OK;
    });
    Set(L"Siguiente", [this](const Call&) {
      ++position;
      return S_OK;
    });
    Set(L"NumeroRegistros", [](const Call& call) { return Number(call, 3); });
    Set(L"NumeroCampos", [](const Call& call) { return Number(call, 1); });
    Set(L"ValorCampo", [this](const Call& call) { return Text(call, position == 0 ? L"0.25" : L"99"); });
    Set(L"NombreDelCampo", [](const Call& call) { return Text(call, L"TOTAL     "); });
    Set(L"NombreDeTabla", [](const Call& call) { return Text(call, L"CLIEN"); });
  }

 private:
  static HRESULT Number(const Call& call, SHORT number) {
    call.result->vt = VT_I2;
    call.result->iVal = number;
    return S_OK;
  }
  static HRESULT Text(const Call& call, const wchar_t* text) {
    call.result->vt = VT_BSTR;
    call.result->bstrVal = SysAllocString(text);
    return S_OK;
  }
};

void LoadFromRecords(Form& form, hosts::Expectations& expect) {
  Records records;
  expect.Result("Nothing", ErrorResult(91), form.LoadOne(nullptr));
  expect.Result("Nothing", ErrorResult(91), form.LoadAll(nullptr));
  expect.Result("first record", S_OK, form.LoadOne(&records));
  expect.True("calls", records.Log() ==
                           "NumeroCampos\nTipoCampo 1\nNombreDeTabla\nNombreDelCampo 1\nNombreDeTabla\n"
                           "ValorCampo 1\nTipoCampo 1\n");
  records.position = 1;
  expect.Result("second record", S_OK, form.LoadOne(&records));
  expect.Result("all records", S_OK, form.LoadAll(&records));
  expect.True("at the end", records.position == 3);
  records.Set(L"NumeroCampos", [](const HostObject::Call&) { return static_cast<HRESULT>(0x80040201); });
  expect.Result("the object's error", static_cast<HRESULT>(0x80040201), form.LoadOne(&records));
  expect.True("let go of", records.References() == 1);
}

void Run(Form& form, const wchar_t* models, const wchar_t* table, hosts::Expectations& expect) {
  expect.Result("XMLFileName", S_OK, form.SetFile(models));
  LoadFromArrays(form, table, expect);
  LoadFromRecords(form, expect);
  expect.Result("ImprimirModelo", S_OK, form.Print());
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 4) return 2;
  hosts::Expectations expect;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (std::wcscmp(arguments[1], L"vtable") == 0) {
    VtableForm form;
    Run(form, arguments[2], arguments[3], expect);
  } else {
    DispatchForm form;
    Run(form, arguments[2], arguments[3], expect);
  }
  CoUninitialize();
  return expect.Finish();
}
