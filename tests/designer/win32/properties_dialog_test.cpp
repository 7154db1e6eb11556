// The properties dialog, used by somebody at the screen.

#include "designer/win32/properties_dialog.h"

#include <gmock/gmock.h>

#include <functional>

#include "tests/designer/designing_world.h"
#include "tests/platform/win32/dialog_user.h"
#include "tests/platform/win32/gdi_objects.h"

namespace qm::designer::win32 {
namespace {

using namespace platform::win32;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr char16_t kTitle[] = u"Propiedades Avanzadas";
constexpr char16_t kPrinter[] = u"Impresora A4";

HWND At(HWND dialog, int id) { return GetDlgItem(dialog, id); }
constexpr int kFonts = 101;
constexpr int kStyles = 102;
constexpr int kSize = 103;
constexpr int kSizes = 104;
constexpr int kUnderline = 105;
constexpr int kAlignment = 106;
constexpr int kFormat = 107;
constexpr int kColorButton = 108;
constexpr int kForAll = 110;
constexpr int kSample = 111;
constexpr int kFontName = 112;
constexpr int kLeft = 120;

struct PropertiesAtTheScreen : testing::Test, DesigningWorld {
  PropertiesAtTheScreen() {
    printers.fonts[kPrinter] = {u"Sistema", u"Arial", u"Courier New", u"Roman12"};
    Field data;
    data.caption = u"NOMBRE";
    data.box = {100, 200, 3000, 240};
    Field fixed = data;
    fixed.caption = u"#Señores:";
    fixed.font = {u"Courier New", 13, true, true, true, false, 0x0000FF};
    fixed.alignment = 2;
    fixed.tag = u"3";
    document.Adjust([&](Layout& layout) {
      layout.men.push_back(std::make_shared<const Field>(data));
      layout.men.push_back(std::make_shared<const Field>(fixed));
    });
  }

  Document document;

  void ShowWhile(int index, const std::function<void(HWND)>& action) {
    FieldProperties properties(document, index, printers, kPrinter, dialogs, runtime::Locale::Spanish());
    WindowDriver user(kTitle, action);
    ShowPropertiesDialog(properties);
    EXPECT_TRUE(user.Acted());
  }
  [[nodiscard]] const Field& Now(int index) const { return *document.Current().At(index); }
};

std::vector<std::u16string> TextsOf(HWND dialog, const wchar_t* className) {
  std::vector<std::u16string> texts;
  for (const HWND child : ChildrenOf(dialog, className))
    if (IsWindowVisible(child)) texts.push_back(WindowDriver::TextOf(child));
  return texts;
}

TEST_F(PropertiesAtTheScreen, ShowEveryCaptionAndListOfAFixedText) {
  std::vector<std::u16string> labels;
  std::vector<std::u16string> buttons;
  std::vector<std::u16string> entries;
  std::vector<std::u16string> fonts;
  std::vector<std::u16string> styles;
  LRESULT formats = 0;
  std::vector<LRESULT> selections;
  ShowWhile(2, [&](HWND dialog) {
    labels = TextsOf(dialog, L"Static");
    buttons = TextsOf(dialog, L"Button");
    entries = TextsOf(dialog, L"Edit");
    fonts = ItemsOf(At(dialog, kFonts));
    styles = ItemsOf(At(dialog, kStyles));
    formats = SendMessageW(At(dialog, kFormat), CB_GETCOUNT, 0, 0);
    selections = {SendMessageW(At(dialog, kFonts), LB_GETCURSEL, 0, 0),
                  SendMessageW(At(dialog, kStyles), LB_GETCURSEL, 0, 0),
                  SendMessageW(At(dialog, kSizes), LB_GETCURSEL, 0, 0),
                  SendMessageW(At(dialog, kAlignment), CB_GETCURSEL, 0, 0),
                  SendMessageW(At(dialog, kFormat), CB_GETCURSEL, 0, 0),
                  SendMessageW(At(dialog, kUnderline), BM_GETCHECK, 0, 0)};
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_THAT(
      labels,
      ElementsAre(u"Posición Izquierda", u"Posición superior", u"Anchura", u"Altura", u"Justificación:",
                  u"Formato:", u"Fuente", u"Courier New", u"Estilo", u"Tamaño", u"Color....................",
                  u"",
                  u"Nota: Para impresoras matriciales se sugiere que se utilizan las fuentes internas de la "
                  u"impresora (las que terminan con un numero). Por ejemplo: Roman12"));
  EXPECT_THAT(buttons,
              ElementsAre(u"Ubicación", u"Subrayado", u"Elegir...", u"Ejemplo",
                          u"A&plicar tipo de fuentes a todos los campos", u"&Aceptar", u"&Cancelar"));
  EXPECT_THAT(entries, ElementsAre(u"100", u"200", u"3000", u"240", u"13", u"Señores:"));
  EXPECT_THAT(fonts, ElementsAre(u"Arial", u"Courier New", u"Roman12"));
  EXPECT_THAT(styles, ElementsAre(u"Normal", u"Cursiva", u"Negrita", u"Negrita Cursiva"));
  EXPECT_EQ(formats, 8);
  EXPECT_THAT(selections, ElementsAre(1, 3, -1, 2, 3, BST_CHECKED));
}

TEST_F(PropertiesAtTheScreen, HaveNamesThatAScreenReaderTells) {
  std::map<int, std::u16string> names;
  ShowWhile(2, [&](HWND dialog) {
    names = NamesIn(dialog);
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_THAT(names,
              UnorderedElementsAre(Pair(kLeft, u"Posición Izquierda"), Pair(kLeft + 1, u"Posición superior"),
                                   Pair(kLeft + 2, u"Anchura"), Pair(kLeft + 3, u"Altura"),
                                   Pair(kAlignment, u"Justificación:"), Pair(kFormat, u"Formato:"),
                                   Pair(kFonts, u"Fuente"), Pair(kStyles, u"Estilo"), Pair(kSize, u"Tamaño"),
                                   Pair(kSizes, u"Tamaño"), Pair(kUnderline, u"Subrayado"),
                                   Pair(kColorButton, u"Elegir..."), Pair(kSample, u"Ejemplo"),
                                   Pair(kForAll, u"A&plicar tipo de fuentes a todos los campos"),
                                   Pair(IDOK, u"&Aceptar"), Pair(IDCANCEL, u"&Cancelar")));
}

TEST_F(PropertiesAtTheScreen, StandInsideTheDialogWithNothingCut) {
  for (const int index : {1, 2}) {
    std::string faults = "not looked at";
    ShowWhile(index, [&](HWND dialog) {
      faults = FaultsOf(dialog);
      WindowDriver::Click(dialog, IDCANCEL);
    });
    EXPECT_EQ(faults, "");
  }
}

TEST_F(PropertiesAtTheScreen, StandInsideTheDialogMadeLargerAndNoSmallerThanTheyNeed) {
  std::string faults = "not looked at";
  LONG listBefore = 0;
  LONG listAfter = 0;
  LONG grown = 0;  // what the screen has room for
  std::string faultsOfSmall = "not looked at";
  ShowWhile(1, [&](HWND dialog) {
    RECT window{};
    GetWindowRect(dialog, &window);
    RECT list{};
    GetWindowRect(At(dialog, kFonts), &list);
    listBefore = list.bottom - list.top;
    SetWindowPos(dialog, nullptr, 0, 0, static_cast<int>(window.right - window.left) + 160,
                 static_cast<int>(window.bottom - window.top) + 120, SWP_NOZORDER);
    RECT larger{};
    GetWindowRect(dialog, &larger);
    grown = (larger.bottom - larger.top) - (window.bottom - window.top);
    faults = FaultsOf(dialog);
    GetWindowRect(At(dialog, kFonts), &list);
    listAfter = list.bottom - list.top;
    SetWindowPos(dialog, nullptr, 0, 0, 50, 50, SWP_NOZORDER);
    faultsOfSmall = FaultsOf(dialog);
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(faults, "");
  EXPECT_EQ(faultsOfSmall, "");
  EXPECT_GT(grown, 20);
  EXPECT_EQ(listAfter, listBefore + grown);
}

TEST_F(PropertiesAtTheScreen, AreAppliedOnAcceptance) {
  ShowWhile(1, [](HWND dialog) {
    Select(At(dialog, kFonts), 2);
    Select(At(dialog, kStyles), 1);
    Type(At(dialog, kSize), u"8,5");
    SendMessageW(At(dialog, kUnderline), BM_CLICK, 0, 0);
    Choose(At(dialog, kAlignment), 1);
    Choose(At(dialog, kFormat), 7);
    for (int box = 0; box < 4; ++box)
      Type(At(dialog, kLeft + box), std::u16string(1, static_cast<char16_t>(u'5' + box)));
    WindowDriver::Click(dialog, IDOK);
  });
  Field expected;
  expected.caption = u"NOMBRE";
  expected.box = {5, 6, 7, 8};
  expected.font = {u"Roman12", 8.5F, false, true, true, false, 0};
  expected.alignment = 1;
  expected.tag = u"7";
  EXPECT_EQ(Now(1), expected);
}

TEST_F(PropertiesAtTheScreen, OfAFixedTextTakeTheTextTyped) {
  ShowWhile(2, [](HWND dialog) {
    Type(At(dialog, kSample), u"Estimado señor:");
    Select(At(dialog, kFonts), 0);
    WindowDriver::Click(dialog, IDOK);
  });
  EXPECT_EQ(Now(2).caption, u"#Estimado señor:");
  EXPECT_EQ(Now(2).font.name, u"Arial");
}

TEST_F(PropertiesAtTheScreen, OfADataFieldShowASampleThatTakesNoKeys) {
  std::u16string text;
  bool takesKeys = true;
  ShowWhile(1, [&](HWND dialog) {
    text = WindowDriver::TextOf(At(dialog, kSample));
    takesKeys = (GetWindowLongPtrW(At(dialog, kSample), GWL_STYLE) & WS_TABSTOP) != 0;
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(text, u"Hello");
  EXPECT_FALSE(takesKeys);
}

TEST_F(PropertiesAtTheScreen, ASizeOfTheListIsWrittenIntoTheBox) {
  std::u16string size;
  std::u16string name;
  LRESULT selected = 0;
  ShowWhile(1, [&](HWND dialog) {
    Select(At(dialog, kSizes), 5);
    size = WindowDriver::TextOf(At(dialog, kSize));
    Select(At(dialog, kFonts), 1);
    name = WindowDriver::TextOf(At(dialog, kFontName));
    Type(At(dialog, kSize), u"9");
    selected = SendMessageW(At(dialog, kSizes), LB_GETCURSEL, 0, 0);
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(size, u"14");
  EXPECT_EQ(name, u"Courier New");
  EXPECT_EQ(selected, 1);
}

TEST_F(PropertiesAtTheScreen, TheColourComesFromItsDialog) {
  dialogs.colors = {0x00FF8000};
  ShowWhile(2, [&](HWND dialog) {
    SendMessageW(At(dialog, kColorButton), BM_CLICK, 0, 0);
    WindowDriver::Click(dialog, IDOK);
  });
  EXPECT_THAT(dialogs.askedColors, ElementsAre(0x0000FF));
  EXPECT_EQ(Now(2).font.foreColor, 0x00FF8000);
}

TEST_F(PropertiesAtTheScreen, ForAllSpreadTheFontAndMoveNothing) {
  ShowWhile(2, [](HWND dialog) {
    SendMessageW(At(dialog, kForAll), BM_CLICK, 0, 0);
    Type(At(dialog, kLeft), u"9999");
    Type(At(dialog, kSize), u"20");
    WindowDriver::Click(dialog, IDOK);
  });
  EXPECT_EQ(Now(1).font, (FieldFont{u"Courier New", 20, true, true, true, false, 0x0000FF}));
  EXPECT_EQ(Now(1).caption, u"NOMBRE");
  EXPECT_EQ(Now(2).box.left, 100);
}

TEST_F(PropertiesAtTheScreen, ChangeNothingWhenCancelled) {
  const Layout before = document.Current();
  const auto change = [](HWND dialog) {
    Select(At(dialog, kFonts), 2);
    Type(At(dialog, kLeft), u"9999");
  };
  ShowWhile(1, [&](HWND dialog) {
    change(dialog);
    WindowDriver::Click(dialog, IDCANCEL);
  });
  ShowWhile(1, [&](HWND dialog) {
    change(dialog);
    WindowDriver::Press(At(dialog, kLeft), VK_ESCAPE);
  });
  ShowWhile(1, [&](HWND dialog) {
    change(dialog);
    PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
  });
  ShowWhile(1, [&](HWND dialog) {
    change(dialog);
    PostMessageW(dialog, WM_QUERYENDSESSION, 0, 0);
  });
  EXPECT_EQ(document.Current(), before);
}

TEST_F(PropertiesAtTheScreen, EnterAcceptsAlsoFromALists) {
  ShowWhile(1, [](HWND dialog) {
    Type(At(dialog, kLeft), u"77");
    WindowDriver::Press(At(dialog, kStyles), VK_RETURN);
  });
  EXPECT_EQ(Now(1).box.left, 77);
}

TEST_F(PropertiesAtTheScreen, TheTabKeyGoesThroughEveryControlInOrder) {
  std::vector<int> visited;
  ShowWhile(2, [&](HWND dialog) {
    for (int i = 0; i < 17; ++i) {
      visited.push_back(GetDlgCtrlID(FocusOf(dialog)));
      PressAndMoveOn(dialog, VK_TAB);
    }
    WindowDriver::Click(dialog, IDCANCEL);
  });
  EXPECT_THAT(visited, ElementsAre(120, 121, 122, 123, kAlignment, kFormat, kFonts, kStyles, kSize, kSizes,
                                   kUnderline, kColorButton, kSample, kForAll, IDOK, IDCANCEL, 120));
}

TEST_F(PropertiesAtTheScreen, LeaveNoGdiObjectsBehind) {
  const auto use = [](HWND dialog) {
    for (int i = 0; i < 16; ++i) Select(At(dialog, kSizes), i);
    WindowDriver::Click(dialog, IDCANCEL);
  };
  ShowWhile(2, use);
  const long before = GdiObjectCount();
  for (int i = 0; i < 10; ++i) ShowWhile(1 + i % 2, use);
  EXPECT_EQ(GdiObjectCount(), before);
}

}  // namespace
}  // namespace qm::designer::win32
