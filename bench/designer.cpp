// The designer's window with 40, 500 and 5,000 fields over a background picture: how long it takes to show,
// and what a step of a drag and of scrolling takes until it is painted.
// Goals: shown within 300 ms; a step with 5,000 fields takes at most twice as long as with 40.

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/stopwatch.h"
#include "designer/win32/modelo_print_window.h"
#include "designer/win32/show.h"
#include "tests/designer/win32/window_world.h"

namespace {

using namespace qm;
using designer::win32::ModeloPrintWindow;
using designer::win32::WindowWorld;

constexpr int kSteps = 200;
constexpr int kColumns = 10;

struct Times {
  double shown = 0;
  double dragStep = 0;
  double scrollStep = 0;
};

std::string Page(int fields) {
  std::string models;
  const int rows = (fields + kColumns - 1) / kColumns;
  for (int i = 0; i < fields; ++i)
    models += designer::win32::Campo("CAMPO" + std::to_string(i), 200 + i % kColumns * 1150,
                                     200 + i / kColumns * (16000 / rows), 1100, 260);
  const std::string whole =
      "<Modelos><Modelo Numero=\"1\" Width=\"11906\" Height=\"16838\" Copias=\"1\" "
      "EsEtiqueta=\"0\" Logo=\"0\" Imagen=\"fondo.bmp\">";
  return whole + models + "</Modelo></Modelos>";
}

// A scanned form of 150 dots per inch.
std::string Background() {
  platform::win32::Bitmap24 bitmap(1240, 1754);
  for (int y = 0; y < bitmap.Height(); ++y) {
    auto* const row = const_cast<std::uint8_t*>(bitmap.Row(y));
    for (int x = 0; x < bitmap.Width() * 3; ++x)
      row[x] = static_cast<std::uint8_t>(215 + (x * 5 + y * 3) % 40);
  }
  return bitmap.BmpBytes();
}

// The median: what a step mostly takes, whatever else the machine does.
double StepTime(const std::function<void(int)>& step) {
  std::vector<double> times;
  for (int i = 0; i < kSteps; ++i) times.push_back(bench::Milliseconds([&] { step(i); }));
  std::nth_element(times.begin(), times.begin() + kSteps / 2, times.end());
  return times[kSteps / 2];
}

class Visit {
 public:
  explicit Visit(int fields) {
    world_.Keep(Page(fields));
    world_.files.contents[u"C:\\Modelos\\fondo.bmp"] = Background();
  }

  Times Run() {
    start_ = std::chrono::steady_clock::now();
    const UINT_PTR timer = SetTimer(nullptr, 0, 1, &Tick);
    running_ = this;
    designer::win32::ShowModeloPrint(world_.world, world_.menus, 1);
    KillTimer(nullptr, timer);
    return times_;
  }

 private:
  // From the designer's own loop, on its thread: once, when it is shown.
  static void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    running_->Measure(FindWindowW(ModeloPrintWindow::kClassName, nullptr));
  }

  void Measure(HWND form) {
    const HWND page = GetDlgItem(form, designer::win32::kBasePin);
    RedrawWindow(form, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    times_.shown =
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start_).count();

    const auto at = [](int x, int y) {
      constexpr int kMargin = designer::win32::PageView::kMargin;
      return MAKELPARAM(kMargin + x, kMargin + y);
    };
    SendMessageW(page, WM_LBUTTONDOWN, MK_LBUTTON, at(30, 20));
    times_.dragStep = StepTime([&](int i) {
      SendMessageW(page, WM_MOUSEMOVE, MK_LBUTTON, at(32 + i * 2, 22 + i));
      UpdateWindow(page);
    });
    SendMessageW(page, WM_LBUTTONUP, 0, at(30, 20));

    const HWND bar = GetDlgItem(form, designer::win32::kBarVer);
    times_.scrollStep = StepTime([&](int i) {
      SendMessageW(form, WM_VSCROLL, i % 50 < 25 ? SB_LINEDOWN : SB_LINEUP, reinterpret_cast<LPARAM>(bar));
    });
    PostMessageW(form, WM_CLOSE, 0, 0);
  }

  inline static Visit* running_ = nullptr;
  WindowWorld world_;
  std::chrono::steady_clock::time_point start_;
  Times times_;
};

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  (void)Visit(40).Run();  // Windows' own first times
  std::vector<Times> all;
  for (const int fields : {40, 500, 5000}) {
    all.push_back(Visit(fields).Run());
    std::printf("%5d fields: shown in %.0f ms, drag step %.2f ms, scroll step %.2f ms\n", fields,
                all.back().shown, all.back().dragStep, all.back().scrollStep);
  }
  std::printf("5,000 against 40 fields: drag %.2f, scroll %.2f (goal: at most 2)\n",
              all.back().dragStep / all.front().dragStep, all.back().scrollStep / all.front().scrollStep);
  CoUninitialize();
  return 0;
}
