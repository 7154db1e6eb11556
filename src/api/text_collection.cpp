#include "api/text_collection.h"

#include <oleauto.h>

#include <array>

#include "api/typelib/definition.h"
#include "automation/com_call.h"
#include "automation/dispatch.h"
#include "automation/enumerator.h"
#include "automation/text.h"

namespace qm::api {
namespace {

using automation::ByRef;
using automation::ComCall;
using automation::Get;
using automation::Interface;
using automation::Method;
using automation::OwnedVariant;
using automation::Required;
using automation::Type;
using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr auto kNewEnum = static_cast<std::uint32_t>(DISPID_NEWENUM);

constexpr std::array kMembers{
    Method(u"Item", DISPID_VALUE, {ByRef(u"Index", Type::Variant)}, Type::Variant),
    Method(u"Add", 1, {ByRef(u"Item", Type::Variant)}),
    Get(u"Count", 2, Type::Long),
    Method(u"Remove", 3, {ByRef(u"Index", Type::Variant)}),
    Method(u"_NewEnum", kNewEnum, {}, Type::Variant),
};

// Of no library: hosts know it by IDispatch alone.
const Interface kFace{u"_Collection", IID_IDispatch, kMembers, &kComponent};

struct ItemTraits {
  using Interface = IEnumVARIANT;
  using Item = VARIANT;
  using Held = std::shared_ptr<const OwnedVariant>;
  static constexpr const IID& kId = IID_IEnumVARIANT;
  static void Give(const Held& held, Item& item) {
    VariantInit(&item);
    VariantCopy(&item, const_cast<VARIANT*>(&held->Get()));
  }
};

}  // namespace

TextCollection::TextCollection(const std::vector<std::u16string>& texts) {
  for (const std::u16string& text : texts) {
    const auto item = std::make_shared<OwnedVariant>();
    item->Get().bstrVal = automation::NewBstr(text);
    item->Get().vt = VT_BSTR;
    items_.push_back(item);
  }
}

HRESULT TextCollection::QueryInterface(REFIID id, void** object) noexcept {
  if (!object) return E_POINTER;
  const bool known = IsEqualGUID(id, IID_IUnknown) || IsEqualGUID(id, IID_IDispatch);
  *object = known ? static_cast<IDispatch*>(this) : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG TextCollection::AddRef() noexcept { return static_cast<ULONG>(InterlockedIncrement(&references_)); }

ULONG TextCollection::Release() noexcept {
  const LONG left = InterlockedDecrement(&references_);
  if (left == 0) delete this;
  return static_cast<ULONG>(left);
}

HRESULT TextCollection::GetTypeInfoCount(UINT* count) noexcept {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT TextCollection::GetTypeInfo(UINT, LCID, ITypeInfo** information) noexcept {
  if (!information) return E_POINTER;
  *information = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT TextCollection::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                      DISPID* ids) noexcept {
  return IsEqualGUID(reserved, IID_NULL) ? automation::IdsOfNames(kFace, names, count, ids)
                                         : DISP_E_UNKNOWNINTERFACE;
}

HRESULT TextCollection::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* arguments,
                               VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) noexcept {
  if (!IsEqualGUID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  constexpr WORD kRead = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  const automation::AliveDuringCall alive(*this);
  // Hosts call Item a property and Count a method, or the other way round.
  if (flags & kRead) flags = kRead;
  return automation::InvokeMember(kFace, *this, id, flags, arguments, result, exception, wrongArgument);
}

std::size_t TextCollection::PlaceOf(const VARIANT& index) const {
  OwnedVariant plain;
  automation::Resolve(index, plain);
  if (plain->vt == VT_BSTR) throw RuntimeError(ErrorNumber::InvalidArgument);  // a key, which none has
  OwnedVariant number;
  automation::Convert(plain.Get(), VT_I4, number);
  if (number->lVal < 1 || static_cast<std::size_t>(number->lVal) > items_.size())
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  return static_cast<std::size_t>(number->lVal) - 1;
}

HRESULT TextCollection::Item(VARIANT* index, VARIANT* result) noexcept {
  return ComCall(*this, kFace, [&] {
    VARIANT& place = Required(result);
    OwnedVariant copy;
    copy.CopyFrom(items_[PlaceOf(Required(index))]->Get());
    place = copy.Release();
  });
}

HRESULT TextCollection::Add(VARIANT* item) noexcept {
  return ComCall(*this, kFace, [&] {
    const auto added = std::make_shared<OwnedVariant>();
    added->CopyFrom(Required(item));
    items_.push_back(added);
  });
}

HRESULT TextCollection::get_Count(LONG* result) noexcept {
  return ComCall(*this, kFace, [&] { Required(result) = static_cast<LONG>(items_.size()); });
}

HRESULT TextCollection::Remove(VARIANT* index) noexcept {
  return ComCall(*this, kFace, [&] {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(PlaceOf(Required(index))));
  });
}

HRESULT TextCollection::_NewEnum(VARIANT* result) noexcept {
  return ComCall(*this, kFace, [&] {
    VARIANT& place = Required(result);
    VariantInit(&place);
    place.punkVal = new automation::Enumerator<ItemTraits>(items_);
    place.vt = VT_UNKNOWN;
  });
}

}  // namespace qm::api
