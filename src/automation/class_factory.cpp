#include "automation/class_factory.h"

#include <new>

#include "automation/counted.h"

namespace qm::automation {

namespace {

class ClassFactory final : public IClassFactory, private CountedObject {
 public:
  explicit ClassFactory(Creator create) : create_(create) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    const bool known = IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, IID_IClassFactory);
    *object = known ? static_cast<IClassFactory*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
  }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const LONG left = InterlockedDecrement(&references_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    try {
      IDispatch* made = create_();
      const HRESULT found = made->QueryInterface(id, object);
      made->Release();
      return found;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override {
    if (lock)
      LibraryUse::Add();
    else
      LibraryUse::Remove();
    return S_OK;
  }

 private:
  ~ClassFactory() = default;

  Creator create_;
  LONG references_ = 1;
};

}  // namespace

HRESULT GetClassFactory(std::span<const Creatable> classes, REFCLSID classId, REFIID id,
                        void** factory) noexcept {
  if (!factory) return E_POINTER;
  *factory = nullptr;
  for (const Creatable& each : classes) {
    if (!IsEqualGUID(each.id, classId)) continue;
    auto* made = new (std::nothrow) ClassFactory(each.create);
    if (!made) return E_OUTOFMEMORY;
    const HRESULT found = made->QueryInterface(id, factory);
    made->Release();
    return found;
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

}  // namespace qm::automation
