#pragma once
// A COM enumerator over a copy of a list of interface pointers.

#include <windows.h>

#include <ocidl.h>
#include <wrl/client.h>

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "automation/counted.h"

namespace qm::automation {

// Traits: Interface, its kId, Item (what Next gives), Held (what is kept), and Give(held, item), which adds a
// reference.
template <class Traits>
class Enumerator final : public Traits::Interface, private CountedObject {
 public:
  using Items = std::vector<typename Traits::Held>;

  explicit Enumerator(Items items, std::size_t next = 0) : items_(std::move(items)), next_(next) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    if (!object) return E_POINTER;
    const bool known = IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, Traits::kId);
    *object = known ? static_cast<typename Traits::Interface*>(this) : nullptr;
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

  HRESULT STDMETHODCALLTYPE Next(ULONG count, typename Traits::Item* items,
                                 ULONG* fetched) noexcept override {
    if (!items || (!fetched && count != 1)) return E_POINTER;
    ULONG given = 0;
    for (; given < count && next_ < items_.size(); ++given) Traits::Give(items_[next_++], items[given]);
    if (fetched) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    const std::size_t skipped = std::min<std::size_t>(count, items_.size() - next_);
    next_ += skipped;
    return skipped == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    next_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(typename Traits::Interface** clone) noexcept override {
    if (!clone) return E_POINTER;
    *clone = nullptr;
    try {
      *clone = new Enumerator(items_, next_);
      return S_OK;
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  ~Enumerator() = default;

  Items items_;
  std::size_t next_;
  LONG references_ = 1;
};

}  // namespace qm::automation
