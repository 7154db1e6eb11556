// The designer for somebody who hears the screen and has no mouse.

#include <gmock/gmock.h>

#include "tests/designer/win32/clerk.h"
#include "tests/platform/win32/dialog_user.h"

namespace qm::designer::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::SizeIs;

TEST(NamesOfControls, TellWhatEveryControlThatTakesTheKeyboardIsFor) {
  WindowWorld world;
  std::map<int, std::u16string> names;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) { names = platform::win32::NamesIn(clerk.Form()); }));
  EXPECT_THAT(names, ::testing::UnorderedElementsAre(
                         Pair(kGrabar, u"Grabar"), Pair(kImprimirPrueba, u"Imprimir prueba"),
                         Pair(kTamañoPapel, u"Tamaño de Papel"), Pair(kModelos, u"Modelo"),
                         Pair(kImpresoras, u"Impresora"), Pair(kAncho, u"Ancho"), Pair(kAlto, u"Alto"),
                         Pair(kElegirPapel, u"Tipo de papel"), Pair(kListCopias, u"Copias"),
                         Pair(kEsEtiqueta, u"Es Etiqueta"), Pair(kBasePin, u"Página del modelo")));
}

// The columns of a button, within its frame, in which something dark is painted: an x each, else a point.
std::string InkOf(HWND button) {
  RECT area{};
  GetClientRect(button, &area);
  Bitmap32 painted(WidthOf(area), HeightOf(area));
  const platform::win32::OwnedDc dc(CreateCompatibleDC(nullptr));
  const platform::win32::SelectedObject selected(dc.Get(), painted.Handle());
  SendMessageW(button, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.Get()), PRF_CLIENT | PRF_ERASEBKGND);
  GdiFlush();
  constexpr int kFrame = 4;
  std::string columns;
  for (int x = kFrame; x < painted.Width() - kFrame; ++x) {
    bool dark = false;
    for (int y = kFrame; y < painted.Height() - kFrame; ++y)
      dark = dark || (painted.Row(y)[x] >> 8 & 0xFF) < 100;
    columns += dark ? 'x' : '.';
  }
  return columns;
}

TEST(NamesOfControls, ThePaperButtonShowsThreeDotsAndNotItsName) {
  WindowWorld world;
  std::string ink;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) { ink = InkOf(clerk.Control(kElegirPapel)); }));
  EXPECT_THAT(ink, ::testing::MatchesRegex("\\.+x+\\.+x+\\.+x+\\.+"));
}

// ---- Menus by the keyboard

struct OneField : WindowWorld {
  OneField() { Keep(ModelFile(Campo("NOMBRE", 1500, 1500, 1500, 300))); }
};

TEST(MenusByTheKeyboard, TheMenuKeyOpensEditarForASelectedFieldAndElseInsertar) {
  OneField world;
  std::vector<int> first;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    PostMessageW(clerk.Page(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(clerk.Page()), -1);
    first.push_back(clerk.FirstOfTheMenu());
    clerk.Key(VK_TAB);
    PostMessageW(clerk.Page(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(clerk.Page()), -1);
    first.push_back(clerk.FirstOfTheMenu());
  }));
  EXPECT_THAT(first, ElementsAre(-1, static_cast<int>(kEliminar)));
  EXPECT_THAT(world.dialogs.askedConfirmations, SizeIs(0)) << "a menu alone is no change";
}

TEST(MenusByTheKeyboard, ShiftF10OpensEditarForTheSelectedField) {
  OneField world;
  int first = 0;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Key(VK_TAB);
    const HeldKey shift(clerk, VK_SHIFT, VK_LSHIFT);
    PostMessageW(clerk.Page(), WM_SYSKEYDOWN, VK_F10, 1);
    first = clerk.FirstOfTheMenu();
  }));
  EXPECT_EQ(first, kEliminar);
}

TEST(MenusByTheKeyboard, TheMenuMessageOfTheMouseOpensNoSecondMenu) {
  OneField world;
  bool opened = true;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(1800, 1650);
    SendMessageW(clerk.Page(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(clerk.Page()), MAKELPARAM(300, 300));
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(clerk.HostThread(), &info);
    opened = (info.flags & GUI_INMENUMODE) != 0;
  }));
  EXPECT_FALSE(opened);
}

}  // namespace
}  // namespace qm::designer::win32
