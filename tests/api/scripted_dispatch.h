#pragma once
// An automation object of a host: counts its references and calls, and does in a call what the test says.

#include <windows.h>

#include <oaidl.h>

#include <functional>

namespace qm::tests {

// Lives on the stack of the test.
class ScriptedDispatch final : public IDispatch {
 public:
  // What its default property gives; the result starts out Empty.
  std::function<HRESULT(VARIANT& result)> onInvoke = [](VARIANT&) { return S_OK; };

  [[nodiscard]] LONG References() const { return references_; }
  [[nodiscard]] int Calls() const { return calls_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, IID_IDispatch);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) override {
    ++calls_;
    return onInvoke(*result);
  }

 private:
  LONG references_ = 1;
  int calls_ = 0;
};

}  // namespace qm::tests
