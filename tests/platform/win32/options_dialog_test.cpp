// The dialog of several labelled entries, answered by a user at the keyboard.

#include <gmock/gmock.h>

#include <functional>

#include "platform/win32/prompts.h"
#include "tests/platform/win32/dialog_user.h"
#include "tests/platform/win32/gdi_objects.h"

namespace qm::platform::win32 {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

using Texts = std::vector<std::u16string>;
using Answers = std::optional<Texts>;

constexpr char16_t kTitle[] = u"Opciones de Etiquetas";
const std::vector<OptionEntry> kEntries = {
    {u"Etiquetas a lo ancho", u"02"}, {u"Etiquetas a lo alto", u"08"},   {u"Margen Superior", u"0"},
    {u"Margen Izquierda", u"0"},      {u"Ancho Pagina Completa", u"21"}, {u"Alto Pagina Completa", u"29,50"}};

Answers AskedWhile(const std::function<void(HWND)>& action,
                   const std::vector<OptionEntry>& entries = kEntries) {
  WindowDriver user(kTitle, action);
  Answers answers = Win32Prompts().AskOptions(kTitle, entries);
  EXPECT_TRUE(user.Acted());
  return answers;
}

TEST(OptionsDialog, ShowsEveryEntryUnderItsLabelInOrderWithNothingCut) {
  std::vector<OptionEntry> shown;
  bool uncut = true;
  bool below = true;
  bool inside = true;
  (void)AskedWhile([&](HWND dialog) {
    const auto labels = ChildrenOf(dialog, L"Static");
    const auto entries = ChildrenOf(dialog, L"Edit");
    RECT client{};
    GetClientRect(dialog, &client);
    LONG bottom = 0;
    for (std::size_t i = 0; i < labels.size() && i < entries.size(); ++i) {
      shown.push_back({WindowDriver::TextOf(labels[i]), WindowDriver::TextOf(entries[i])});
      uncut = uncut && WindowDriver::ShowsAllOf(labels[i]);
      for (const HWND control : {labels[i], entries[i]}) {
        RECT area{};
        GetWindowRect(control, &area);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&area), 2);
        below = below && area.top >= bottom;
        bottom = area.bottom;
        inside = inside && area.left >= 0 && area.right <= client.right;
      }
    }
    RECT button{};
    GetWindowRect(GetDlgItem(dialog, IDOK), &button);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&button), 2);
    inside = inside && button.top >= bottom && button.bottom <= client.bottom;
    RECT window{};
    GetWindowRect(dialog, &window);
    inside = inside && window.bottom - window.top <= GetSystemMetrics(SM_CYSCREEN);
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_THAT(shown, ElementsAreArray(kEntries));
  EXPECT_TRUE(uncut);
  EXPECT_TRUE(below) << "entries stand below one another";
  EXPECT_TRUE(inside) << "all of it is inside the dialog, the dialog on the screen";
}

TEST(OptionsDialog, OkGivesTheTextsAsTheUserLeftThem) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              const auto entries = ChildrenOf(dialog, L"Edit");
              Type(entries[0], u" 3");
              Type(entries[2], u"1,5");
              Type(entries[5], u"");
              WindowDriver::Click(dialog, IDOK);
            }),
            Answers(Texts{u" 3", u"08", u"1,5", u"0", u"21", u""}));
}

TEST(OptionsDialog, CancelEscapeAndTheCloseBoxGiveNothing) {
  EXPECT_EQ(AskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); }), std::nullopt);
  EXPECT_EQ(AskedWhile([](HWND dialog) { WindowDriver::Press(ChildrenOf(dialog, L"Edit")[3], VK_ESCAPE); }),
            std::nullopt);
  EXPECT_EQ(AskedWhile([](HWND dialog) { PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); }), std::nullopt);
}

TEST(OptionsDialog, EnterAcceptsFromAnyEntry) {
  for (const std::size_t at : {0U, 3U, 5U})
    EXPECT_TRUE(AskedWhile([=](HWND dialog) {
                  WindowDriver::Press(ChildrenOf(dialog, L"Edit")[at], VK_RETURN);
                }).has_value());
}

TEST(OptionsDialog, BeginsAtTheFirstEntryWithItsTextSelectedAndTabGoesThroughAllInOrder) {
  std::vector<HWND> expected;
  std::vector<HWND> visited;
  DWORD selection = 0;
  (void)AskedWhile([&](HWND dialog) {
    expected = ChildrenOf(dialog, L"Edit");
    expected.push_back(GetDlgItem(dialog, IDOK));
    expected.push_back(GetDlgItem(dialog, IDCANCEL));
    expected.push_back(expected.front());
    selection = static_cast<DWORD>(SendMessageW(expected.front(), EM_GETSEL, 0, 0));
    for (std::size_t i = 0; i < expected.size(); ++i) {
      visited.push_back(FocusOf(dialog));
      if (i + 1 < expected.size()) PressAndMoveOn(dialog, VK_TAB);
    }
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(visited, expected);
  EXPECT_EQ(LOWORD(selection), 0);
  EXPECT_EQ(HIWORD(selection), 2);
}

TEST(OptionsDialog, TabSelectsTheTextOfTheEntryItComesTo) {
  EXPECT_EQ(AskedWhile([](HWND dialog) {
              PressAndMoveOn(dialog, VK_TAB);
              SendMessageW(FocusOf(dialog), WM_CHAR, u'7', 1);
              WindowDriver::Press(FocusOf(dialog), VK_RETURN);
            }),
            Answers(Texts{u"02", u"7", u"0", u"0", u"21", u"29,50"}));
}

TEST(OptionsDialog, WithoutEntriesIsAcceptedOrCancelled) {
  EXPECT_EQ(AskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDOK); }, {}), Answers(Texts{}));
  EXPECT_EQ(AskedWhile([](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); }, {}), std::nullopt);
}

TEST(OptionsDialog, LeavesNoGdiObjectsBehind) {
  const auto cancel = [](HWND dialog) { WindowDriver::Click(dialog, IDCANCEL); };
  (void)AskedWhile(cancel);
  const long before = GdiObjectCount();
  for (int i = 0; i < 10; ++i) (void)AskedWhile(cancel);
  EXPECT_EQ(GdiObjectCount(), before);
}

}  // namespace
}  // namespace qm::platform::win32
