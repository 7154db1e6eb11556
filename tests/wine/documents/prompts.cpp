// prompts SCENE MODELS.xml: a host at whose screen somebody answers the component's dialogs. Scenes:
//   answers      model 1 asks two things on each of two copies; printed with one object, then with another
//   printer      model 2 names a printer that is not there
//   release      the host releases its object while a dialog of its action is open (models 1 and 2)
//   filling      the host fills the object, and prints with another, while a dialog is open (models 1 and 3)
//   no_printers  models 2 and 3 on a machine without printers
#include <cwchar>
#include <vector>

#include "tests/wine/documents/dialog_user.h"
#include "tests/wine/documents/print_host.h"
#include "tests/wine/hosts/expectations.h"

namespace {

using hosts::Dialogs;
using hosts::DialogUser;
using hosts::Expectations;
using hosts::PrintHost;

constexpr char16_t kValueTitle[] = u"Modelos de impresión";
constexpr char16_t kPrinterTitle[] = u"Error Impresora";
constexpr char16_t kPrinterText[] = u"No existe la impresora (Impresora Vieja) Elegir impresora";

struct Scene {
  std::wstring models;
  Expectations& expect;
  DialogUser& user;
};

void Answer(const Scene& scene, const char16_t* prompt, const char16_t* offered,
            std::function<void(HWND)> action) {
  scene.user.Foresee({kValueTitle, prompt, [=, &scene](HWND dialog) {
                        scene.expect.True("the answer offered", hosts::Offered(dialog) == offered);
                        action(dialog);
                      }});
}

// The printer at that place of the list; -1 cancels.
void ChoosePrinter(const Scene& scene, const std::vector<std::u16string>& listed, int place) {
  scene.user.Foresee({kPrinterTitle, kPrinterText, [=, &scene](HWND dialog) {
                        const HWND list = Dialogs::ChildOf(dialog, u"ListBox");
                        std::vector<std::u16string> names;
                        const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
                        for (LRESULT i = 0; i < count; ++i) {
                          wchar_t name[80] = L"";
                          SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i),
                                       reinterpret_cast<LPARAM>(name));
                          names.push_back(qm::platform::win32::Text(name));
                        }
                        scene.expect.True("the printers listed", names == listed);
                        if (place >= 0) SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(place), 0);
                        Dialogs::Click(dialog, place >= 0 ? IDOK : IDCANCEL);
                      }});
}

void Print(const Scene& scene, const char* what, PrintHost& host, bool cancelled = false) {
  scene.expect.Result(what, S_OK, host.Print());
  scene.expect.True(what, host.Cancelled() == cancelled);
  scene.expect.True("every dialog foreseen has come", scene.user.Done());
}

void Answers(const Scene& scene) {
  PrintHost host(scene.models, 1);
  Answer(scene, u"Copia 1: Número de pedido", u"", [](HWND dialog) {
    hosts::Type(dialog, u"Pedido/77");
    Dialogs::Click(dialog, IDOK);
  });
  Answer(scene, u"Copia 1: Recibí", u"", [](HWND dialog) {
    hosts::Type(dialog, u"Íñigo");
    hosts::Press(dialog, u"Edit", VK_RETURN);
  });
  Answer(scene, u"Copia 2: Número de pedido", u"Pedido/77",
         [](HWND dialog) { hosts::Press(dialog, u"Edit", VK_RETURN); });
  Answer(scene, u"Copia 2: Recibí", u"Íñigo", [](HWND dialog) {
    hosts::Type(dialog, u"nadie");
    Dialogs::Click(dialog, IDCANCEL);
  });
  Print(scene, "first object", host);

  PrintHost other(scene.models, 1);
  Answer(scene, u"Copia 1: Número de pedido", u"", [](HWND dialog) {
    hosts::Type(dialog, u"nada");
    hosts::Press(dialog, u"Edit", VK_ESCAPE);
  });
  Answer(scene, u"Copia 1: Recibí", u"", [](HWND dialog) {
    hosts::Type(dialog, u"Begoña");
    Dialogs::Click(dialog, IDOK);
  });
  Answer(scene, u"Copia 2: Número de pedido", u"", [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
  Answer(scene, u"Copia 2: Recibí", u"Begoña", [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
  Print(scene, "second object", other);
}

void Printer(const Scene& scene) {
  const std::vector<std::u16string> printers = {u"Impresora A4", u"Impresora Averiada", u"Impresora Recibos"};
  PrintHost host(scene.models, 2);
  ChoosePrinter(scene, printers, 0);
  Print(scene, "chosen", host);
  Print(scene, "not asked again", host);

  PrintHost other(scene.models, 2);
  ChoosePrinter(scene, printers, 2);
  Print(scene, "another object", other);

  PrintHost third(scene.models, 2);
  ChoosePrinter(scene, printers, -1);
  Print(scene, "cancelled", third, true);
  third.UseModel(3);
  Print(scene, "printed after cancelling", third, true);
  third.ForgetCancelling();
  Print(scene, "printed after forgetting", third);
}

// A window of the host, which runs what comes to it in whatever loop its thread is in.
class HostWindow {
 public:
  explicit HostWindow(std::function<void()> action) : action_(std::move(action)) {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
  }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;
  ~HostWindow() { DestroyWindow(window_); }

  // Called by another thread: comes back when the action is done.
  void Act() const { SendMessageW(window_, WM_APP, 0, 0); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM parameter) {
    if (message != WM_APP) return DefWindowProcW(window, message, wide, parameter);
    reinterpret_cast<HostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA))->action_();
    return 0;
  }

  std::function<void()> action_;
  HWND window_ = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
};

void Release(const Scene& scene) {
  {
    PrintHost host(scene.models, 1);
    const HostWindow window([&] { host.Release(); });
    Answer(scene, u"Copia 1: Número de pedido", u"", [&](HWND dialog) {
      window.Act();
      hosts::Type(dialog, u"Pedido/78");
      Dialogs::Click(dialog, IDOK);
    });
    Answer(scene, u"Copia 1: Recibí", u"", [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
    Answer(scene, u"Copia 2: Número de pedido", u"Pedido/78",
           [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
    Answer(scene, u"Copia 2: Recibí", u"", [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
    scene.expect.Result("released while it asks for a value", S_OK, host.Print());
    scene.expect.True("released", !host.Created());
  }
  PrintHost host(scene.models, 2);
  const HostWindow window([&] { host.Release(); });
  scene.user.Foresee({kPrinterTitle, kPrinterText, [&](HWND dialog) {
                        window.Act();
                        Dialogs::Click(dialog, IDOK);
                      }});
  scene.expect.Result("released while it asks for a printer", S_OK, host.Print());
  scene.expect.True("every dialog foreseen has come", scene.user.Done());
}

void Filling(const Scene& scene) {
  PrintHost host(scene.models, 1);
  HRESULT printed = E_PENDING;
  const HostWindow window([&] {
    for (int i = 0; i < 1000; ++i) {
      host.Field(L"Otro " + std::to_wstring(i), L"otro");
      host.Cell(L"OTRA", L"Otra " + std::to_wstring(i), L"otra", 0);
    }
    host.Field(L"Total", L"nuevo");
    PrintHost other(scene.models, 3);
    printed = other.Print();
  });
  host.Field(L"Total", L"viejo");
  Answer(scene, u"Copia 1: Número de pedido", u"", [&](HWND dialog) {
    window.Act();
    hosts::Type(dialog, u"Pedido/79");
    Dialogs::Click(dialog, IDOK);
  });
  Answer(scene, u"Copia 1: Recibí", u"", [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
  Answer(scene, u"Copia 2: Número de pedido", u"Pedido/79",
         [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
  Answer(scene, u"Copia 2: Recibí", u"", [](HWND dialog) { Dialogs::Click(dialog, IDOK); });
  Print(scene, "filled while it asks", host);
  scene.expect.Result("another printed while it asks", S_OK, printed);
}

void NoPrinters(const Scene& scene) {
  PrintHost host(scene.models, 3);
  scene.expect.Result("no printer named", hosts::ErrorResult(482), host.Print());
  scene.expect.True("an error is no cancelling", !host.Cancelled());
  host.UseModel(2);
  ChoosePrinter(scene, {}, 0);  // accepted with nothing to choose
  Print(scene, "nothing chosen", host, true);
  host.ForgetCancelling();
  ChoosePrinter(scene, {}, -1);
  Print(scene, "cancelled", host, true);
}

// No reference was lost and none is left over.
bool CanUnload() {
  const HMODULE component = GetModuleHandleW(L"QmModImp3.dll");
  const FARPROC found = component ? GetProcAddress(component, "DllCanUnloadNow") : nullptr;
  return found && reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(found))() == S_OK;
}

struct {
  const wchar_t* name;
  void (*play)(const Scene&);
} const kScenes[] = {{L"answers", Answers},
                     {L"printer", Printer},
                     {L"release", Release},
                     {L"filling", Filling},
                     {L"no_printers", NoPrinters}};

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 3) return 2;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  Expectations expect;
  bool played = false;
  {
    DialogUser user;
    const Scene scene{arguments[2], expect, user};
    for (const auto& known : kScenes) {
      if (std::wcscmp(known.name, arguments[1]) != 0) continue;
      known.play(scene);
      played = true;
    }
  }
  expect.True("the scene is known", played);
  expect.True("no object is left", CanUnload());
  CoUninitialize();
  return expect.Finish();
}
