// many_pages MODELS.xml [PAGES]: prints page after page through the component, a new print job object for
// each, and compares what the process holds after the first few with what it holds at the end. Exits 0 when
// nothing grew and the component can be unloaded; prints what it counted.
#include <windows.h>

#include <oleauto.h>
#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "api/typelib/QmModImp3.h"

using namespace Qm_Modelo_Impresion3;

namespace {

// Windows counts objects; Wine answers 0 there. Both give a new object the lowest free handle, so the value
// of a fresh one tells how many there are.
struct Holdings {
  DWORD gdi = 0, user = 0, handles = 0;
  UINT_PTR freshGdi = 0, freshKernel = 0;
  std::size_t kilobytes = 0;
};

UINT_PTR FreshGdiHandle() {
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const auto handle = reinterpret_cast<UINT_PTR>(brush) & 0xFFFF;
  DeleteObject(brush);
  return handle;
}

UINT_PTR FreshKernelHandle() {
  const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  CloseHandle(event);
  return reinterpret_cast<UINT_PTR>(event);
}

Holdings Count() {
  Holdings held;
  held.gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  held.user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  GetProcessHandleCount(GetCurrentProcess(), &held.handles);
  held.freshGdi = FreshGdiHandle();
  held.freshKernel = FreshKernelHandle();
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  held.kilobytes = memory.WorkingSetSize / 1024;
  return held;
}

bool PrintPage(BSTR models) {
  _PrintForm* form = nullptr;
  if (FAILED(CoCreateInstance(CLSID_PrintForm, nullptr, CLSCTX_INPROC_SERVER, IID__PrintForm,
                              reinterpret_cast<void**>(&form))))
    return false;
  const BSTR name = SysAllocString(L"Total");
  BSTR campo = name;
  VARIANT value{};
  value.vt = VT_R8;
  value.dblVal = 1234.5;
  _Campos* added = nullptr;
  VARIANT_BOOL cancelled = VARIANT_TRUE;
  const bool printed = SUCCEEDED(form->put_XMLFileName(models)) &&
                       SUCCEEDED(form->AsignarCampo(&campo, &value, &added)) &&
                       SUCCEEDED(form->ImprimirModelo()) &&
                       SUCCEEDED(form->get_ImpresionAnulada(&cancelled)) && cancelled == VARIANT_FALSE;
  if (added) added->Release();
  SysFreeString(name);
  form->Release();
  return printed;
}

bool PrintPages(BSTR models, int count) {
  for (int page = 0; page < count; ++page)
    if (!PrintPage(models)) return std::printf("page %d failed\n", page), false;
  return true;
}

bool CanUnload() {
  const HMODULE component = GetModuleHandleW(L"QmModImp3.dll");
  const FARPROC found = component ? GetProcAddress(component, "DllCanUnloadNow") : nullptr;
  if (!found) return false;
  HRESULT(STDAPICALLTYPE * canUnloadNow)() = nullptr;
  static_assert(sizeof canUnloadNow == sizeof found);
  std::memcpy(&canUnloadNow, &found, sizeof found);
  return canUnloadNow() == S_OK;
}

bool Flat(const char* what, std::size_t before, std::size_t after, std::size_t allowed = 0) {
  std::printf("%s: %zu, then %zu\n", what, before, after);
  return before + allowed >= after;
}

int Run(BSTR models, int pages) {
  constexpr int kWarmUp = 20;  // what is loaded and kept once stands by then
  constexpr std::size_t kAllowedKilobytes = 1024;
  if (!PrintPages(models, kWarmUp)) return 1;
  const Holdings before = Count();
  if (!PrintPages(models, pages)) return 1;
  const Holdings after = Count();

  std::printf("%d pages\n", pages);
  const bool flat = Flat("GDI objects", before.gdi, after.gdi) &
                    Flat("USER objects", before.user, after.user) &
                    Flat("handles", before.handles, after.handles) &
                    Flat("fresh GDI handle", before.freshGdi, after.freshGdi) &
                    Flat("fresh handle", before.freshKernel, after.freshKernel) &
                    Flat("working set, KB", before.kilobytes, after.kilobytes, kAllowedKilobytes);
  const bool unloads = CanUnload();
  std::printf("%s, %s\n", flat ? "nothing grew" : "something grew",
              unloads ? "no object is left" : "objects are left");
  return flat && unloads ? 0 : 1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 2) return 2;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const BSTR models = SysAllocString(arguments[1]);
  const int result = Run(models, count > 2 ? _wtoi(arguments[2]) : 500);
  SysFreeString(models);
  CoUninitialize();
  return result;
}
