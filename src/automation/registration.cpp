#include "automation/registration.h"

#include <objbase.h>

#include <new>
#include <string>

#include "automation/registry.h"
#include "automation/type_information.h"
#include "automation/typelib/description.h"

namespace qm::automation {

namespace {

constexpr bool kIs64Bit = sizeof(void*) == 8;
constexpr View kOtherView = kIs64Bit ? View::Bits32 : View::Bits64;
constexpr const wchar_t* kPlatform = kIs64Bit ? L"win64" : L"win32";
// Always below the root itself: only so does Windows find the part of the other bitness.
constexpr const wchar_t* kClassesPath = L"Software\\Classes\\";
constexpr const wchar_t* kVersion = L"1.0";
// The automation library's marshaler, which reads the type library.
constexpr const wchar_t* kAutomationMarshaler = L"{00020424-0000-0000-C000-000000000046}";

std::wstring Wide(std::u16string_view text) { return {text.begin(), text.end()}; }

std::wstring Text(const GUID& id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

std::wstring ProgId(const Class& each) { return Wide(each.face->library->name) + L"." + Wide(each.name); }
std::wstring ProgIdPath(const Class& each) { return kClassesPath + ProgId(each); }
std::wstring ClassPath(const Class& each) { return kClassesPath + (L"CLSID\\" + Text(each.id)); }
std::wstring InterfacePath(const Interface& face) { return kClassesPath + (L"Interface\\" + Text(face.id)); }
std::wstring LibraryKeyPath(const Library& library) {
  return kClassesPath + (L"TypeLib\\" + Text(library.id));
}
std::wstring VersionPath(const Library& library) { return LibraryKeyPath(library) + L"\\" + kVersion; }
// The library's own language, and the neutral one, to which a look-up in any other falls back.
constexpr const wchar_t* kLocales[] = {L"409", L"0"};
std::wstring PlatformPath(const Library& library, const wchar_t* locale) {
  return VersionPath(library) + L"\\" + locale + L"\\" + kPlatform;
}

HKEY RootOf(Scope scope) { return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

void AddClass(RegistryChanges& changes, const Class& each, const std::wstring& file) {
  const std::wstring path = ClassPath(each);
  changes.SetText(path, L"", ProgId(each));
  changes.SetText(path + L"\\InprocServer32", L"", file);
  changes.SetText(path + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  changes.SetText(path + L"\\ProgID", L"", ProgId(each));
  changes.SetText(path + L"\\Programmable", L"", L"");
  changes.SetText(path + L"\\TypeLib", L"", Text(each.face->library->id));
  changes.SetText(path + L"\\VERSION", L"", kVersion);
  changes.SetText(ProgIdPath(each), L"", ProgId(each));
  changes.SetText(ProgIdPath(each) + L"\\Clsid", L"", Text(each.id));
}

void AddInterface(RegistryChanges& changes, const Interface& face) {
  const std::wstring path = InterfacePath(face);
  changes.SetText(path, L"", Wide(face.name));
  changes.SetText(path + L"\\ProxyStubClsid32", L"", kAutomationMarshaler);
  changes.SetText(path + L"\\TypeLib", L"", Text(face.library->id));
  changes.SetText(path + L"\\TypeLib", L"Version", kVersion);
}

void AddLibrary(RegistryChanges& changes, const Library& library, const std::wstring& file) {
  changes.SetText(VersionPath(library), L"", Wide(library.name));
  for (const wchar_t* locale : kLocales) changes.SetText(PlatformPath(library, locale), L"", file);
  changes.SetText(VersionPath(library) + L"\\FLAGS", L"", L"0");
  changes.SetText(VersionPath(library) + L"\\HELPDIR", L"", file.substr(0, file.rfind(L'\\')));
}

void RemoveShared(HKEY root, const Library& library) {
  for (const Class& each : library.classes) {
    DeleteTree(root, ProgIdPath(each));
    for (const Interface* face : {each.face, each.events}) {
      if (!face) continue;
      DeleteTree(root, InterfacePath(*face), View::Bits32);
      DeleteTree(root, InterfacePath(*face), View::Bits64);
    }
  }
  DeleteTree(root, VersionPath(library));
  DeleteIfEmpty(root, LibraryKeyPath(library));
}

template <class Body>
HRESULT Guarded(Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (const RegistryError& error) {
    return HRESULT_FROM_WIN32(static_cast<DWORD>(error.code));
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace

HRESULT Register(const Library& library, Scope scope) noexcept {
  return Guarded([&] {
    const std::wstring file = LibraryPath();
    RegistryChanges changes(RootOf(scope));
    for (const Class& each : library.classes) {
      AddClass(changes, each, file);
      AddInterface(changes, *each.face);
      if (each.events) AddInterface(changes, *each.events);
    }
    AddLibrary(changes, library, file);
    changes.Commit();
  });
}

HRESULT Unregister(const Library& library, Scope scope) noexcept {
  return Guarded([&] {
    const HKEY root = RootOf(scope);
    for (const Class& each : library.classes) DeleteTree(root, ClassPath(each));
    for (const wchar_t* locale : kLocales) DeleteTree(root, PlatformPath(library, locale));
    if (!KeyExists(root, ClassPath(library.classes.front()), kOtherView)) RemoveShared(root, library);
  });
}

}  // namespace qm::automation
