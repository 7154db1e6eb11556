#include "tests/api/component.h"

namespace qm::tests {

Component::Component(const wchar_t* file) : library_(LoadLibraryW(file)) {}
Component::~Component() { FreeLibrary(library_); }

HRESULT Component::GetClassObject(REFCLSID classId, REFIID id, void** object) const {
  using Entry = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto entry =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(library_, "DllGetClassObject")));
  return entry ? entry(classId, id, object) : E_UNEXPECTED;
}

HRESULT Component::CanUnloadNow() const {
  using Entry = HRESULT(STDAPICALLTYPE*)();
  const auto entry =
      reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(library_, "DllCanUnloadNow")));
  return entry ? entry() : E_UNEXPECTED;
}

std::wstring Component::Path() const {
  wchar_t path[MAX_PATH * 4];
  return {path, GetModuleFileNameW(library_, path, MAX_PATH * 4)};
}

Outcome Invoke(IDispatch* object, const wchar_t* name, WORD flags, std::vector<Value> arguments) {
  Outcome outcome;
  DISPID id = DISPID_UNKNOWN;
  auto* asked = const_cast<LPOLESTR>(name);
  outcome.result = object->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(outcome.result)) return outcome;
  std::vector<VARIANTARG> passed(arguments.rbegin(), arguments.rend());
  DISPID put = DISPID_PROPERTYPUT;
  const bool puts = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
  DISPPARAMS parameters{passed.data(), puts ? &put : nullptr, static_cast<UINT>(passed.size()),
                        puts ? 1u : 0u};
  EXCEPINFO exception{};
  outcome.result = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &outcome.value,
                                  &exception, &outcome.wrongArgument);
  if (outcome.result == DISP_E_EXCEPTION) {
    outcome.error = exception.scode;
    if (exception.bstrDescription) outcome.description = exception.bstrDescription;
    if (exception.bstrSource) outcome.source = exception.bstrSource;
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
  }
  return outcome;
}

Outcome Call(IDispatch* object, const wchar_t* name, std::vector<Value> arguments) {
  return Invoke(object, name, DISPATCH_METHOD, std::move(arguments));
}

Outcome Get(IDispatch* object, const wchar_t* name) { return Invoke(object, name, DISPATCH_PROPERTYGET); }

Outcome Put(IDispatch* object, const wchar_t* name, Value value, WORD flags) {
  return Invoke(object, name, flags, {std::move(value)});
}

LastError TakeError() {
  LastError error;
  ComPtr<IErrorInfo> information;
  if (GetErrorInfo(0, &information) != S_OK) return error;
  Bstr description, source;
  information->GetDescription(description.Out());
  information->GetSource(source.Out());
  information->GetGUID(&error.interfaceId);
  error.description = description.Text();
  error.source = source.Text();
  return error;
}

}  // namespace qm::tests
