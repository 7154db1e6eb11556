#include "designer/win32/form_controls.h"

#include <algorithm>
#include <utility>

#include "designer/win32/palette.h"
#include "designer/win32/tool_button.h"
#include "designer/win32/tool_tips.h"
#include "designer/win32/window.h"
#include "platform/win32/errors.h"
#include "platform/win32/module.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::ThisModule;
using platform::win32::Wide;
using platform::win32::WideBuffer;

constexpr int kLeastViewportTwips = 500;
constexpr int kModelListTwips = 1000;
constexpr int kPrinterListTwips = 3000;
constexpr int kCopies = 10;

// At 96 dots per inch.
constexpr int kMargin = 10;
constexpr int kGap = 6;
constexpr int kWideGap = 18;
constexpr int kButton = 30;
constexpr int kDotsSide = 20;
constexpr int kBox = 64;
constexpr int kCopiesBox = 54;
constexpr int kDropDown = 300;
constexpr int kReadout = 270;

// Numbers of the labels in the order in which they are made.
enum Label { kLabelModelo, kLabelImpresora, kLabel1, kLabel2, kLabel3, kLabel4 };

// Boxes put their text at the top: higher ones would look uneven.
int RowHeight(const Metrics& metrics) { return metrics.TextHeight() + 9; }
int ToolbarHeight(const Metrics& metrics) { return metrics.Px(kButton) + metrics.Px(kGap) * 2; }
int FrameHeight(const Metrics& metrics, int rows) {
  return metrics.TextHeight() + metrics.Px(4) + rows * (RowHeight(metrics) + metrics.Px(kGap)) +
         metrics.Px(4);
}

}  // namespace

struct FormControls::Standing {
  HWND window;
  int width;
  int gap;     // before it
  int height;  // 0 for that of the row; a drop-down list's includes its list
};

HWND FormControls::Add(const wchar_t* windowClass, const wchar_t* text, DWORD style, int id) {
  // What lies in the frame would be cut out of the form's ground and never painted, were it not transparent.
  const DWORD extendedStyle = id == kAncho || id == kAlto ? WS_EX_CLIENTEDGE
                              : id == kFrame1             ? WS_EX_TRANSPARENT
                                                          : 0;
  const HWND window =
      CreateWindowExW(extendedStyle, windowClass, text, style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, form_,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ThisModule(), nullptr);
  if (!window) platform::win32::Throw(runtime::ErrorNumber::OutOfMemory);
  if (id == 0) labels_.push_back(window);
  return window;
}

void FormControls::AddTip(int id, const wchar_t* text) {
  TTTOOLINFOW tool = ToolOf(form_, text);
  tool.uFlags |= TTF_IDISHWND;
  tool.uId = reinterpret_cast<UINT_PTR>(Get(id));
  SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

// The order is that of the Tab key; a label stands before the control that it names.
void FormControls::Create(const Metrics& metrics) {
  constexpr DWORD kLabelStyle = SS_LEFTNOWORDWRAP | SS_NOPREFIX | SS_CENTERIMAGE;
  constexpr DWORD kListStyle = CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP;
  constexpr DWORD kBoxStyle = ES_AUTOHSCROLL | WS_TABSTOP;
  for (const auto& [id, name] :
       {std::pair(kGrabar, L"Grabar"), std::pair(kImprimirPrueba, L"Imprimir prueba"),
        std::pair(kTamañoPapel, L"Tamaño de Papel")})
    MakeToolButton(Add(WC_BUTTONW, name, BS_OWNERDRAW | WS_TABSTOP, id));
  Add(WC_STATICW, L"Modelo", kLabelStyle, 0);
  Add(WC_COMBOBOXW, L"", kListStyle, kModelos);
  Add(WC_STATICW, L"Impresora", kLabelStyle, 0);
  Add(WC_COMBOBOXW, L"", kListStyle, kImpresoras);
  Add(WC_STATICW, L"Ancho", kLabelStyle, 0);
  Add(WC_EDITW, L"", kBoxStyle, kAncho);
  Add(WC_STATICW, L"Alto", kLabelStyle, 0);
  Add(WC_EDITW, L"", kBoxStyle, kAlto);
  Add(WC_STATICW, L"Tipo de papel", kLabelStyle, 0);
  // It shows three dots; its text is the name that a screen reader tells.
  Add(WC_BUTTONW, L"Tipo de papel", BS_PUSHBUTTON | BS_ICON | WS_TABSTOP, kElegirPapel);
  Add(WC_STATICW, L"Copias", kLabelStyle, 0);
  Add(WC_COMBOBOXW, L"", kListStyle, kListCopias);
  Add(WC_BUTTONW, L"Es Etiqueta", BS_AUTOCHECKBOX | WS_TABSTOP, kEsEtiqueta);
  Add(WC_STATICW, L"Posición: ", kLabelStyle, kLabPos);
  Add(WC_BUTTONW, L"Características", BS_GROUPBOX, kFrame1);
  Add(WC_SCROLLBARW, L"", SBS_HORZ, kBarHor);
  Add(WC_SCROLLBARW, L"", SBS_VERT, kBarVer);

  tips_ = NewToolTips(form_);
  AddTip(kGrabar, L"Grabar");
  AddTip(kImprimirPrueba, L"Imprimir prueba");
  AddTip(kImpresoras, L"Impresora");
  AddTip(kTamañoPapel, L"Tamaño de Papel");
  AddTip(kElegirPapel, L"Tamaño de Papel");

  std::vector<std::u16string> copies;
  for (int copy = 1; copy <= kCopies; ++copy)
    copies.push_back({static_cast<char16_t>(u'0' + copy / 10), static_cast<char16_t>(u'0' + copy % 10)});
  FillList(kListCopias, copies);
  std::vector<std::u16string> models;
  for (char16_t number = u'1'; number <= u'9'; ++number) models.emplace_back(1, number);
  FillList(kModelos, models);
  SetMetrics(metrics);
}

void FormControls::AddViewport(HWND viewport) {
  SetWindowPos(viewport, Get(kFrame1), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void FormControls::SetMetrics(const Metrics& metrics) {
  for (HWND child = nullptr; (child = FindWindowExW(form_, child, nullptr, nullptr)) != nullptr;)
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(metrics.Font()), TRUE);
  OwnedIcon dots = NewDotsIcon(metrics.Px(kDotsSide));
  SendMessageW(Get(kElegirPapel), BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(dots.Get()));
  dots_ = std::move(dots);
  constexpr WPARAM kClosedPart = static_cast<WPARAM>(-1);
  for (const int list : {kModelos, kImpresoras, kListCopias})
    SendMessageW(Get(list), CB_SETITEMHEIGHT, kClosedPart, RowHeight(metrics) - 6);  // its frame is 3 wide
}

std::vector<FormControls::Standing> FormControls::ToolbarRow(const Metrics& metrics) const {
  const int button = metrics.Px(kButton);
  const int gap = metrics.Px(kGap);
  const int list = metrics.Px(kDropDown);
  const auto label = [&](Label which, const wchar_t* text) {
    return Standing{labels_[which], metrics.TextWidth(text) + 2, metrics.Px(kWideGap), 0};
  };
  return {{Get(kGrabar), button, 0, button},
          {Get(kImprimirPrueba), button, metrics.Px(2), button},
          {Get(kTamañoPapel), button, metrics.Px(2), button},
          label(kLabelModelo, L"Modelo"),
          {Get(kModelos), metrics.FromTwips(kModelListTwips), gap, list},
          label(kLabelImpresora, L"Impresora"),
          {Get(kImpresoras), metrics.FromTwips(kPrinterListTwips), gap, list}};
}

std::vector<FormControls::Standing> FormControls::SettingsRow(const Metrics& metrics) const {
  const int gap = metrics.Px(kGap);
  const int box = metrics.Px(kBox);
  const auto label = [&](Label which, const wchar_t* text, int before) {
    return Standing{labels_[which], metrics.TextWidth(text) + 2, before, 0};
  };
  const int wide = metrics.Px(kWideGap);
  return {label(kLabel1, L"Ancho", 0),
          {Get(kAncho), box, gap, 0},
          label(kLabel2, L"Alto", wide),
          {Get(kAlto), box, gap, 0},
          label(kLabel3, L"Tipo de papel", wide),
          {Get(kElegirPapel), metrics.Px(kButton), gap, 0},
          label(kLabel4, L"Copias", wide),
          {Get(kListCopias), metrics.Px(kCopiesBox), gap, metrics.Px(kDropDown)},
          {Get(kEsEtiqueta), metrics.TextWidth(L"Es Etiqueta") + metrics.Px(24), wide, 0}};
}

int FormControls::WidthOfRow(const std::vector<Standing>& row) {
  int width = 0;
  for (const Standing& standing : row) width += standing.gap + standing.width;
  return width;
}

void FormControls::PlaceRow(const std::vector<Standing>& row, int x, int y, int height,
                            const Metrics& metrics) const {
  for (const Standing& standing : row) {
    x += standing.gap;
    const bool isList = standing.height == metrics.Px(kDropDown);
    const int visible = isList || standing.height == 0 ? RowHeight(metrics) : standing.height;
    SetWindowPos(standing.window, nullptr, x, y + (height - visible) / 2, standing.width,
                 isList ? standing.height : visible, SWP_NOZORDER | SWP_NOACTIVATE);
    x += standing.width;
  }
}

SIZE FormControls::Least(const Metrics& metrics) const {
  const int viewport = metrics.FromTwips(kLeastViewportTwips);
  const int rows =
      std::max(WidthOfRow(ToolbarRow(metrics)),
               std::max(WidthOfRow(SettingsRow(metrics)), metrics.Px(kReadout)) + 2 * metrics.Px(kMargin));
  return {rows + 2 * metrics.Px(kMargin), ToolbarHeight(metrics) + FrameHeight(metrics, 2) +
                                              metrics.Px(kGap) + viewport + GetSystemMetrics(SM_CYHSCROLL)};
}

void FormControls::Place(const Metrics& metrics, int width, int height) {
  const int margin = metrics.Px(kMargin);
  PlaceRow(ToolbarRow(metrics), margin, 0, ToolbarHeight(metrics), metrics);

  const std::vector<Standing> settings = SettingsRow(metrics);
  const int inside = width - 4 * margin;
  const int used = WidthOfRow(settings);
  const bool oneRow = used + metrics.Px(kWideGap) + metrics.Px(kReadout) <= inside;
  const int frameTop = ToolbarHeight(metrics);
  const int frameHeight = FrameHeight(metrics, oneRow ? 1 : 2);
  const int rowTop = frameTop + metrics.TextHeight() + metrics.Px(4);
  SetWindowPos(Get(kFrame1), nullptr, margin, frameTop, std::max(0, width - 2 * margin), frameHeight,
               SWP_NOZORDER | SWP_NOACTIVATE);
  PlaceRow(settings, 2 * margin, rowTop, RowHeight(metrics), metrics);
  const int readoutX = 2 * margin + (oneRow ? used + metrics.Px(kWideGap) : 0);
  SetWindowPos(Get(kLabPos), nullptr, readoutX,
               oneRow ? rowTop : rowTop + RowHeight(metrics) + metrics.Px(kGap),
               std::max(metrics.Px(kReadout), width - 2 * margin - readoutX), RowHeight(metrics),
               SWP_NOZORDER | SWP_NOACTIVATE);

  const int least = metrics.FromTwips(kLeastViewportTwips);
  const int barWidth = GetSystemMetrics(SM_CXVSCROLL);
  const int barHeight = GetSystemMetrics(SM_CYHSCROLL);
  const int top = frameTop + frameHeight + metrics.Px(kGap);
  const int viewWidth = std::max(least, width - barWidth);
  const int viewHeight = std::max(least, height - top - barHeight);
  SetWindowPos(Get(kBasePin), nullptr, 0, top, viewWidth, viewHeight, SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowPos(Get(kBarVer), nullptr, viewWidth, top, barWidth, viewHeight, SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowPos(Get(kBarHor), nullptr, 0, top + viewHeight, viewWidth, barHeight,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

std::u16string FormControls::TextOf(int id) const {
  const HWND control = Get(id);
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(control)) + 1, u'\0');
  const int length = GetWindowTextW(control, WideBuffer(text), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(std::max(0, length)));
  return text;
}

void FormControls::SetText(int id, std::u16string_view text) {
  if (TextOf(id) != text) SetWindowTextW(Get(id), Wide(std::u16string(text)));
}

int FormControls::SelectionOf(int id) const {
  return static_cast<int>(SendMessageW(Get(id), CB_GETCURSEL, 0, 0));
}

void FormControls::Select(int id, int position) {
  if (SelectionOf(id) != position) SendMessageW(Get(id), CB_SETCURSEL, static_cast<WPARAM>(position), 0);
}

void FormControls::SelectText(int id, std::u16string_view text) {
  constexpr WPARAM kFromTheStart = static_cast<WPARAM>(-1);
  const std::u16string wanted(text);
  Select(id, wanted.empty() ? -1
                            : static_cast<int>(SendMessageW(Get(id), CB_FINDSTRINGEXACT, kFromTheStart,
                                                            reinterpret_cast<LPARAM>(Wide(wanted)))));
}

void FormControls::FillList(int id, const std::vector<std::u16string>& entries) {
  SendMessageW(Get(id), CB_RESETCONTENT, 0, 0);
  for (const std::u16string& entry : entries)
    SendMessageW(Get(id), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(entry)));
}

bool FormControls::IsOpen(int id) const { return SendMessageW(Get(id), CB_GETDROPPEDSTATE, 0, 0) != 0; }

bool FormControls::Ticked(int id) const { return SendMessageW(Get(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }

void FormControls::Tick(int id, bool ticked) {
  if (Ticked(id) != ticked) SendMessageW(Get(id), BM_SETCHECK, ticked ? BST_CHECKED : BST_UNCHECKED, 0);
}

}  // namespace qm::designer::win32
