#include "platform/win32/prompts.h"

#include <functional>

#include "platform/win32/dialog.h"
#include "platform/win32/handles.h"
#include "tests/platform/win32/expect_error.h"
#include "tests/platform/win32/gdi_objects.h"
#include "tests/platform/win32/window_driver.h"

namespace qm::platform::win32 {
namespace {

constexpr char16_t kTitle[] = u"Modelos de impresión";
constexpr char16_t kPrinterTitle[] = u"Error Impresora";
const std::vector<std::u16string> kPrinters = {u"Impresora A4", u"Impresora Recibos", u"Ñandú & Cía"};

HWND EntryOf(HWND dialog) { return WindowDriver::ChildOf(dialog, u"Edit"); }
HWND LabelOf(HWND dialog) { return WindowDriver::ChildOf(dialog, u"Static"); }
HWND ListOf(HWND dialog) { return WindowDriver::ChildOf(dialog, u"ListBox"); }

void Type(HWND dialog, const std::u16string& text) {
  SendMessageW(EntryOf(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(text)));
}

std::u16string AskedWhile(const std::function<void(HWND)>& action,
                          std::u16string_view prompt = u"Copia 1: Pedido",
                          std::u16string_view defaultAnswer = u"") {
  WindowDriver user(kTitle, action);
  std::u16string answer = Win32Prompts().AskValue(prompt, 8, defaultAnswer);
  EXPECT_TRUE(user.Acted());
  return answer;
}

std::u16string ChosenWhile(const std::function<void(HWND)>& action) {
  WindowDriver user(kPrinterTitle, action);
  std::u16string answer = Win32Prompts().ChoosePrinter(
      kPrinterTitle, u"No existe la impresora (Vieja) Elegir impresora", kPrinters);
  EXPECT_TRUE(user.Acted());
  return answer;
}

TEST(ValueEntry, OkGivesTheTextEntered) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              Type(dialog, u"Peñaranda 7 & hijos");
              WindowDriver::Click(dialog, IDOK);
            }),
            u"Peñaranda 7 & hijos");
}

TEST(ValueEntry, CancelGivesNothing) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              Type(dialog, u"algo");
              WindowDriver::Click(dialog, IDCANCEL);
            }),
            u"");
}

TEST(ValueEntry, EnterAccepts) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              Type(dialog, u"algo");
              WindowDriver::Press(EntryOf(dialog), VK_RETURN);
            }),
            u"algo");
}

TEST(ValueEntry, EscapeCancels) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              Type(dialog, u"algo");
              WindowDriver::Press(EntryOf(dialog), VK_ESCAPE);
            }),
            u"");
}

TEST(ValueEntry, TheCloseBoxCancels) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              Type(dialog, u"algo");
              PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
            }),
            u"");
}

TEST(ValueEntry, AnEmptyAnswerIsEmpty) {
  EXPECT_EQ(AskedWhile(
                [](HWND dialog) {
                  Type(dialog, u"");
                  WindowDriver::Click(dialog, IDOK);
                },
                u"Copia 2: Pedido", u"anterior"),
            u"");
}

TEST(ValueEntry, OffersTheDefaultAnswerAllSelected) {
  std::u16string shown;
  DWORD selection = 0;
  EXPECT_EQ(AskedWhile(
                [&](HWND dialog) {
                  shown = WindowDriver::TextOf(EntryOf(dialog));
                  selection = static_cast<DWORD>(SendMessageW(EntryOf(dialog), EM_GETSEL, 0, 0));
                  WindowDriver::Press(EntryOf(dialog), VK_RETURN);
                },
                u"Copia 2: Pedido", u"A-123"),
            u"A-123");
  EXPECT_EQ(shown, u"A-123");
  EXPECT_EQ(LOWORD(selection), 0);
  EXPECT_EQ(HIWORD(selection), 5);
}

TEST(ValueEntry, TypingReplacesTheDefaultAnswer) {
  EXPECT_EQ(AskedWhile(
                [&](HWND dialog) {
                  for (const char16_t letter : std::u16string_view(u"B7"))
                    SendMessageW(EntryOf(dialog), WM_CHAR, letter, 1);
                  WindowDriver::Press(EntryOf(dialog), VK_RETURN);
                },
                u"Copia 2: Pedido", u"A-123"),
            u"B7");
}

TEST(ValueEntry, ShowsThePromptAndSpanishButtons) {
  std::u16string prompt;
  std::u16string ok;
  std::u16string cancel;
  (void)AskedWhile(
      [&](HWND dialog) {
        prompt = WindowDriver::TextOf(LabelOf(dialog));
        ok = WindowDriver::TextOf(GetDlgItem(dialog, IDOK));
        cancel = WindowDriver::TextOf(GetDlgItem(dialog, IDCANCEL));
        WindowDriver::Click(dialog, IDCANCEL);
      },
      u"Copia 2: Número de pedido & fecha");
  EXPECT_EQ(prompt, u"Copia 2: Número de pedido & fecha");
  EXPECT_EQ(ok, u"Aceptar");
  EXPECT_EQ(cancel, u"Cancelar");
}

TEST(ValueEntry, ShowsAPromptOfAnyLengthUncut) {
  std::u16string sentence;
  for (const int words : {1, 12, 60, 200}) {
    while (sentence.size() < static_cast<std::size_t>(words) * 8) sentence += u"factura ";
    bool uncut = false;
    (void)AskedWhile(
        [&](HWND dialog) {
          uncut = WindowDriver::ShowsAllOf(LabelOf(dialog));
          WindowDriver::Click(dialog, IDCANCEL);
        },
        sentence);
    EXPECT_TRUE(uncut) << words << " words";
  }
  bool uncut = false;
  (void)AskedWhile(
      [&](HWND dialog) {
        uncut = WindowDriver::ShowsAllOf(LabelOf(dialog));
        WindowDriver::Click(dialog, IDCANCEL);
      },
      std::u16string(300, u'W'));
  EXPECT_TRUE(uncut) << "one long word";
}

TEST(ValueEntry, FitsTheScreenWithAPromptBeyondAllMeasure) {
  RECT window{};
  EXPECT_EQ(AskedWhile(
                [&](HWND dialog) {
                  GetWindowRect(dialog, &window);
                  WindowDriver::Click(dialog, IDOK);
                },
                std::u16string(20000, u'm'), u"sí"),
            u"sí");
  EXPECT_LT(window.bottom - window.top, GetSystemMetrics(SM_CYSCREEN));
}

TEST(ValueEntry, TakesALongAnswer) {
  const std::u16string answer(5000, u'x');
  EXPECT_EQ(AskedWhile([&](HWND dialog) {
              Type(dialog, answer);
              WindowDriver::Click(dialog, IDOK);
            }),
            answer);
}

TEST(ValueEntry, StopsWhenTheProgramEndsAndPassesTheEndOn) {
  WindowDriver user(kTitle, [](HWND dialog) {
    PostThreadMessageW(GetWindowThreadProcessId(dialog, nullptr), WM_QUIT, 7, 0);
  });
  EXPECT_EQ(Win32Prompts().AskValue(u"Copia 1: Pedido", 8, u"algo"), u"");
  MSG message{};
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7U);
}

TEST(ValueEntry, DisablesTheOtherWindowsOfTheThreadWhileItIsOpen) {
  const OwnedWindow first(CreateWindowExW(0, L"STATIC", L"1", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                          nullptr, nullptr, nullptr, nullptr));
  const OwnedWindow second(CreateWindowExW(0, L"STATIC", L"2", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                           nullptr, nullptr, nullptr, nullptr));
  const OwnedWindow disabled(CreateWindowExW(0, L"STATIC", L"3",
                                             WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_DISABLED, 0, 0, 50, 50,
                                             nullptr, nullptr, nullptr, nullptr));
  SetActiveWindow(first.Get());
  bool enabledMeanwhile = true;
  (void)AskedWhile([&](HWND dialog) {
    enabledMeanwhile = IsWindowEnabled(first.Get()) || IsWindowEnabled(second.Get());
    WindowDriver::Click(dialog, IDOK);
  });
  EXPECT_FALSE(enabledMeanwhile);
  EXPECT_TRUE(IsWindowEnabled(first.Get()));
  EXPECT_TRUE(IsWindowEnabled(second.Get()));
  EXPECT_FALSE(IsWindowEnabled(disabled.Get()));
}

TEST(ValueEntry, LeavesNoGdiObjectsBehind) {
  const auto cancel = [](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); };
  (void)AskedWhile(cancel);
  const long before = GdiObjectCount();
  for (int i = 0; i < 10; ++i) (void)AskedWhile(cancel);
  EXPECT_EQ(GdiObjectCount(), before);
}

TEST(PrinterChoice, ShowsTitleTextAndPrintersWithTheFirstSelected) {
  std::u16string text;
  LRESULT count = 0;
  EXPECT_EQ(ChosenWhile([&](HWND dialog) {
              text = WindowDriver::TextOf(LabelOf(dialog));
              count = SendMessageW(ListOf(dialog), LB_GETCOUNT, 0, 0);
              WindowDriver::Press(ListOf(dialog), VK_RETURN);
            }),
            kPrinters[0]);
  EXPECT_EQ(text, u"No existe la impresora (Vieja) Elegir impresora");
  EXPECT_EQ(count, 3);
}

TEST(PrinterChoice, OkGivesTheSelectedPrinter) {
  EXPECT_EQ(ChosenWhile([](HWND dialog) {
              SendMessageW(ListOf(dialog), LB_SETCURSEL, 2, 0);
              WindowDriver::Click(dialog, IDOK);
            }),
            kPrinters[2]);
}

TEST(PrinterChoice, ADoubleClickChooses) {
  EXPECT_EQ(ChosenWhile([](HWND dialog) {
              SendMessageW(ListOf(dialog), LB_SETCURSEL, 1, 0);
              PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(ListOf(dialog)), LBN_DBLCLK),
                           reinterpret_cast<LPARAM>(ListOf(dialog)));
            }),
            kPrinters[1]);
}

TEST(PrinterChoice, CancelAndEscapeGiveNothing) {
  EXPECT_EQ(ChosenWhile([](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); }), u"");
  EXPECT_EQ(ChosenWhile([](HWND dialog) { WindowDriver::Press(ListOf(dialog), VK_ESCAPE); }), u"");
}

TEST(PrinterChoice, OfNoPrintersGivesNothing) {
  WindowDriver user(kPrinterTitle, [](HWND dialog) { WindowDriver::Click(dialog, IDOK); });
  EXPECT_EQ(Win32Prompts().ChoosePrinter(kPrinterTitle, u"No existe la impresora", {}), u"");
}

TEST(Warning, ShowsItsTextAndGoesWithOk) {
  std::u16string text;
  WindowDriver user(kTitle, [&](HWND box) {
    text = WindowDriver::TextOf(GetDlgItem(box, 0xFFFF));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  Win32Prompts().Warn(u"No está configurada la impresora");
  EXPECT_TRUE(user.Acted());
  EXPECT_EQ(text, u"No está configurada la impresora");
}

class FailingDialog : public Dialog {
 public:
  FailingDialog() : Dialog(Layout()) {}

 protected:
  void Command(int id, int) override {
    if (id == IDOK) throw runtime::RuntimeError(runtime::ErrorNumber::Overflow);
  }

 private:
  static DialogLayout Layout() {
    DialogLayout layout(kTitle);
    layout.AddButton(IDOK, u"Aceptar");
    return layout;
  }
};

TEST(Dialogs, AFailureInAHandlerClosesTheDialogAndReachesTheCaller) {
  WindowDriver user(kTitle, [](HWND dialog) { WindowDriver::Click(dialog, IDOK); });
  FailingDialog dialog;
  EXPECT_RUNTIME_ERROR(6, (void)dialog.Run());
}

}  // namespace
}  // namespace qm::platform::win32
