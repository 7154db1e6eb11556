// many_pages MODELS.xml [PAGES]: prints page after page through the component, a new print job object for each,
// and compares what the process holds after the first few with what it holds at the end.
// Exits 0 when nothing grew and the component can be unloaded; prints what it counted.
#include <windows.h>

#include <oleauto.h>
#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "api/typelib/QmModImp3.h"

using namespace Qm_Modelo_Impresion3;

namespace {

struct Holdings {
  DWORD gdi = 0, user = 0, handles = 0;
  std::size_t kilobytes = 0;
};

Holdings Count() {
  Holdings held;
  held.gdi = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  held.user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
  GetProcessHandleCount(GetCurrentProcess(), &held.handles);
  PROCESS_MEMORY_COUNTERS_EX memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), sizeof memory);
  held.kilobytes = memory.PrivateUsage / 1024;
  return held;
}

// GDI handles are few (65,536 a session): a new object must get one near those of the start.
UINT_PTR FreshGdiHandle() {
  const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  const auto handle = reinterpret_cast<UINT_PTR>(brush) & 0xFFFF;
  DeleteObject(brush);
  return handle;
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

int Run(BSTR models, int pages) {
  constexpr int kWarmUp = 20;  // what is loaded and kept once stands by then
  constexpr std::size_t kAllowedKilobytes = 1024;
  if (!PrintPages(models, kWarmUp)) return 1;
  const Holdings before = Count();
  const UINT_PTR freshBefore = FreshGdiHandle();
  if (!PrintPages(models, pages)) return 1;
  const Holdings after = Count();
  const UINT_PTR freshAfter = FreshGdiHandle();

  std::printf("%d pages: GDI %lu to %lu, USER %lu to %lu, handles %lu to %lu, private %zu to %zu KB, "
              "next GDI handle %#zx to %#zx\n",
              pages, before.gdi, after.gdi, before.user, after.user, before.handles, after.handles,
              before.kilobytes, after.kilobytes, static_cast<std::size_t>(freshBefore),
              static_cast<std::size_t>(freshAfter));
  const bool flat = after.gdi <= before.gdi && after.user <= before.user && after.handles <= before.handles &&
                    after.kilobytes <= before.kilobytes + kAllowedKilobytes && freshAfter <= freshBefore + 16;
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
