#include "automation/dispatch.h"

#include <oleauto.h>

#include <array>
#include <optional>

#include "automation/arguments.h"
#include "automation/com_call.h"
#include "automation/text.h"

namespace qm::automation {

namespace {

bool SameName(std::u16string_view name, const OLECHAR* asked) {
  return CompareStringOrdinal(reinterpret_cast<const OLECHAR*>(name.data()), static_cast<int>(name.size()),
                              asked, -1, TRUE) == CSTR_EQUAL;
}

const Member* FindMember(const Interface& face, const OLECHAR* name) {
  for (const Member& member : face.members) {
    if (SameName(member.name, name)) return &member;
  }
  return nullptr;
}

DISPID IdOfParameter(const Member& member, const OLECHAR* name) {
  for (std::size_t i = 0; i < member.ParameterCount(); ++i) {
    if (SameName(member.parameters[i].name, name)) return static_cast<DISPID>(i);
  }
  return DISPID_UNKNOWN;
}

bool Serves(Access access, WORD flags) {
  switch (access) {
    case Access::Call:
      return flags & DISPATCH_METHOD;
    case Access::Get:
      return flags & DISPATCH_PROPERTYGET;
    case Access::Let:
      return flags & DISPATCH_PROPERTYPUT;
    case Access::Set:
      return flags & DISPATCH_PROPERTYPUTREF;
  }
  return false;
}

std::optional<Function> FindFunction(const Interface& face, DISPID id, WORD flags) {
  std::optional<Function> found;
  ForEachFunction(face, [&](const Function& function) {
    if (!found && function.member->dispid == id && Serves(function.access, flags)) found = function;
  });
  return found;
}

// What a failed method left as error information, for hosts that call late-bound.
HRESULT AsException(HRESULT failure, EXCEPINFO* exception) noexcept {
  if (!exception) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = failure;
  IErrorInfo* information = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) {
    information->GetDescription(&exception->bstrDescription);
    information->GetSource(&exception->bstrSource);
    information->Release();
  }
  return DISP_E_EXCEPTION;
}

HRESULT Call(IDispatch& object, const Function& function, Arguments& arguments, VARIANT* result) {
  OwnedVariant returned;
  arguments.AddResult(function, returned);
  VARIANT outcome{};
  HRESULT called = DispCallFunc(&object, static_cast<ULONG_PTR>(function.slot) * sizeof(void*), CC_STDCALL,
                                VT_ERROR, arguments.Count(), arguments.Types(), arguments.Values(), &outcome);
  if (SUCCEEDED(called)) called = outcome.scode;
  if (FAILED(called)) return called;
  arguments.GiveBack();
  if (result) *result = returned.Release();
  return S_OK;
}

}  // namespace

HRESULT IdsOfNames(const Interface& face, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  if (!names || !ids || count == 0) return E_INVALIDARG;
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  const Member* member = FindMember(face, names[0]);
  if (!member) return DISP_E_UNKNOWNNAME;
  ids[0] = member->dispid;
  HRESULT found = S_OK;
  for (UINT i = 1; i < count; ++i) {
    ids[i] = IdOfParameter(*member, names[i]);
    if (ids[i] == DISPID_UNKNOWN) found = DISP_E_UNKNOWNNAME;
  }
  return found;
}

HRESULT InvokeMember(const Interface& face, IDispatch& object, DISPID id, WORD flags,
                     const DISPPARAMS* passed, VARIANT* result, EXCEPINFO* exception,
                     UINT* wrongArgument) noexcept {
  if (!passed) return E_INVALIDARG;
  const std::optional<Function> function = FindFunction(face, id, flags);
  if (!function) return DISP_E_MEMBERNOTFOUND;
  if (result) VariantInit(result);
  Arguments arguments;
  try {
    arguments.Take(*function, *passed);
  } catch (...) {
    if (wrongArgument) *wrongArgument = arguments.Wrong();
    return AsException(ReportCurrentException(face), exception);
  }
  const HRESULT called = Call(object, *function, arguments, result);
  return FAILED(called) ? AsException(called, exception) : S_OK;
}

}  // namespace qm::automation
