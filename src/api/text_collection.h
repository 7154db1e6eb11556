#pragma once
// The collection of texts that hosts get from the component, for late-bound calls: Item (the default), Add,
// Count, Remove and an enumerator for "For Each". Members count from 1 and have no keys.
// Errors: 9 for a place where nothing is, 5 for a text in place of a number.

#include <windows.h>

#include <oaidl.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/counted.h"
#include "automation/variants.h"

namespace qm::api {

// The members in the order of the vtable.
struct TextCollectionFace : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Item(VARIANT* index, VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE Add(VARIANT* item) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Count(LONG* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE Remove(VARIANT* index) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE _NewEnum(VARIANT* result) noexcept = 0;
};

class TextCollection final : public TextCollectionFace, private automation::CountedObject {
 public:
  explicit TextCollection(const std::vector<std::u16string>& texts);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override;
  ULONG STDMETHODCALLTYPE AddRef() noexcept override;
  ULONG STDMETHODCALLTYPE Release() noexcept override;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** information) noexcept override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) noexcept override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) noexcept override;

  HRESULT STDMETHODCALLTYPE Item(VARIANT* index, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Add(VARIANT* item) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Count(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Remove(VARIANT* index) noexcept override;
  HRESULT STDMETHODCALLTYPE _NewEnum(VARIANT* result) noexcept override;

 private:
  using Held = std::shared_ptr<const automation::OwnedVariant>;

  ~TextCollection() = default;
  [[nodiscard]] std::size_t PlaceOf(const VARIANT& index) const;

  std::vector<Held> items_;
  LONG references_ = 1;
};

}  // namespace qm::api
