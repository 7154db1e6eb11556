#include "automation/object_call.h"

#include <dispex.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <string>

#include "automation/com_call.h"
#include "automation/text.h"

namespace qm::automation {

namespace {

using Microsoft::WRL::ComPtr;

[[noreturn]] void ThrowException(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
  const HRESULT result = exception.scode ? exception.scode : ResultOf(exception.wCode);
  std::u16string description(TextOf(exception.bstrDescription));
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrHelpFile);
  ThrowFailure(result, std::move(description));
}

}  // namespace

void InvokeObject(IDispatch& object, DISPID id, WORD flags, VARIANT* argument, VARIANT* result) {
  DISPPARAMS passed{argument, nullptr, argument ? 1U : 0U, 0};
  EXCEPINFO exception{};
  const HRESULT called =
      object.Invoke(id, IID_NULL, GetUserDefaultLCID(), flags, &passed, result, &exception, nullptr);
  if (called == DISP_E_EXCEPTION) ThrowException(exception);
  ThrowIfFailed(called);
}

// Script engines' objects know more of their members through their own interface; some engines offer no other
// way, and JScript's tells cases apart in the ordinary one.
DISPID IdOfMember(IDispatch& object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  HRESULT found = S_OK;
  ComPtr<IDispatchEx> script;
  if (SUCCEEDED(object.QueryInterface(IID_PPV_ARGS(&script)))) {
    BSTR asked = NewBstr(std::u16string_view(reinterpret_cast<const char16_t*>(name)));
    found = script->GetDispID(asked, fdexNameCaseInsensitive, &id);
    SysFreeString(asked);
  } else {
    auto* asked = const_cast<LPOLESTR>(name);
    found = object.GetIDsOfNames(IID_NULL, &asked, 1, GetUserDefaultLCID(), &id);
  }
  ThrowIfFailed(found == DISP_E_UNKNOWNNAME ? DISP_E_MEMBERNOTFOUND : found);
  return id;
}

}  // namespace qm::automation
