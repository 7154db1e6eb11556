#pragma once
// The viewport BasePin with the page canvas Fot: one window that draws the page, twice buffered, and hands
// mouse and keyboard to the presenter.

#include <exception>
#include <memory>
#include <optional>
#include <utility>

#include "designer/modelo_print.h"
#include "designer/win32/field_tip.h"
#include "designer/win32/page_painter.h"
#include "designer/win32/tile_cache.h"
#include "designer/win32/window.h"

namespace qm::designer::win32 {

class PageView final : public Window {
 public:
  // What goes wrong in here is told to the parent by this message, so that it can tell the user.
  static constexpr UINT kFailure = WM_APP + 1;
  // Asks for a menu at the keyboard: 0 Editar, 1 Insertar.
  static constexpr UINT kContextMenu = WM_APP + 2;
  // Between the viewport's edge and a page that is not scrolled, at 96 dots per inch.
  static constexpr int kMargin = 14;

  PageView(ModeloPrint& presenter, const Environment& environment, HWND parent, int id, int dpi);

  void SetDpi(int dpi);
  void LayoutChanged(const Layout& before, const Layout& after);
  void MarksChanged();
  void PlaceChanged();
  // Draws a part of the page that is not in sight yet; false when all that memory is meant for is drawn.
  bool DrawAhead();
  [[nodiscard]] std::exception_ptr TakeFailure() { return std::exchange(failure_, nullptr); }
  void Wheel(WPARAM wide);

  // What of the page lies at a point of the view, and the way back.
  [[nodiscard]] platform::Point ToPage(POINT point) const;
  [[nodiscard]] POINT ToView(platform::Point twips) const;
  // In twips of the page.
  [[nodiscard]] int VisibleWidth() const;
  [[nodiscard]] int VisibleHeight() const;

 protected:
  Answer Receive(UINT message, WPARAM wide, LPARAM parameter) override;
  void Failed() noexcept override;

 private:
  [[nodiscard]] Canvas& TheCanvas() const { return presenter_.TheCanvas(); }
  [[nodiscard]] const Layout& Current() const { return presenter_.TheDocument().Current(); }

  Answer OnPaint(WPARAM, LPARAM);
  Answer OnEraseBackground(WPARAM, LPARAM) { return TRUE; }
  Answer OnSize(WPARAM, LPARAM);
  Answer OnLeftDown(WPARAM, LPARAM);
  Answer OnLeftDoubleClick(WPARAM, LPARAM);
  Answer OnLeftUp(WPARAM, LPARAM);
  Answer OnRightDown(WPARAM, LPARAM);
  Answer OnMouseMove(WPARAM, LPARAM);
  Answer OnCaptureChanged(WPARAM, LPARAM);
  Answer OnWheel(WPARAM, LPARAM);
  Answer OnSetCursor(WPARAM, LPARAM);
  Answer OnKeyDown(WPARAM, LPARAM);
  Answer OnKeyUp(WPARAM, LPARAM);
  Answer OnContextMenu(WPARAM, LPARAM);
  Answer OnGetDialogCode(WPARAM, LPARAM);
  Answer OnFocus(WPARAM, LPARAM);
  Answer OnTimer(WPARAM, LPARAM);

  // The page's top-left corner, in pixels of the view.
  [[nodiscard]] POINT Origin() const;
  [[nodiscard]] RECT ToView(const RECT& ofPage) const;
  [[nodiscard]] RECT Client() const;
  [[nodiscard]] RECT InSight() const;  // in pixels of the page
  [[nodiscard]] std::optional<TileCache::Place> FirstMissing(const RECT& ofPage);
  void DrawTile(TileCache::Place place);
  void Compose(const RECT& area);
  void DrawMarks();
  void DrawHandle(const Box& box, int number);
  void ShowAgain(const RECT& ofPage);
  void FollowMarks();
  void FieldsChanged(const Layout& before, const Layout& after);
  void MouseMovedOrKeyChanged();
  void FollowToolTip(platform::Point mouse);
  void RememberTransform();

  ModeloPrint& presenter_;
  int dpi_;
  FieldTip tip_;
  PagePainter painter_;
  TileCache tiles_;
  std::unique_ptr<Bitmap32> buffer_;
  std::exception_ptr failure_;
  bool failing_ = false;  // since it could last paint
  // The field that is being moved lies upon the squares instead of in them, so that a step redraws it alone.
  int lifted_ = 0;
  RECT marks_{};  // where handles, guide lines and the selected logo's frame were last drawn; of the page
};

}  // namespace qm::designer::win32
