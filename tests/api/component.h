#pragma once
// The built component, loaded without registration from beside the test program, and short ways to call it.

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "api/typelib/QmModImp3.h"

namespace qm::tests {

using Microsoft::WRL::ComPtr;
using namespace Qm_Modelo_Impresion3;

// Loads the library anew: objects must be gone before it goes.
class Component {
 public:
  explicit Component(const wchar_t* file = L"QmModImp3.dll");
  ~Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  [[nodiscard]] HRESULT GetClassObject(REFCLSID classId, REFIID id, void** object) const;
  [[nodiscard]] HRESULT CanUnloadNow() const;
  [[nodiscard]] std::wstring Path() const;

  template <class Face>
  [[nodiscard]] ComPtr<Face> Create(REFCLSID classId, REFIID id) const {
    ComPtr<IClassFactory> factory;
    ComPtr<Face> made;
    if (SUCCEEDED(
            GetClassObject(classId, IID_IClassFactory, reinterpret_cast<void**>(factory.GetAddressOf())))) {
      factory->CreateInstance(nullptr, id, reinterpret_cast<void**>(made.GetAddressOf()));
    }
    return made;
  }
  [[nodiscard]] ComPtr<_PrintForm> NewPrintForm() const {
    return Create<_PrintForm>(CLSID_PrintForm, IID__PrintForm);
  }

 private:
  HMODULE library_;
};

class Bstr {
 public:
  explicit Bstr(std::wstring_view text = {})
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;

  [[nodiscard]] BSTR Get() const { return text_; }
  [[nodiscard]] BSTR* Ref() { return &text_; }
  [[nodiscard]] BSTR* Out() {
    SysFreeString(std::exchange(text_, nullptr));
    return &text_;
  }
  [[nodiscard]] std::wstring Text() const { return {text_ ? text_ : L"", SysStringLen(text_)}; }

 private:
  BSTR text_;
};

class Value : public VARIANT {
 public:
  Value() { VariantInit(this); }
  explicit Value(std::wstring_view text) : Value() {
    vt = VT_BSTR;
    bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  explicit Value(LONG number) : Value() {
    vt = VT_I4;
    lVal = number;
  }
  explicit Value(double number) : Value() {
    vt = VT_R8;
    dblVal = number;
  }
  explicit Value(IDispatch* object) : Value() {
    vt = VT_DISPATCH;
    pdispVal = object;
    if (object) object->AddRef();
  }
  static Value Null() { return Plain(VT_NULL); }
  static Value Boolean(bool yes) {
    Value made = Plain(VT_BOOL);
    made.boolVal = yes ? VARIANT_TRUE : VARIANT_FALSE;
    return made;
  }
  static Value Short(SHORT number) {
    Value made = Plain(VT_I2);
    made.iVal = number;
    return made;
  }
  static Value Date(double date) {
    Value made = Plain(VT_DATE);
    made.date = date;
    return made;
  }
  static Value Missing() {
    Value made = Plain(VT_ERROR);
    made.scode = DISP_E_PARAMNOTFOUND;
    return made;
  }
  // As script hosts pass their variables.
  static Value VariableOf(VARIANT& variable) {
    Value made = Plain(VT_BYREF | VT_VARIANT);
    made.pvarVal = &variable;
    return made;
  }
  Value(const Value& other) : Value() { VariantCopy(this, const_cast<Value*>(&other)); }
  Value& operator=(const Value&) = delete;
  ~Value() { VariantClear(this); }

  [[nodiscard]] std::wstring Text() const {
    return vt == VT_BSTR ? std::wstring(bstrVal ? bstrVal : L"", SysStringLen(bstrVal)) : L"no text";
  }

 private:
  static Value Plain(int type) {
    Value made;
    made.vt = static_cast<VARTYPE>(type);
    return made;
  }
};

// A late-bound call and what came of it.
struct Outcome {
  HRESULT result = S_OK;
  Value value;
  HRESULT error = S_OK;  // of the exception
  std::wstring description;
  std::wstring source;
  UINT wrongArgument = 99;
};

Outcome Invoke(IDispatch* object, const wchar_t* name, WORD flags, std::vector<Value> arguments = {});
Outcome Call(IDispatch* object, const wchar_t* name, std::vector<Value> arguments = {});
Outcome Get(IDispatch* object, const wchar_t* name);
Outcome Put(IDispatch* object, const wchar_t* name, Value value, WORD flags = DISPATCH_PROPERTYPUT);

// The number and text of the error information of the thread; taking it clears it.
struct LastError {
  std::wstring description;
  std::wstring source;
  GUID interfaceId{};
};
[[nodiscard]] LastError TakeError();

[[nodiscard]] constexpr HRESULT RuntimeResult(int number) {
  return static_cast<HRESULT>(0x800A0000u | static_cast<unsigned>(number));
}

}  // namespace qm::tests
