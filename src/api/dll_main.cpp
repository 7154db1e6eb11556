// The entry points of the component's library.

#include <windows.h>

#include "api/classes.h"
#include "api/typelib/definition.h"
#include "automation/class_factory.h"
#include "automation/counted.h"
#include "automation/registration.h"

using qm::api::kComponent;
using qm::automation::Scope;

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  return qm::automation::GetClassFactory(qm::api::CreatableClasses(), classId, id, object);
}

STDAPI DllCanUnloadNow() { return qm::automation::LibraryUse::None() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return qm::automation::Register(kComponent, Scope::Machine); }

STDAPI DllUnregisterServer() { return qm::automation::Unregister(kComponent, Scope::Machine); }

// regsvr32 /n /i:user registers for the current user alone, without administrators' rights.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  const bool forUser = commandLine && lstrcmpiW(commandLine, L"user") == 0;
  const Scope scope = forUser ? Scope::User : Scope::Machine;
  return install ? qm::automation::Register(kComponent, scope)
                 : qm::automation::Unregister(kComponent, scope);
}

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(library);
  return TRUE;
}
