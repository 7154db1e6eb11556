#pragma once
// An automation object of a host with members by name, each a function of the test's. Calls are written down
// as "Nombre" or "Nombre 2", with the argument's value.

#include <windows.h>

#include <dispex.h>
#include <oaidl.h>
#include <oleauto.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace qm::tests {

// Lives on the stack of the test.
class HostObject : public IDispatchEx {
 public:
  struct Call {
    const DISPPARAMS& passed;
    WORD flags;
    VARIANT* result;
    EXCEPINFO* exception;

    // The number that was passed by reference, as the interface has it.
    [[nodiscard]] SHORT& Field() const { return *passed.rgvarg[0].piVal; }
  };
  using Member = std::function<HRESULT(const Call&)>;

  void Set(std::wstring name, Member member) {
    for (auto& [known, function] : members_) {
      if (known == name) {
        function = std::move(member);
        return;
      }
    }
    members_.emplace_back(std::move(name), std::move(member));
  }
  // Passes for an object of a script engine, which has its members looked up through an interface of its own.
  bool ofScript = false;

  // A member that gives the same value at each call.
  void SetValue(std::wstring name, const VARIANT& value) {
    Set(std::move(name),
        [value](const Call& call) { return VariantCopy(call.result, const_cast<VARIANT*>(&value)); });
  }

  [[nodiscard]] const std::string& Log() const { return log_; }
  void ClearLog() { log_.clear(); }
  [[nodiscard]] LONG References() const { return references_; }
  [[nodiscard]] int NamesAsked() const { return namesAsked_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, IID_IDispatch) ||
                       (ofScript && IsEqualGUID(id, __uuidof(IDispatchEx)));
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    ++namesAsked_;
    for (std::size_t i = 0; i < members_.size(); ++i) {
      if (members_[i].first == names[0]) {
        ids[0] = static_cast<DISPID>(i) + 1;
        return S_OK;
      }
    }
    ids[0] = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE GetDispID(BSTR name, DWORD, DISPID* id) override {
    return GetIDsOfNames(IID_NULL, &name, 1, 0, id);
  }
  HRESULT STDMETHODCALLTYPE InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     IServiceProvider*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID, DWORD, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* passed, VARIANT* result,
                                   EXCEPINFO* exception, UINT*) override {
    const auto& [name, member] = members_[static_cast<std::size_t>(id) - 1];
    log_.append(name.begin(), name.end());
    if (passed->cArgs == 1 && passed->rgvarg[0].vt == (VT_BYREF | VT_I2))
      log_ += " " + std::to_string(*passed->rgvarg[0].piVal);
    log_ += "\n";
    return member(Call{*passed, flags, result, exception});
  }

 private:
  std::vector<std::pair<std::wstring, Member>> members_;
  std::string log_;
  LONG references_ = 1;
  int namesAsked_ = 0;
};

}  // namespace qm::tests
