// The entry points of the component's library.

#include <windows.h>

#include "api/class_factory.h"
#include "api/counted.h"
#include "api/registration.h"

using qm::api::Scope;

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  return qm::api::GetClassFactory(classId, id, object);
}

STDAPI DllCanUnloadNow() { return qm::api::LibraryUse::None() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return qm::api::Register(Scope::Machine); }

STDAPI DllUnregisterServer() { return qm::api::Unregister(Scope::Machine); }

// regsvr32 /n /i:user registers for the current user alone, without administrators' rights.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  const bool forUser = commandLine && lstrcmpiW(commandLine, L"user") == 0;
  const Scope scope = forUser ? Scope::User : Scope::Machine;
  return install ? qm::api::Register(scope) : qm::api::Unregister(scope);
}

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(library);
  return TRUE;
}
