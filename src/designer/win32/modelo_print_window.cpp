#include "designer/win32/modelo_print_window.h"

#include <algorithm>
#include <utility>

#include "designer/win32/keys.h"
#include "designer/win32/properties_dialog.h"
#include "designer/win32/tool_button.h"
#include "platform/win32/errors.h"
#include "platform/win32/visual_styles.h"

namespace qm::designer::win32 {
namespace {

constexpr SIZE kFirstSize{1060, 780};  // at 96 dots per inch
constexpr int kLineTwips = 255;

RECT FirstPlace(HWND window, const Metrics& metrics) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& room = monitor.rcWork;
  const int width = std::min<int>(metrics.Px(kFirstSize.cx), WidthOf(room));
  const int height = std::min<int>(metrics.Px(kFirstSize.cy), HeightOf(room));
  const LONG left = room.left + (WidthOf(room) - width) / 2;
  const LONG top = room.top + (HeightOf(room) - height) / 2;
  return {left, top, left + width, top + height};
}

int Scrolled(HWND bar, int code, int page) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(bar, SB_CTL, &info);
  switch (code) {
    case SB_LINEUP:
      return info.nPos - kLineTwips;
    case SB_LINEDOWN:
      return info.nPos + kLineTwips;
    case SB_PAGEUP:
      return info.nPos - page;
    case SB_PAGEDOWN:
      return info.nPos + page;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return info.nTrackPos;
    case SB_TOP:
      return 0;
    case SB_BOTTOM:
      return info.nMax;
    default:
      return info.nPos;
  }
}

// The bar reaches its maximum, whatever the size of its box. One that stands so already is not painted again.
void ShowScroll(HWND bar, int position, int most, int visible) {
  SCROLLINFO shown{};
  shown.cbSize = sizeof shown;
  shown.fMask = SIF_POS | SIF_RANGE | SIF_PAGE;
  GetScrollInfo(bar, SB_CTL, &shown);
  SCROLLINFO info = shown;
  info.nPage = static_cast<UINT>(std::clamp(visible, 1, std::max(1, most)));
  info.nMax = most + static_cast<int>(info.nPage) - 1;
  info.nPos = position;
  if (info.nPage == shown.nPage && info.nMax == shown.nMax && info.nPos == shown.nPos) return;
  SetScrollInfo(bar, SB_CTL, &info, TRUE);
}

}  // namespace

ModeloPrintWindow::ModeloPrintWindow(const Environment& environment, const data::PickerMenus& menus,
                                     std::int16_t numeroModelo)
    : dialogs_(environment.dialogs),
      presenter_(environment, *this, menus, numeroModelo),
      menuBar_(NewMenuBar(menus)) {
  const platform::win32::VisualStyles currentLook;
  CreateForm();
  metrics_.emplace(Handle());
  icon_ = NewWindowIcon(metrics_->Px(32));
  SendMessageW(Handle(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon_.Get()));
  SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.Get()));
  controls_ = FormControls(Handle());
  controls_.Create(*metrics_);
  page_.emplace(presenter_, environment, Handle(), kBasePin, metrics_->Dpi());
  controls_.AddViewport(page_->Handle());
  const RECT place = FirstPlace(Handle(), *metrics_);
  SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void ModeloPrintWindow::CreateForm() {
  Create({.className = kClassName,
          .title = L"Modelos de Impresión",
          .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
          .extendedStyle = WS_EX_CONTROLPARENT});
  SetMenu(Handle(), menuBar_.Release());
}

void ModeloPrintWindow::Open() {
  presenter_.Form_Load();
  AdjustForm();
  ShowWindow(Handle(), SW_SHOW);
  SetForegroundWindow(Handle());
  SetFocus(page_->Handle());
  RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// ---- What the presenter shows

void ModeloPrintWindow::LayoutChanged(const Layout& before, const Layout& after) {
  controls_.SetText(kAncho, after.ancho);
  controls_.SetText(kAlto, after.alto);
  controls_.SelectText(kListCopias, after.copias);
  controls_.Tick(kEsEtiqueta, after.esEtiqueta);
  page_->LayoutChanged(before, after);
}

void ModeloPrintWindow::MarksChanged() { page_->MarksChanged(); }

void ModeloPrintWindow::PlaceChanged() {
  page_->PlaceChanged();
  ShowScrollBars();
}

void ModeloPrintWindow::ShowScrollBars() {
  const Canvas& canvas = presenter_.TheCanvas();
  ShowScroll(controls_.Get(kBarHor), canvas.Horizontal(), canvas.HorizontalMax(), page_->VisibleWidth());
  ShowScroll(controls_.Get(kBarVer), canvas.Vertical(), canvas.VerticalMax(), page_->VisibleHeight());
}

void ModeloPrintWindow::ShowReadout(std::u16string_view text) {
  controls_.SetText(kLabPos, text);
  UpdateWindow(controls_.Get(kLabPos));
}

void ModeloPrintWindow::ShowPopUp(PopUp menu) {
  POINT at{};
  GetCursorPos(&at);
  TrackMenu(menu, at);
}

void ModeloPrintWindow::TrackMenu(PopUp menu, POINT at) {
  UpdateWindow(Handle());
  TrackPopupMenu(PopUpOf(GetMenu(Handle()), menu), TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, at.x, at.y,
                 0, Handle(), nullptr);
}

void ModeloPrintWindow::SelectModel(int position) {
  shownModel_ = position;
  controls_.Select(kModelos, position);
}

void ModeloPrintWindow::ShowPrinters(const std::vector<std::u16string>& names, int selected) {
  controls_.FillList(kImpresoras, names);
  controls_.Select(kImpresoras, selected);
  shownPrinter_ = selected;
}

void ModeloPrintWindow::ShowProperties(FieldProperties& properties) { ShowPropertiesDialog(properties); }

// ---- Choices in the lists. While a list is open, going through it chooses nothing yet.

void ModeloPrintWindow::ModelSelected() {
  const int position = controls_.SelectionOf(kModelos);
  if (controls_.IsOpen(kModelos) || position < 0 || position == shownModel_) return;
  shownModel_ = position;
  presenter_.ModelChosen(position);
}

void ModeloPrintWindow::PrinterSelected() {
  const int position = controls_.SelectionOf(kImpresoras);
  if (controls_.IsOpen(kImpresoras) || position < 0 || position == shownPrinter_) return;
  shownPrinter_ = position;
  presenter_.PrinterChosen(controls_.TextOf(kImpresoras));
}

void ModeloPrintWindow::CopiesSelected() {
  if (!controls_.IsOpen(kListCopias)) presenter_.List_Copias_Change(controls_.TextOf(kListCopias));
}

// ---- Messages

struct ModeloPrintWindow::ControlEvent {
  int id;
  int notification;
  void (ModeloPrintWindow::*handle)();
};

Answer ModeloPrintWindow::OnCommand(WPARAM wide, LPARAM parameter) {
  static constexpr ControlEvent kEvents[] = {
      {kModelos, CBN_SELCHANGE, &ModeloPrintWindow::ModelSelected},
      {kModelos, CBN_CLOSEUP, &ModeloPrintWindow::ModelSelected},
      {kImpresoras, CBN_SELCHANGE, &ModeloPrintWindow::PrinterSelected},
      {kImpresoras, CBN_CLOSEUP, &ModeloPrintWindow::PrinterSelected},
      {kListCopias, CBN_SELCHANGE, &ModeloPrintWindow::CopiesSelected},
      {kListCopias, CBN_CLOSEUP, &ModeloPrintWindow::CopiesSelected},
      {kAncho, EN_CHANGE, &ModeloPrintWindow::AnchoChanged},
      {kAlto, EN_CHANGE, &ModeloPrintWindow::AltoChanged},
      {kEsEtiqueta, BN_CLICKED, &ModeloPrintWindow::EtiquetaClicked},
  };
  const int id = LOWORD(wide);
  const int notification = HIWORD(wide);
  const bool fromMenu = parameter == 0;
  if ((fromMenu || notification == BN_CLICKED) && RunCommand(presenter_, id)) return 0;
  if (fromMenu || !page_) return 0;
  for (const ControlEvent& event : kEvents)
    if (event.id == id && event.notification == notification) (this->*event.handle)();
  return 0;
}

Answer ModeloPrintWindow::OnSize(WPARAM, LPARAM) {
  if (!page_) return 0;
  AdjustForm();
  return 0;
}

void ModeloPrintWindow::AdjustForm() {
  RECT client{};
  GetClientRect(Handle(), &client);
  if (!EqualRect(&client, &adjustedFor_)) {
    controls_.Place(*metrics_, static_cast<int>(client.right), static_cast<int>(client.bottom));
    adjustedFor_ = client;
  }
  ShowScrollBars();
}

Answer ModeloPrintWindow::OnGetMinMaxInfo(WPARAM, LPARAM parameter) {
  if (!page_) return {};
  RECT window{};
  RECT client{};
  GetWindowRect(Handle(), &window);
  GetClientRect(Handle(), &client);
  const SIZE least = controls_.Least(*metrics_);
  reinterpret_cast<MINMAXINFO*>(parameter)->ptMinTrackSize = {least.cx + WidthOf(window) - client.right,
                                                              least.cy + HeightOf(window) - client.bottom};
  return 0;
}

Answer ModeloPrintWindow::OnEraseBackground(WPARAM wide, LPARAM) {
  RECT client{};
  GetClientRect(Handle(), &client);
  FillRect(reinterpret_cast<HDC>(wide), &client, GetSysColorBrush(COLOR_BTNFACE));
  return TRUE;
}

Answer ModeloPrintWindow::OnDrawItem(WPARAM wide, LPARAM parameter) {
  static constexpr std::pair<int, Icon> kIcons[] = {
      {kGrabar, Icon::Grabar}, {kImprimirPrueba, Icon::ImprimirPrueba}, {kTamañoPapel, Icon::Papel}};
  for (const auto& [id, icon] : kIcons)
    if (static_cast<int>(wide) == id)
      DrawToolButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(parameter), icon, *metrics_);
  return TRUE;
}

Answer ModeloPrintWindow::OnScroll(WPARAM wide, LPARAM parameter) {
  auto* const bar = reinterpret_cast<HWND>(parameter);
  Canvas& canvas = presenter_.TheCanvas();
  const int code = LOWORD(wide);
  if (bar == controls_.Get(kBarHor)) {
    canvas.ScrollTo(Scrolled(bar, code, page_->VisibleWidth()), canvas.Vertical());
  } else {
    canvas.ScrollTo(canvas.Horizontal(), Scrolled(bar, code, page_->VisibleHeight()));
  }
  UpdateWindow(page_->Handle());  // while the box is dragged nothing else would paint
  return 0;
}

Answer ModeloPrintWindow::OnActivate(WPARAM wide, LPARAM) {
  if (LOWORD(wide) != WA_INACTIVE) return {};
  if (IsChild(Handle(), GetFocus())) focus_ = GetFocus();
  return {};
}

Answer ModeloPrintWindow::OnSetFocus(WPARAM, LPARAM) {
  if (page_) SetFocus(focus_ ? focus_ : page_->Handle());
  return 0;
}

Answer ModeloPrintWindow::OnNextControl(WPARAM wide, LPARAM parameter) {
  HWND next = LOWORD(parameter) ? reinterpret_cast<HWND>(wide)
                                : GetNextDlgTabItem(Handle(), GetFocus(), static_cast<BOOL>(wide));
  SetFocus(next);
  return 0;
}

Answer ModeloPrintWindow::OnContextMenu(WPARAM wide, LPARAM) {
  RECT view{};
  GetWindowRect(page_->Handle(), &view);
  TrackMenu(wide == 0 ? PopUp::Editar : PopUp::Insertar, {view.left, view.top});
  return 0;
}

Answer ModeloPrintWindow::OnDpiChanged(WPARAM wide, LPARAM parameter) {
  metrics_.emplace(static_cast<int>(HIWORD(wide)));
  controls_.SetMetrics(*metrics_);
  adjustedFor_ = {};
  page_->SetDpi(metrics_->Dpi());
  const RECT& place = *reinterpret_cast<const RECT*>(parameter);
  SetWindowPos(Handle(), nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
  AdjustForm();
  InvalidateRect(Handle(), nullptr, TRUE);
  return 0;
}

Answer ModeloPrintWindow::Receive(UINT message, WPARAM wide, LPARAM parameter) {
  static constexpr Handler<ModeloPrintWindow> kMessages[] = {
      {WM_COMMAND, &ModeloPrintWindow::OnCommand},
      {WM_SIZE, &ModeloPrintWindow::OnSize},
      {WM_GETMINMAXINFO, &ModeloPrintWindow::OnGetMinMaxInfo},
      {WM_ERASEBKGND, &ModeloPrintWindow::OnEraseBackground},
      {WM_DRAWITEM, &ModeloPrintWindow::OnDrawItem},
      {WM_HSCROLL, &ModeloPrintWindow::OnScroll},
      {WM_VSCROLL, &ModeloPrintWindow::OnScroll},
      {WM_ACTIVATE, &ModeloPrintWindow::OnActivate},
      {WM_SETFOCUS, &ModeloPrintWindow::OnSetFocus},
      {WM_NEXTDLGCTL, &ModeloPrintWindow::OnNextControl},
      {PageView::kContextMenu, &ModeloPrintWindow::OnContextMenu},
      {PageView::kFailure, &ModeloPrintWindow::OnFailure},
      {WM_DPICHANGED, &ModeloPrintWindow::OnDpiChanged},
      {WM_CLOSE, &ModeloPrintWindow::OnClose},
      {WM_QUERYENDSESSION, &ModeloPrintWindow::OnQueryEndSession},
      {WM_ENDSESSION, &ModeloPrintWindow::OnEndSession},
  };
  return Dispatch(*this, kMessages, message, wide, parameter);
}

// ---- The end

Answer ModeloPrintWindow::OnClose(WPARAM, LPARAM) {
  if (IsWindowEnabled(Handle())) Unload();  // not from under a dialog
  return 0;
}

void ModeloPrintWindow::Unload() {
  if (std::exchange(unloading_, true)) return;
  closed_ = presenter_.Form_Unload() || closed_;
  unloading_ = false;
}

Answer ModeloPrintWindow::OnEndSession(WPARAM wide, LPARAM) {
  if (wide) ProgramEnds();
  return 0;
}

void ModeloPrintWindow::ProgramEnds() {
  constexpr int kWindowsShutsDown = 2;
  presenter_.Form_QueryUnload(kWindowsShutsDown);
  closed_ = true;
}

// ---- Failures of the window itself

void ModeloPrintWindow::Failed() noexcept {
  failure_ = std::current_exception();
  PostMessageW(Handle(), PageView::kFailure, 0, 0);
}

Answer ModeloPrintWindow::OnFailure(WPARAM, LPARAM) {
  if (telling_) return 0;
  std::u16string text(runtime::DescriptionOf(static_cast<int>(runtime::ErrorNumber::OutOfMemory)));
  std::exception_ptr failure = std::exchange(failure_, nullptr);
  if (!failure) failure = page_->TakeFailure();
  try {
    if (failure) std::rethrow_exception(failure);
  } catch (const runtime::RuntimeError& error) {
    text = error.description();
  } catch (...) {  // nothing else is thrown but for want of memory
  }
  telling_ = true;
  dialogs_.Tell(platform::Icon::Critical, text);
  telling_ = false;
  return 0;
}

// ---- The loop

bool ModeloPrintWindow::TextHasFocus() const {
  const int id = GetDlgCtrlID(GetFocus());
  return id == kAncho || id == kAlto;
}

// Between the page and the settings; on the page the Tab key walks the fields.
void ModeloPrintWindow::NextPane() {
  SetFocus(GetFocus() == page_->Handle() ? controls_.Get(kAncho) : page_->Handle());
}

bool ModeloPrintWindow::Translate(MSG& message) {
  if (message.hwnd != Handle() && !IsChild(Handle(), message.hwnd)) return false;
  if (message.message == WM_MOUSEWHEEL) {
    for (const int list : {kModelos, kImpresoras, kListCopias})
      if (controls_.IsOpen(list)) return false;
    page_->Wheel(message.wParam);  // wherever the focus is, and never through the lists
    return true;
  }
  if (message.message == WM_KEYDOWN) {
    const auto key = static_cast<UINT>(message.wParam);
    const bool paneKey = key == VK_F6 || (key == VK_TAB && GetKeyState(VK_CONTROL) < 0);
    if (paneKey && !presenter_.TheCanvas().Dragging()) {
      NextPane();
      return true;
    }
    if (message.hwnd != page_->Handle() && PressWindowKey(presenter_, key, TextHasFocus())) return true;
  }
  return IsDialogMessageW(Handle(), &message) != FALSE;
}

bool ModeloPrintWindow::Idle() { return page_->DrawAhead(); }

}  // namespace qm::designer::win32
