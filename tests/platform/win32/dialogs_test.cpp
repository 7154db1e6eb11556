// The designer's questions and messages, answered by somebody at the screen.

#include "platform/win32/dialogs.h"

#include <gmock/gmock.h>

#include <functional>

#include "platform/win32/files.h"
#include "platform/win32/handles.h"
#include "tests/platform/win32/dialog_user.h"
#include "tests/platform/win32/gdi_objects.h"
#include "tests/platform/win32/scratch_folder.h"

namespace qm::platform::win32 {
namespace {

using testing::ElementsAre;

using Texts = std::vector<std::u16string>;
using Kind = PropertyEntry::Kind;

constexpr char16_t kMessageTitle[] = u"Modelos de impresión";
constexpr int kMessageText = 0xFFFF;
constexpr int kFileName = 1148;  // of the file dialogs

HWND ListOf(HWND dialog) { return WindowDriver::ChildOf(dialog, u"ListBox"); }
HWND EntryOf(HWND dialog) { return WindowDriver::ChildOf(dialog, u"Edit"); }

template <class Ask>
auto AskedWhile(const char16_t* title, const std::function<void(HWND)>& action, const Ask& ask) {
  WindowDriver user(title, action);
  auto answer = ask();
  EXPECT_TRUE(user.Acted());
  return answer;
}

std::u16string TextAskedWhile(const Texts& choices, std::u16string_view defaultAnswer,
                              const std::function<void(HWND)>& action) {
  return AskedWhile(u"Elegir tamaño de papel", action, [&] {
    return Win32Dialogs().AskText(u"Elegir tamaño de papel", choices, defaultAnswer);
  });
}

TEST(TextPrompt, GivesTheTextTyped) {
  EXPECT_EQ(TextAskedWhile({}, u"",
                           [](HWND dialog) {
                             Type(EntryOf(dialog), u"Peñaranda & hijos");
                             WindowDriver::Click(dialog, IDOK);
                           }),
            u"Peñaranda & hijos");
}

TEST(TextPrompt, OffersItsDefaultAllSelected) {
  DWORD selection = 0;
  EXPECT_EQ(TextAskedWhile({}, u"abc",
                           [&](HWND dialog) {
                             selection = static_cast<DWORD>(SendMessageW(EntryOf(dialog), EM_GETSEL, 0, 0));
                             WindowDriver::Press(EntryOf(dialog), VK_RETURN);
                           }),
            u"abc");
  EXPECT_EQ(selection, MAKELONG(0, 3));
}

TEST(TextPrompt, CancelledGivesNothing) {
  EXPECT_EQ(TextAskedWhile({}, u"abc", [](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); }), u"");
  EXPECT_EQ(TextAskedWhile({}, u"abc", [](HWND dialog) { WindowDriver::Press(EntryOf(dialog), VK_ESCAPE); }),
            u"");
  EXPECT_EQ(TextAskedWhile({u"1"}, u"1", [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); }), u"");
}

TEST(TextPrompt, OffersItsChoicesInOrderWithNoneChosen) {
  Texts items;
  LRESULT selected = 0;
  EXPECT_EQ(TextAskedWhile({u"Recibos Estándar", u"A4, apaisado", u"Tamaño especial"}, u"",
                           [&](HWND dialog) {
                             items = ItemsOf(ListOf(dialog));
                             selected = SendMessageW(ListOf(dialog), LB_GETCURSEL, 0, 0);
                             WindowDriver::Click(dialog, IDOK);
                           }),
            u"");
  EXPECT_THAT(items, ElementsAre(u"Recibos Estándar", u"A4, apaisado", u"Tamaño especial"));
  EXPECT_EQ(selected, -1);
}

TEST(TextPrompt, GivesTheChoiceMadeByMouseKeysOrDoubleClick) {
  const Texts choices{u"1", u"2", u"3"};
  EXPECT_EQ(TextAskedWhile(choices, u"",
                           [](HWND dialog) {
                             Select(ListOf(dialog), 2);
                             WindowDriver::Click(dialog, IDOK);
                           }),
            u"3");
  EXPECT_EQ(TextAskedWhile(choices, u"1",
                           [](HWND dialog) {
                             WindowDriver::Press(ListOf(dialog), VK_DOWN);
                             WindowDriver::Press(ListOf(dialog), VK_RETURN);
                           }),
            u"2");
  EXPECT_EQ(TextAskedWhile(choices, u"3",
                           [](HWND dialog) {
                             PostMessageW(dialog, WM_COMMAND,
                                          MAKEWPARAM(GetDlgCtrlID(ListOf(dialog)), LBN_DBLCLK),
                                          reinterpret_cast<LPARAM>(ListOf(dialog)));
                           }),
            u"3");
}

TEST(TextPrompt, CanBeMadeLargerWhereItsListIsLong) {
  LONG grown = 0;
  std::string faults;
  const auto enlarge = [&](HWND dialog) {
    RECT window{};
    RECT before{};
    RECT after{};
    GetWindowRect(dialog, &window);
    GetWindowRect(ListOf(dialog), &before);
    SetWindowPos(dialog, nullptr, 0, 0, static_cast<int>(window.right - window.left) + 30,
                 static_cast<int>(window.bottom - window.top) + 90, SWP_NOZORDER);
    GetWindowRect(ListOf(dialog), &after);
    grown = (after.bottom - after.top) - (before.bottom - before.top);
    faults = FaultsOf(dialog);
    WindowDriver::Click(dialog, IDCANCEL);
  };
  (void)TextAskedWhile(Texts(116, u"Formulario"), u"", enlarge);
  EXPECT_EQ(grown, 90);
  EXPECT_EQ(faults, "");
}

const std::vector<PropertyEntry> kLogo = {{u"Ancho", u"1,058201", Kind::Text},
                                          {u"Alto", u"0,79", Kind::Text},
                                          {u"Con bordes", u"1", Kind::Check},
                                          {u"Nuevo Logo", u"", Kind::PictureFile}};

std::optional<Texts> PropertiesAskedWhile(const std::function<void(HWND)>& action) {
  return AskedWhile(u"Cambiar Tamaño", action,
                    [] { return Win32Dialogs().AskProperties(u"Cambiar Tamaño", kLogo); });
}

TEST(PropertyEntries, AreGivenAsTheUserLeftThem) {
  EXPECT_EQ(PropertiesAskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDOK); }),
            (Texts{u"1,058201", u"0,79", u"1", u""}));
  EXPECT_EQ(PropertiesAskedWhile([](HWND dialog) {
              Type(ChildrenOf(dialog, L"Edit")[1], u"2.5");
              SendMessageW(ChildrenOf(dialog, L"Button")[0], BM_CLICK, 0, 0);
              Type(ChildrenOf(dialog, L"Edit")[2], u"C:\\ñ.bmp");
              WindowDriver::Press(ChildrenOf(dialog, L"Edit")[0], VK_RETURN);
            }),
            (Texts{u"1,058201", u"2.5", u"0", u"C:\\ñ.bmp"}));
}

TEST(PropertyEntries, CancelledGiveNothing) {
  EXPECT_EQ(PropertiesAskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); }), std::nullopt);
  EXPECT_EQ(PropertiesAskedWhile(
                [](HWND dialog) { WindowDriver::Press(ChildrenOf(dialog, L"Edit")[0], VK_ESCAPE); }),
            std::nullopt);
}

TEST(PropertyEntries, StandUncutAndAreReachedByTabInOrder) {
  std::string faults;
  std::vector<HWND> expected;
  std::vector<HWND> visited;
  (void)PropertiesAskedWhile([&](HWND dialog) {
    faults = FaultsOf(dialog);
    const auto entries = ChildrenOf(dialog, L"Edit");
    const auto buttons = ChildrenOf(dialog, L"Button");
    expected = {entries[0], entries[1], buttons[0], entries[2],
                buttons[1], buttons[2], buttons[3], entries[0]};
    for (std::size_t i = 0; i < expected.size(); ++i) {
      visited.push_back(FocusOf(dialog));
      PressAndMoveOn(dialog, VK_TAB);
    }
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(faults, "");
  EXPECT_EQ(visited, expected);
}

TEST(PropertyEntries, APictureFileCanBeLookedFor) {
  const ScratchFolder folder;
  Win32Files().Replace(folder.File(u"logo.bmp"), "BM");
  EXPECT_EQ(PropertiesAskedWhile([&](HWND dialog) {
              const DWORD owner = GetWindowThreadProcessId(dialog, nullptr);
              PostMessageW(ChildrenOf(dialog, L"Button")[1], BM_CLICK, 0, 0);
              const HWND files = WaitForWindow(owner, kDialogClass, nullptr, dialog);
              SendDlgItemMessageW(files, kFileName, WM_SETTEXT, 0,
                                  reinterpret_cast<LPARAM>(Wide(folder.File(u"logo.bmp"))));
              PostMessageW(files, WM_COMMAND, IDOK, 0);
              (void)WaitUntil([&] { return !IsWindow(files); });
              (void)WaitUntil([&] { return !WindowDriver::TextOf(ChildrenOf(dialog, L"Edit")[2]).empty(); });
              WindowDriver::Click(dialog, IDOK);
            }),
            (Texts{u"1,058201", u"0,79", u"1", folder.File(u"logo.bmp")}));
}

std::optional<std::vector<bool>> ChecksAskedWhile(const std::function<void(HWND)>& action) {
  return AskedWhile(u"Propiedad a Copiar", action, [] {
    return Win32Dialogs().AskChecks(u"Propiedad a Copiar",
                                    {u"Alto", u"Izquierda", u"Largo", u"Ancho", u"Fuente"});
  });
}

TEST(CheckOptions, StartWithoutATickAndAreGivenInOrder) {
  EXPECT_EQ(ChecksAskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDOK); }),
            (std::vector<bool>{false, false, false, false, false}));
  std::string faults;
  EXPECT_EQ(ChecksAskedWhile([&](HWND dialog) {
              faults = FaultsOf(dialog);
              SendMessageW(ChildrenOf(dialog, L"Button")[2], BM_CLICK, 0, 0);
              WindowDriver::Press(ChildrenOf(dialog, L"Button")[0], VK_SPACE);
              WindowDriver::Press(ChildrenOf(dialog, L"Button")[0], VK_RETURN);
            }),
            (std::vector<bool>{true, false, true, false, false}));
  EXPECT_EQ(faults, "");
}

TEST(CheckOptions, CancelledGiveNothing) {
  EXPECT_EQ(ChecksAskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); }), std::nullopt);
}

bool ConfirmedWhile(int button, std::u16string& shown) {
  return AskedWhile(
      kMessageTitle,
      [&](HWND box) {
        shown = WindowDriver::TextOf(GetDlgItem(box, kMessageText));
        PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
      },
      [] { return Win32Dialogs().Confirm(u"¿desea grabar las modificaciones?"); });
}

TEST(Messages, AskForYesOrNo) {
  std::u16string shown;
  EXPECT_TRUE(ConfirmedWhile(IDYES, shown));
  EXPECT_FALSE(ConfirmedWhile(IDNO, shown));
  EXPECT_EQ(shown, u"¿desea grabar las modificaciones?");
}

TEST(Messages, TellTheirText) {
  for (const Icon icon : {Icon::Information, Icon::Exclamation, Icon::Critical}) {
    std::u16string shown;
    WindowDriver user(kMessageTitle, [&](HWND box) {
      shown = WindowDriver::TextOf(GetDlgItem(box, kMessageText));
      PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    Win32Dialogs().Tell(icon, u"Tamaño exesivo");
    EXPECT_TRUE(user.Acted());
    EXPECT_EQ(shown, u"Tamaño exesivo");
  }
}

TEST(Messages, DisableEveryWindowOfTheThreadMeanwhile) {
  const OwnedWindow first(CreateWindowExW(0, L"STATIC", L"1", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                          nullptr, nullptr, nullptr, nullptr));
  const OwnedWindow second(CreateWindowExW(0, L"STATIC", L"2", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50,
                                           nullptr, nullptr, nullptr, nullptr));
  SetActiveWindow(first.Get());
  bool firstMeanwhile = true;
  bool secondMeanwhile = true;
  WindowDriver user(kMessageTitle, [&](HWND box) {
    firstMeanwhile = IsWindowEnabled(first.Get());
    secondMeanwhile = IsWindowEnabled(second.Get());
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  Win32Dialogs().Tell(Icon::Information, u"Tamaño exesivo");
  EXPECT_TRUE(user.Acted());
  EXPECT_FALSE(firstMeanwhile);
  EXPECT_FALSE(secondMeanwhile);
  EXPECT_TRUE(IsWindowEnabled(first.Get()));
  EXPECT_TRUE(IsWindowEnabled(second.Get()));
}

std::u16string CurrentFolder() {
  std::u16string folder(GetCurrentDirectoryW(0, nullptr), u'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), WideBuffer(folder)));
  return folder;
}

// The user of a dialog of the system, whose title is of the system's language.
class SystemDialogUser {
 public:
  explicit SystemDialogUser(std::function<void(HWND)> action)
      : thread_([owner = GetCurrentThreadId(), action = std::move(action)] {
          if (const HWND dialog = WaitForWindow(owner, kDialogClass)) action(dialog);
        }) {}
  SystemDialogUser(const SystemDialogUser&) = delete;
  SystemDialogUser& operator=(const SystemDialogUser&) = delete;
  ~SystemDialogUser() { thread_.join(); }

 private:
  std::thread thread_;
};

void AnswerFile(HWND dialog, const std::u16string& name) {
  SendDlgItemMessageW(dialog, kFileName, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(name)));
  PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

TEST(FileDialogs, GiveTheFileChosenAndLeaveTheCurrentFolder) {
  const ScratchFolder folder;
  Win32Files().Replace(folder.File(u"señal.jpg"), "x");
  const std::u16string before = CurrentFolder();
  const std::u16string path = folder.File(u"señal.jpg");
  {
    const SystemDialogUser user([](HWND dialog) { AnswerFile(dialog, u"señal.jpg"); });
    EXPECT_EQ(
        Win32Dialogs().OpenFile(u"Imagenes (*.bmp;*.jpg)|*.bmp;*.jpg", path.substr(0, path.rfind(u'\\') + 1)),
        path);
  }
  EXPECT_EQ(CurrentFolder(), before);
}

TEST(FileDialogs, CancelledGiveNothing) {
  const SystemDialogUser user([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(Win32Dialogs().OpenFile(u"Imagenes (*.bmp;*.jpg)|*.bmp;*.jpg", u"C:\\no existe\\"), std::nullopt);
}

TEST(FileDialogs, ForSavingOfferTheFileNameAndItsExtension) {
  const ScratchFolder folder;
  const std::u16string before = CurrentFolder();
  std::u16string offered;
  {
    const SystemDialogUser user([&](HWND dialog) {
      offered = WindowDriver::TextOf(GetDlgItem(dialog, kFileName));
      AnswerFile(dialog, u"copia");
    });
    EXPECT_EQ(Win32Dialogs().SaveFile(folder.File(u"modelos.xml")), folder.File(u"copia.xml"));
  }
  EXPECT_TRUE(offered.ends_with(u"modelos.xml"));
  EXPECT_EQ(CurrentFolder(), before);
}

TEST(FileDialogs, ForSavingOpenAlsoWithANameThatIsNone) {
  const SystemDialogUser user([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(Win32Dialogs().SaveFile(u"C:\\<no>|\"nombre\"?.xml"), std::nullopt);
}

TEST(ColourDialog, BeginsWithTheColourGivenAndGivesTheOneChosen) {
  Texts shown;
  const SystemDialogUser user([&](HWND dialog) {
    for (const int id : {706, 707, 708}) shown.push_back(WindowDriver::TextOf(GetDlgItem(dialog, id)));
    for (const int id : {706, 707, 708}) SetDlgItemInt(dialog, id, static_cast<UINT>(id - 696), FALSE);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  });
  EXPECT_EQ(Win32Dialogs().ChooseColor(0x00030201), 0x000C0B0A);
  EXPECT_THAT(shown, ElementsAre(u"1", u"2", u"3"));
}

TEST(ColourDialog, BeginsWithASystemColourToo) {
  std::u16string red;
  {
    const SystemDialogUser user([&](HWND dialog) {
      red = WindowDriver::TextOf(GetDlgItem(dialog, 706));
      PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    const auto highlight = static_cast<std::int32_t>(0x80000000U | COLOR_HIGHLIGHT);
    EXPECT_EQ(Win32Dialogs().ChooseColor(highlight), std::nullopt);
  }
  const std::string expected = std::to_string(GetRValue(GetSysColor(COLOR_HIGHLIGHT)));
  EXPECT_EQ(red, std::u16string(expected.begin(), expected.end()));
}

TEST(DesignerDialogs, LeaveNoGdiObjectsBehind) {
  const auto use = [] {
    (void)PropertiesAskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); });
    (void)TextAskedWhile({u"1", u"2"}, u"", [](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); });
  };
  use();
  const long before = GdiObjectCount();
  for (int i = 0; i < 10; ++i) use();
  EXPECT_EQ(GdiObjectCount(), before);
}

}  // namespace
}  // namespace qm::platform::win32
