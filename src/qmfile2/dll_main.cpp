// The entry points of the record-file library.

#include <windows.h>

#include "automation/class_factory.h"
#include "automation/counted.h"
#include "automation/registration.h"
#include "qmfile2/record_file_control.h"
#include "qmfile2/typelib/definition.h"
#include "qmfile2/typelib/guids.h"

using qm::automation::Scope;
using qm::qmfile2::kRecordFileLibrary;

namespace {

const qm::automation::Creatable kCreatable[] = {
    {qm::qmfile2::kRecordFileClass, []() -> IDispatch* { return new qm::qmfile2::QmFileControl2; }},
};

}  // namespace

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  return qm::automation::GetClassFactory(kCreatable, classId, id, object);
}

STDAPI DllCanUnloadNow() { return qm::automation::LibraryUse::None() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return qm::automation::Register(kRecordFileLibrary, Scope::Machine); }

STDAPI DllUnregisterServer() { return qm::automation::Unregister(kRecordFileLibrary, Scope::Machine); }

// regsvr32 /n /i:user registers for the current user alone, without administrators' rights.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
  const bool forUser = commandLine && lstrcmpiW(commandLine, L"user") == 0;
  const Scope scope = forUser ? Scope::User : Scope::Machine;
  return install ? qm::automation::Register(kRecordFileLibrary, scope)
                 : qm::automation::Unregister(kRecordFileLibrary, scope);
}

BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(library);
  return TRUE;
}
