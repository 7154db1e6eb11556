#pragma once
// The base of automation classes: identity, late-bound calls, class information and error support for
// one dual interface. Classes add their fields with QM_FIELD and their methods with Call.

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>
#include <olectl.h>

#include <cstdint>
#include <string>

#include "automation/com_call.h"
#include "automation/counted.h"
#include "automation/dispatch.h"
#include "automation/text.h"
#include "automation/type_information.h"

namespace qm::automation {

// Public fields: the native type of the accessors, the storage behind them.
inline void Export(const std::u16string& stored, BSTR& result) { result = NewBstr(stored); }
inline void Export(std::int32_t stored, LONG& result) { result = stored; }
inline void Export(std::int16_t stored, SHORT& result) { result = stored; }
inline void Export(bool stored, VARIANT_BOOL& result) { result = stored ? VARIANT_TRUE : VARIANT_FALSE; }
inline void Import(BSTR value, std::u16string& stored) { stored = TextOf(value); }
inline void Import(LONG value, std::int32_t& stored) { stored = value; }
inline void Import(SHORT value, std::int16_t& stored) { stored = value; }
inline void Import(VARIANT_BOOL value, bool& stored) { stored = value != VARIANT_FALSE; }

// The get and let accessors of a public field.
#define QM_FIELD(NativeType, Name, storage)                                                            \
  HRESULT STDMETHODCALLTYPE get_##Name(NativeType* result) noexcept override {                         \
    return this->Call([&] { ::qm::automation::Export(storage, ::qm::automation::Required(result)); }); \
  }                                                                                                    \
  HRESULT STDMETHODCALLTYPE put_##Name(NativeType value) noexcept override {                           \
    return this->Call([&] { ::qm::automation::Import(value, storage); });                              \
  }

template <class Face, const Interface& kFace>
class AutomationObject : public Face,
                         public ISupportErrorInfo,
                         public IProvideClassInfo2,
                         protected CountedObject {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = Find(id);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
  }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) {
      references_ = kDying;  // whatever is let go in the destructor may take and release a reference
      delete this;
    }
    return static_cast<ULONG>(left);
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** information) noexcept override {
    if (!information) return E_POINTER;
    *information = nullptr;
    return index == 0 ? TypeInformation(kFace.id, information) : DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) noexcept override {
    return IsEqualGUID(reserved, IID_NULL) ? IdsOfNames(kFace, names, count, ids) : DISP_E_UNKNOWNINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) noexcept override {
    if (!IsEqualGUID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    const AliveDuringCall alive(*static_cast<Face*>(this));
    return InvokeMember(kFace, *this, id, flags, arguments, result, exception, wrongArgument);
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) noexcept override {
    return IsEqualGUID(id, kFace.id) || IsEqualGUID(id, IID_IDispatch) ? S_OK : S_FALSE;
  }

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) noexcept override {
    if (!information) return E_POINTER;
    *information = nullptr;
    return TypeInformation(kFace.library->ClassOf(kFace).id, information);
  }
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) noexcept override {
    if (!id) return E_POINTER;
    *id = GUID_NULL;
    const Interface* events = kFace.library->ClassOf(kFace).events;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
    if (!events) return E_FAIL;
    *id = events->id;
    return S_OK;
  }

 protected:
  AutomationObject() = default;
  virtual ~AutomationObject() = default;

  // A further interface of the class, or null.
  [[nodiscard]] virtual void* FindOther(REFIID) noexcept { return nullptr; }

  template <class Body>
  HRESULT Call(Body&& body) noexcept {
    return ComCall(*static_cast<Face*>(this), kFace, std::forward<Body>(body));
  }

 private:
  static constexpr LONG kDying = 0x40000000;

  void* Find(REFIID id) noexcept {
    if (IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, IID_IDispatch) || IsEqualGUID(id, kFace.id)) {
      return static_cast<Face*>(this);
    }
    if (IsEqualGUID(id, IID_ISupportErrorInfo)) return static_cast<ISupportErrorInfo*>(this);
    if (IsEqualGUID(id, IID_IProvideClassInfo) || IsEqualGUID(id, IID_IProvideClassInfo2)) {
      return static_cast<IProvideClassInfo2*>(this);
    }
    return FindOther(id);
  }

  LONG references_ = 1;
};

}  // namespace qm::automation
