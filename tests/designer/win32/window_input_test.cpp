#include <gmock/gmock.h>

#include "tests/designer/win32/clerk.h"

#include <commctrl.h>

namespace qm::designer::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

std::string PlaceOf(int left, int top) {
  return "<Top>" + std::to_string(top) + "</Top><Left>" + std::to_string(left) + "</Left>";
}
std::string SizeOf(int width, int height) {
  return "<Width>" + std::to_string(width) + "</Width><Height>" + std::to_string(height) + "</Height>";
}

struct OneField : WindowWorld {
  OneField() { Keep(ModelFile(Campo("NOMBRE", 1500, 1500, 1500, 300))); }
};

// ---- Mouse

TEST(MouseOnTheCanvas, DragsAFieldAndShowsWhereItIs) {
  OneField world;
  std::u16string readout;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Drag(1800, 1650, 2250, 2700);
    readout = clerk.TextOf(kLabPos);
    clerk.Click(kGrabar);
  }));
  EXPECT_EQ(readout, u"Posicion Ancho:3,44; Posición Alto:4,50");
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1950, 2550)));
}

TEST(MouseOnTheCanvas, SizesAFieldByTheHandleOfItsRightEdge) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    clerk.Drag(3045, 1650, 3645, 1950);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1500, 1500) + SizeOf(2100, 300)));
}

struct Tip {
  std::wstring text;
  RECT area{};
};

// Of the page, as the system's control for tool tips holds it.
Tip TipOf(const Clerk& clerk) {
  Tip tip;
  for (HWND tips = nullptr; (tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
    wchar_t text[80] = L"";
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = clerk.Page();
    tool.uId = 1;
    tool.lpszText = text;
    if (GetWindowThreadProcessId(tips, nullptr) != clerk.HostThread() ||
        !SendMessageW(tips, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)))
      continue;
    SendMessageW(tips, TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    tip = {text, tool.rect};
  }
  return tip;
}

TEST(MouseOnTheCanvas, OverAFieldHasItsCaptionAsToolTip) {
  OneField world;
  Tip over, beside, dragged;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SendMessageW(clerk.Page(), WM_MOUSEMOVE, 0, Clerk::At(1800, 1650));
    over = TipOf(clerk);
    clerk.Press(1800, 1650);
    clerk.Move(2250, 2700);
    dragged = TipOf(clerk);
    clerk.Release(2250, 2700);
    SendMessageW(clerk.Page(), WM_MOUSEMOVE, 0, Clerk::At(300, 300));
    beside = TipOf(clerk);
  }));
  EXPECT_EQ(over.text, L"NOMBRE");
  EXPECT_EQ(over.area.left, PageView::kMargin + 100);
  EXPECT_EQ(over.area.bottom, PageView::kMargin + 120);
  EXPECT_EQ(dragged.text, L"");
  EXPECT_EQ(beside.text, L"");
}

TEST(MouseOnTheCanvas, APressAloneCountsAsAChange) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) { clerk.ClickAt(1800, 1650); }));
  EXPECT_THAT(world.dialogs.askedConfirmations,
              ElementsAre(u"Se ha modificado el modelo... ¿desea grabar las modificaciones?"));
}

TEST(MouseOnTheCanvas, TheRightButtonOpensEditarOnAFieldAndInsertarBesideIt) {
  OneField world;
  std::vector<int> firstItems;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    for (const LPARAM at : {Clerk::At(1800, 1650), Clerk::At(6000, 3000)}) {
      PostMessageW(clerk.Page(), WM_RBUTTONDOWN, MK_RBUTTON, at);
      firstItems.push_back(clerk.FirstOfTheMenu());
    }
  }));
  EXPECT_THAT(firstItems, ElementsAre(static_cast<int>(kEliminar), -1));
  EXPECT_THAT(world.dialogs.askedConfirmations, SizeIs(1));
}

TEST(MouseOnTheCanvas, ADoubleClickOpensThePropertiesOfTheField) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    PostMessageW(clerk.Page(), WM_LBUTTONDBLCLK, MK_LBUTTON, Clerk::At(1800, 1650));
    const HWND dialog = clerk.WaitFor(kDialogClass, L"Propiedades Avanzadas");
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(IsWindowEnabled(clerk.Form()));
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    EXPECT_TRUE(IsWindowEnabled(clerk.Form()));
  }));
}

TEST(MouseOnTheCanvas, ADoubleClickOnAHandleUponAnotherFieldDragsTheHandle) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("UNO", 1500, 1500, 1500, 300) + Campo("DOS", 3000, 1500, 1500, 300)));
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    SendMessageW(clerk.Page(), WM_LBUTTONDBLCLK, MK_LBUTTON, Clerk::At(3045, 1650));
    clerk.Move(3645, 1650);
    clerk.Release(3645, 1650);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1500, 1500) + SizeOf(2100, 300)));
}

TEST(MouseOnTheCanvas, ADoubleClickOnTheLogoAsksForItsSize) {
  WindowWorld world;
  world.Keep(ModelFile("", " ImagenLogo=\"logo.bmp|1500|1500|1134|567\""));
  world.dialogs.properties = {std::vector<std::u16string>{u"3", u"1", u"0", u""}};
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    SendMessageW(clerk.Page(), WM_LBUTTONDBLCLK, MK_LBUTTON, Clerk::At(1800, 1650));
    clerk.Click(kGrabar);
  }));
  ASSERT_THAT(world.dialogs.askedProperties, SizeIs(1));
  EXPECT_EQ(world.dialogs.askedProperties[0].title, u"Cambiar Tamaño");
  EXPECT_THAT(world.Kept(), HasSubstr("ImagenLogo=\"logo.bmp|1500|1500|1701|567\""));
}

TEST(MouseOnTheCanvas, LosingTheMouseLeavesTheFieldWhereItIs) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Press(1800, 1650);
    clerk.Move(2400, 1650);
    SendMessageW(clerk.Page(), WM_CAPTURECHANGED, 0, 0);
    clerk.Move(5000, 3000);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(2100, 1500)));
}

TEST(MouseOnTheCanvas, EscapeCancelsADrag) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Press(1800, 1650);
    clerk.Move(2400, 2400);
    clerk.Key(VK_ESCAPE);
    clerk.Release(2400, 2400);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1500, 1500)));
}

TEST(MouseOnTheCanvas, TheWheelScrollsAndWithCtrlZooms) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SetWindowPos(clerk.Form(), nullptr, 0, 0, 650, 500, SWP_NOZORDER | SWP_NOMOVE);
    const auto wheel = [&](int notches, WPARAM keys) {
      SendMessageW(clerk.Page(), WM_MOUSEWHEEL,
                   keys | static_cast<WPARAM>(static_cast<WORD>(notches * WHEEL_DELTA)) << 16, 0);
    };
    wheel(-1, 0);
    EXPECT_EQ(clerk.Bar(kBarVer).nPos, 720);
    wheel(-1, MK_SHIFT);
    EXPECT_EQ(clerk.Bar(kBarHor).nPos, 720);
    wheel(1, 0);
    wheel(1, MK_SHIFT);
    const UINT visible = clerk.Bar(kBarHor).nPage;
    wheel(3, MK_CONTROL);  // a notch is a step, however fast it turns
    EXPECT_LT(clerk.Bar(kBarHor).nPage, visible);
    wheel(-3, MK_CONTROL);
    EXPECT_EQ(clerk.Bar(kBarHor).nPage, visible);
  }));
}

TEST(MouseOnTheCanvas, ADragWhileScrolledAndZoomedStoresTwipsOfThePage) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SendMessageW(clerk.Form(), WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(clerk.Control(kBarVer)));
    clerk.Drag(1800, 1650 - 255, 2400, 2250 - 255);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(2100, 2100)));
}

// ---- Keyboard

TEST(KeysOnTheCanvas, ArrowsMoveTheSelectedFieldByAPixelOfTheScreen) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    clerk.Key(VK_RIGHT);
    clerk.Key(VK_RIGHT);
    clerk.Key(VK_DOWN);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1530, 1515)));
}

TEST(KeysOnTheCanvas, TabWalksTheFieldsAndDelDeletes) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("UNO", 0, 0, 1000, 300) + Campo("DOS", 0, 900, 1000, 300)));
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Key(VK_TAB);
    clerk.Key(VK_TAB);
    clerk.Key(VK_DELETE);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr("UNO"));
  EXPECT_THAT(world.Kept(), Not(HasSubstr("DOS")));
}

TEST(KeysOnTheCanvas, EnterOpensTheProperties) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Key(VK_TAB);
    PostMessageW(clerk.Page(), WM_KEYDOWN, VK_RETURN, 1);
    const HWND dialog = clerk.WaitFor(kDialogClass, L"Propiedades Avanzadas");
    ASSERT_NE(dialog, nullptr);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
  }));
}

TEST(KeysOnTheCanvas, CtrlWithLettersSavesUndoesRedoesCopiesAndPastes) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    clerk.Key(VK_RIGHT);
    const HeldKey control(clerk, VK_CONTROL, VK_LCONTROL);
    clerk.Key('Z');
    clerk.Key('Y');
    clerk.Key('C');
    clerk.Key('V');
    clerk.Key('S');
  }));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1515, 1500)));
  EXPECT_THAT(world.Kept(), HasSubstr(PlaceOf(1530, 1515))) << "the copy lies beside it";
  EXPECT_THAT(world.dialogs.askedConfirmations, SizeIs(0));
}

TEST(KeysInTheForm, F6GoesBetweenThePageAndTheSettings) {
  OneField world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    const auto focus = [&] {
      GUITHREADINFO info{};
      info.cbSize = sizeof info;
      GetGUIThreadInfo(clerk.HostThread(), &info);
      return info.hwndFocus;
    };
    EXPECT_TRUE(WaitUntil([&] { return focus() == clerk.Page(); }));
    PostMessageW(clerk.Page(), WM_KEYDOWN, VK_F6, 1);
    EXPECT_TRUE(WaitUntil([&] { return focus() == clerk.Control(kAncho); }));
    PostMessageW(clerk.Control(kAncho), WM_KEYDOWN, VK_TAB, 1);
    EXPECT_TRUE(WaitUntil([&] { return focus() == clerk.Control(kAlto); }));
    PostMessageW(clerk.Control(kAlto), WM_KEYDOWN, VK_F6, 1);
    EXPECT_TRUE(WaitUntil([&] { return focus() == clerk.Page(); }));
  }));
}

TEST(KeysInTheForm, TheTabKeyVisitsEveryControlInItsOrder) {
  WindowWorld world;  // without fields the Tab key leaves the page as well
  std::vector<int> visited;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    HWND control = clerk.Page();
    do {
      control = GetNextDlgTabItem(clerk.Form(), control, FALSE);
      visited.push_back(GetDlgCtrlID(control));
    } while (control != clerk.Page() && visited.size() < 20);
  }));
  EXPECT_THAT(visited, ElementsAre(kGrabar, kImprimirPrueba, kTamañoPapel, kModelos, kImpresoras, kAncho,
                                   kAlto, kElegirPapel, kListCopias, kEsEtiqueta, kBasePin));
}

TEST(KeysInTheForm, EscapeAndEnterInABoxCloseNothing) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    for (const WPARAM key : {WPARAM{VK_ESCAPE}, WPARAM{VK_RETURN}}) {
      PostMessageW(clerk.Control(kAncho), WM_KEYDOWN, key, 1);
      PostMessageW(clerk.Control(kAncho), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }
    SendMessageW(clerk.Form(), WM_NULL, 0, 0);
    EXPECT_TRUE(IsWindow(clerk.Form()));
  }));
}

}  // namespace
}  // namespace qm::designer::win32
