#include <gmock/gmock.h>

#include "designer/win32/metrics.h"
#include "tests/designer/win32/clerk.h"

namespace qm::designer::win32 {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::u16string CaptionOf(HMENU menu, int position) {
  std::u16string caption(200, u'\0');
  const int length = GetMenuStringW(menu, static_cast<UINT>(position), platform::win32::WideBuffer(caption),
                                    200, MF_BYPOSITION);
  caption.resize(static_cast<std::size_t>(length));
  return caption;
}

std::vector<std::u16string> CaptionsOf(HMENU menu) {
  std::vector<std::u16string> captions;
  for (int i = 0; i < GetMenuItemCount(menu); ++i) captions.push_back(CaptionOf(menu, i));
  return captions;
}

RECT PlaceOf(HWND window, HWND parent) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

TEST(DesignerWindow, OpensWithItsCaptionAndClosesWithTheCloseBox) {
  WindowWorld world;
  std::u16string caption;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    caption = WindowDriver::TextOf(clerk.Form());
    PostMessageW(clerk.Form(), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(clerk.Form()); }));
  }));
  EXPECT_EQ(caption, u"Modelos de Impresión");
}

TEST(DesignerWindow, ShowsEveryControlWithItsText) {
  WindowWorld world;
  std::vector<std::u16string> texts;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    for (const int id : {kGrabar, kImprimirPrueba, kTamañoPapel}) texts.push_back(clerk.TextOf(id));
    for (const int id : {static_cast<int>(kFrame1), static_cast<int>(kEsEtiqueta), static_cast<int>(kLabPos)})
      texts.push_back(clerk.TextOf(id));
    for (HWND label = nullptr; (label = FindWindowExW(clerk.Form(), label, L"Static", nullptr)) != nullptr;)
      if (GetDlgCtrlID(label) == 0) texts.push_back(WindowDriver::TextOf(label));
  }));
  EXPECT_THAT(texts, ElementsAre(u"Grabar", u"Imprimir prueba", u"Tamaño de Papel", u"Características",
                                 u"Es Etiqueta", u"Posición: ", u"Modelo", u"Impresora", u"Ancho", u"Alto",
                                 u"Tipo de papel", u"Copias"));
}

TEST(DesignerWindow, CutsNoTextOfItsControls) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    const Metrics metrics(clerk.Form());
    for (HWND child = nullptr; (child = FindWindowExW(clerk.Form(), child, nullptr, nullptr)) != nullptr;) {
      RECT area{};
      GetClientRect(child, &area);
      const std::u16string text = WindowDriver::TextOf(child);
      const int id = GetDlgCtrlID(child);
      if (id == kBasePin || (id >= kGrabar && id <= kTamañoPapel)) continue;  // which show no text
      EXPECT_GE(area.right, metrics.TextWidth(Wide(text))) << "control " << id;
      if (!text.empty()) {
        EXPECT_GE(area.bottom, metrics.TextHeight()) << "control " << id;
      }
    }
  }));
}

TEST(DesignerWindow, OffersTheCopies01To10AndTheModels1To9) {
  WindowWorld world;
  LRESULT copies = 0;
  LRESULT models = 0;
  std::u16string first;
  std::u16string tenth;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    copies = SendMessageW(clerk.Control(kListCopias), CB_GETCOUNT, 0, 0);
    models = SendMessageW(clerk.Control(kModelos), CB_GETCOUNT, 0, 0);
    first = clerk.TextOf(kListCopias);
    clerk.Pick(kListCopias, 9);
    tenth = clerk.TextOf(kListCopias);
  }));
  EXPECT_EQ(copies, 10);
  EXPECT_EQ(models, 9);
  EXPECT_EQ(first, u"01");
  EXPECT_EQ(tenth, u"10");
}

TEST(DesignerWindow, ShowsTheModelThatTheHostNamed) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("NOMBRE", 0, 0, 1000, 300), "", 4));
  std::u16string model;
  std::u16string ancho;
  std::u16string alto;
  EXPECT_TRUE(Visit(
      world,
      [&](Clerk& clerk) {
        model = clerk.TextOf(kModelos);
        ancho = clerk.TextOf(kAncho);
        alto = clerk.TextOf(kAlto);
      },
      4));
  EXPECT_EQ(model, u"4");
  EXPECT_EQ(ancho, u"20");
  EXPECT_EQ(alto, u"10");
}

// ---- Menus

TEST(DesignerMenus, StandAsTheyAreNamed) {
  WindowWorld world;
  std::vector<std::u16string> bar, archivo, editar, copiar, insertar, imagen;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    const HMENU menu = GetMenu(clerk.Form());
    bar = CaptionsOf(menu);
    archivo = CaptionsOf(GetSubMenu(menu, 0));
    editar = CaptionsOf(GetSubMenu(menu, 1));
    copiar = CaptionsOf(GetSubMenu(GetSubMenu(menu, 1), 3));
    insertar = CaptionsOf(GetSubMenu(menu, 2));
    imagen = CaptionsOf(GetSubMenu(GetSubMenu(menu, 2), 0));
  }));
  EXPECT_THAT(bar, ElementsAre(u"&Archivo", u"&Editar", u"Insertar"));
  EXPECT_THAT(archivo, ElementsAre(u"&Nuevo", u"&Guardar Como", u"&Salir"));
  EXPECT_THAT(editar, ElementsAre(u"Eliminar", u"&Propiedades", u"&Imagen", u"&Copiar Propiedades",
                                  u"&Pegar Propiedades"));
  EXPECT_THAT(copiar,
              ElementsAre(u"&Top", u"&Left", u"&Width", u"&Height", u"&Fuente", u"&Seleccionar Propiedades"));
  EXPECT_THAT(insertar, ElementsAre(u"&Imagen"));
  EXPECT_THAT(imagen, ElementsAre(u"Imagen de Fondo", u"Logotipo", u"", u"Eliminar Imagen de Fondo"));
}

TEST(DesignerMenus, OfferTheFieldsThatTheHostPouredIn) {
  WindowWorld world;
  world.menus[0] = {u"Campos disponibles", true, {u"NOMBRE", u"Debe & Haber"}};
  world.menus[1] = {u"", true, std::vector<std::u16string>(1)};  // of a table without a definition
  world.menus[2] = {u"Clientes", true, {u"NIF (CLIEN)"}};
  std::vector<std::u16string> bar, fields, table;
  int ofTheEmptyOne = -1;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    const HMENU menu = GetMenu(clerk.Form());
    bar = CaptionsOf(menu);
    fields = CaptionsOf(GetSubMenu(menu, 3));
    ofTheEmptyOne = GetMenuItemCount(GetSubMenu(menu, 4));
    table = CaptionsOf(GetSubMenu(menu, 5));
    clerk.Choose(static_cast<int>(GetMenuItemID(GetSubMenu(menu, 3), 1)));
    clerk.Choose(static_cast<int>(GetMenuItemID(GetSubMenu(menu, 5), 0)));
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(bar,
              ElementsAre(u"&Archivo", u"&Editar", u"Insertar", u"Campos disponibles", u"", u"Clientes"));
  EXPECT_THAT(fields, ElementsAre(u"NOMBRE", u"Debe && Haber"));
  EXPECT_EQ(ofTheEmptyOne, 0);
  EXPECT_THAT(table, ElementsAre(u"NIF (CLIEN)"));
  EXPECT_THAT(world.Kept(), HasSubstr("<Descripcion>Debe &amp; Haber</Descripcion>"));
  EXPECT_THAT(world.Kept(), HasSubstr("<Descripcion>NIF (CLIEN)</Descripcion>"));
}

TEST(DesignerMenus, ArchivoAsksForAModelAFileNameAndClosesTheWindow) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Choose(kNuevo);
    clerk.Choose(kGuardarComo);
    clerk.Choose(kSalir);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(clerk.Form()); }));
  }));
  ASSERT_EQ(world.dialogs.askedTexts.size(), 1U);
  EXPECT_EQ(world.dialogs.askedTexts[0].title, u"Utilzar como modelo");
  EXPECT_EQ(world.dialogs.askedFilesToSave.size(), 1U);
}

TEST(DesignerMenus, EditarDeletesCopiesAndPastesForTheSelectedField) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("UNO", 300, 300, 1500, 300) + Campo("DOS", 3000, 1500, 1500, 300) +
                       Campo("TRES", 3000, 3000, 1500, 300)));
  world.dialogs.checks = {std::vector<bool>{false, true, false, false, false}};
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.ClickAt(600, 450);
    clerk.Choose(kProp);  // the top
    clerk.ClickAt(3300, 1650);
    clerk.Choose(kPegar);
    clerk.ClickAt(600, 450);
    clerk.Choose(kProp + 5);
    clerk.ClickAt(3300, 3150);
    clerk.Choose(kPegar);
    clerk.ClickAt(600, 450);
    clerk.Choose(kEliminar);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), ::testing::Not(HasSubstr("UNO")));
  EXPECT_THAT(world.Kept(), HasSubstr("<Descripcion>DOS</Descripcion><Top>300</Top><Left>3000</Left>"));
  EXPECT_THAT(world.Kept(), HasSubstr("<Descripcion>TRES</Descripcion><Top>3000</Top><Left>300</Left>"));
}

TEST(DesignerMenus, InsertarAsksForPicturesAndEditarForOneToPaint) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Choose(kImagenes);
    clerk.Choose(kImagenes + 1);
    clerk.Choose(kImagenes + 3);
    clerk.Choose(kEditImagen);
  }));
  EXPECT_EQ(world.dialogs.askedFilesToOpen.size(), 3U);
}

// ---- Toolbar and page settings

TEST(DesignerToolbar, GrabarSavesAndThePrompIsNotNeededAnyMore) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Type(kAncho, u"12,5");
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr("Width=\"7087,5\""));
  EXPECT_THAT(world.dialogs.askedConfirmations, ElementsAre());
}

TEST(DesignerToolbar, ImprimirPruebaPrintsOnTheChosenPrinter) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("NOMBRE", 300, 300, 1500, 300)));
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Pick(kImpresoras, 1);
    clerk.Click(kImprimirPrueba);
  }));
  EXPECT_THAT(world.log, HasSubstr("Impresora Recibos"));
  EXPECT_THAT(world.log, HasSubstr("NOMBRE"));
}

TEST(DesignerToolbar, BothPaperButtonsAskForThePaper) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Click(kTamañoPapel);
    clerk.Click(kElegirPapel);
  }));
  ASSERT_EQ(world.dialogs.askedTexts.size(), 2U);
  EXPECT_EQ(world.dialogs.askedTexts[0].title, u"Elegir tamaño de papel");
  EXPECT_EQ(world.dialogs.askedTexts[1].title, u"Elegir tamaño de papel");
}

TEST(DesignerToolbar, TheModelListLoadsTheModelChosenAfterTheSavePrompt) {
  WindowWorld world;
  world.Keep(ModelFile(Campo("DOS", 0, 0, 1000, 300), "", 2));
  world.dialogs.confirmations = {false};
  std::u16string ancho;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Type(kAncho, u"12");
    clerk.Pick(kModelos, 1);
    ancho = clerk.TextOf(kAncho);
  }));
  EXPECT_EQ(ancho, u"20");
  EXPECT_EQ(world.dialogs.askedConfirmations.size(), 1U);
}

TEST(DesignerToolbar, GoingThroughAnOpenListChoosesNothingUntilItCloses) {
  WindowWorld world;
  world.Keep(ModelFile("", "", 3));
  std::u16string whileOpen;
  std::u16string closed;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SendMessageW(clerk.Control(kModelos), CB_SHOWDROPDOWN, TRUE, 0);
    clerk.Pick(kModelos, 2);
    whileOpen = clerk.TextOf(kAncho);
    SendMessageW(clerk.Control(kModelos), CB_SHOWDROPDOWN, FALSE, 0);
    closed = clerk.TextOf(kAncho);
  }));
  EXPECT_NE(whileOpen, u"20");
  EXPECT_EQ(closed, u"20");
}

TEST(PageSettings, FiftyCentimetresAreTooManyAndFortyNinePointNineAreNot) {
  WindowWorld world;
  int most = 0;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Type(kAncho, u"50");
    clerk.Type(kAncho, u"49,9");
    most = static_cast<int>(clerk.Bar(kBarHor).nMax - static_cast<int>(clerk.Bar(kBarHor).nPage) + 1);
    clerk.Click(kGrabar);
  }));
  ASSERT_EQ(world.dialogs.told.size(), 1U);
  EXPECT_EQ(world.dialogs.told[0].text, u"Tamaño exesivo");
  EXPECT_EQ(most, 28293);  // 49.9 * 567, in whole twips
}

TEST(PageSettings, CopiesAndTheLabelTickAreSaved) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    clerk.Pick(kListCopias, 2);
    clerk.Click(kEsEtiqueta);
    clerk.Click(kGrabar);
  }));
  EXPECT_THAT(world.Kept(), HasSubstr("Copias=\"03\""));
  EXPECT_THAT(world.Kept(), HasSubstr("EsEtiqueta=\"1\""));
}

// ---- Layout

TEST(AdjustingTheForm, FillsTheRestWithTheViewportBetweenItsScrollBars) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    for (const SIZE size : {SIZE{700, 500}, SIZE{1200, 900}, SIZE{900, 640}}) {
      SetWindowPos(clerk.Form(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOMOVE);
      RECT client{};
      GetClientRect(clerk.Form(), &client);
      const RECT view = PlaceOf(clerk.Page(), clerk.Form());
      const RECT vertical = PlaceOf(clerk.Control(kBarVer), clerk.Form());
      const RECT horizontal = PlaceOf(clerk.Control(kBarHor), clerk.Form());
      const RECT frame = PlaceOf(clerk.Control(kFrame1), clerk.Form());
      EXPECT_EQ(view.left, 0);
      EXPECT_GT(view.top, frame.bottom);
      EXPECT_EQ(view.right, vertical.left);
      EXPECT_EQ(vertical.right, client.right);
      EXPECT_EQ(view.bottom, horizontal.top);
      EXPECT_EQ(horizontal.bottom, client.bottom);
      EXPECT_EQ(vertical.top, view.top);
      EXPECT_EQ(vertical.bottom, view.bottom);
    }
  }));
}

TEST(AdjustingTheForm, NeverLetsTheViewportShrinkBelow500Twips) {
  WindowWorld world;
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SetWindowPos(clerk.Form(), nullptr, 0, 0, 10, 10, SWP_NOZORDER | SWP_NOMOVE);
    const RECT view = PlaceOf(clerk.Page(), clerk.Form());
    EXPECT_GE(view.right - view.left, 33);  // 500 twips at 96 dots per inch
    EXPECT_GE(view.bottom - view.top, 33);
    RECT client{};
    GetClientRect(clerk.Form(), &client);
    EXPECT_LE(PlaceOf(clerk.Control(kEsEtiqueta), clerk.Form()).right, client.right) << "nothing is cut";
  }));
}

TEST(Scrolling, ReachesTheWholePageInTwips) {
  WindowWorld world;
  world.Keep(ModelFile(""));
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    const auto most = [](const SCROLLINFO& bar) { return bar.nMax - static_cast<int>(bar.nPage) + 1; };
    EXPECT_EQ(most(clerk.Bar(kBarHor)), 11340);
    EXPECT_EQ(most(clerk.Bar(kBarVer)), 5670);
    const auto scroll = [&](UINT message, int bar, int code) {
      SendMessageW(clerk.Form(), message, static_cast<WPARAM>(code),
                   reinterpret_cast<LPARAM>(clerk.Control(bar)));
    };
    scroll(WM_VSCROLL, kBarVer, SB_BOTTOM);
    EXPECT_EQ(clerk.Bar(kBarVer).nPos, 5670);
    scroll(WM_VSCROLL, kBarVer, SB_TOP);
    EXPECT_EQ(clerk.Bar(kBarVer).nPos, 0);
    scroll(WM_VSCROLL, kBarVer, SB_LINEDOWN);
    EXPECT_EQ(clerk.Bar(kBarVer).nPos, 255);
    scroll(WM_HSCROLL, kBarHor, SB_PAGEDOWN);
    EXPECT_GT(clerk.Bar(kBarHor).nPos, 1000);
    EXPECT_EQ(clerk.Bar(kBarVer).nPos, 255);
  }));
}

TEST(Scrolling, ANewPageSizeGoesBackToTheTopLeft) {
  WindowWorld world;
  world.Keep(ModelFile(""));
  EXPECT_TRUE(Visit(world, [&](Clerk& clerk) {
    SendMessageW(clerk.Form(), WM_VSCROLL, SB_BOTTOM, reinterpret_cast<LPARAM>(clerk.Control(kBarVer)));
    clerk.Type(kAlto, u"12");
    EXPECT_EQ(clerk.Bar(kBarVer).nPos, 0);
  }));
}

}  // namespace
}  // namespace qm::designer::win32
