#include "designer/win32/page_view.h"

#include <algorithm>

#include "designer/win32/palette.h"

namespace qm::designer::win32 {
namespace {

using platform::win32::OwnedDc;
using platform::win32::SelectedObject;

constexpr wchar_t kClassName[] = L"ModeloPrintPagina";
constexpr UINT_PTR kSettleTimer = 1;
constexpr UINT kSettleMilliseconds = 250;

// The same picture in both: what an index stands for, and all around the fields.
bool SameButFields(const Layout& before, const Layout& after) {
  return before.canvasWidth == after.canvasWidth && before.canvasHeight == after.canvasHeight &&
         before.background == after.background && before.logo == after.logo;
}

}  // namespace

PageView::PageView(ModeloPrint& presenter, const Environment& environment, HWND parent, int id, int dpi)
    : presenter_(presenter), dpi_(dpi), painter_(environment.print.files, environment.print.pictures) {
  painter_.SetTransform({dpi_, 1.0});
  Create({.className = kClassName,
          .title = L"Página del modelo",  // for who hears the screen
          .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS,
          .classStyle = CS_DBLCLKS,
          .parent = parent,
          .id = id});
  tip_.Create(Handle());
}

void PageView::SetDpi(int dpi) {
  dpi_ = dpi;
  RememberTransform();
}

void PageView::RememberTransform() {
  const PageTransform transform(dpi_, TheCanvas().Zoom());
  if (transform == painter_.Transform()) return;
  tiles_.Clear();
  painter_.SetTransform(transform);
}

RECT PageView::Client() const {
  RECT client{};
  GetClientRect(Handle(), &client);
  return client;
}

POINT PageView::Origin() const {
  const int margin = MulDiv(kMargin, dpi_, 96);
  return {margin - painter_.Transform().Pixels(TheCanvas().Horizontal()),
          margin - painter_.Transform().Pixels(TheCanvas().Vertical())};
}

RECT PageView::ToView(const RECT& ofPage) const {
  RECT area = ofPage;
  OffsetRect(&area, Origin().x, Origin().y);
  return area;
}

RECT PageView::InSight() const {
  RECT area = Client();
  OffsetRect(&area, -Origin().x, -Origin().y);
  return area;
}

platform::Point PageView::ToPage(POINT point) const {
  return {painter_.Transform().Twips(point.x - Origin().x), painter_.Transform().Twips(point.y - Origin().y)};
}

POINT PageView::ToView(platform::Point twips) const {
  return {Origin().x + painter_.Transform().Pixels(twips.x),
          Origin().y + painter_.Transform().Pixels(twips.y)};
}

int PageView::VisibleWidth() const {
  return static_cast<int>(painter_.Transform().Twips(Client().right - 2 * MulDiv(kMargin, dpi_, 96)));
}

int PageView::VisibleHeight() const {
  return static_cast<int>(painter_.Transform().Twips(Client().bottom - 2 * MulDiv(kMargin, dpi_, 96)));
}

void PageView::ShowAgain(const RECT& ofPage) {
  const RECT area = ToView(ofPage);
  InvalidateRect(Handle(), &area, FALSE);
}

void PageView::LayoutChanged(const Layout& before, const Layout& after) {
  if (SameButFields(before, after)) {
    FieldsChanged(before, after);
  } else {
    tiles_.Clear();
    lifted_ = 0;
    InvalidateRect(Handle(), nullptr, FALSE);
  }
  FollowMarks();
}

void PageView::FieldsChanged(const Layout& before, const Layout& after) {
  const std::size_t count = std::max(before.men.size(), after.men.size());
  int changed = 0;
  int howMany = 0;
  const auto each = [&](const auto& action) {
    for (std::size_t i = 1; i < count; ++i) {
      const int index = static_cast<int>(i);
      if (before.At(index) != after.At(index)) action(index);
    }
  };
  each([&](int index) {
    changed = index;
    ++howMany;
  });
  const bool moved = howMany == 1 && before.At(changed) != nullptr && after.At(changed) != nullptr;
  // What was lifted goes back to where it is now, what changes is taken out from where it was.
  if (lifted_ != 0 && (!moved || changed != lifted_)) {
    if (const Field* field = after.At(lifted_)) tiles_.Drop(painter_.BoundsOf(*field));
    lifted_ = 0;
  }
  RECT all{};  // shown again at once: each call of Windows for it has its price
  each([&](int index) {
    for (const Field* field : {before.At(index), after.At(index)}) {
      if (field == nullptr) continue;
      const RECT bounds = painter_.BoundsOf(*field);
      if (index != lifted_ && (!moved || field == before.At(index))) tiles_.Drop(bounds);
      UnionRect(&all, &all, &bounds);
    }
  });
  ShowAgain(all);
  if (!moved) return;
  lifted_ = changed;
  SetTimer(Handle(), kSettleTimer, kSettleMilliseconds, nullptr);
}

// A field that rests takes its place among the others again.
Answer PageView::OnTimer(WPARAM, LPARAM) {
  if (TheCanvas().Dragging()) return 0;
  KillTimer(Handle(), kSettleTimer);
  if (const Field* field = Current().At(lifted_)) {
    tiles_.Drop(painter_.BoundsOf(*field));
    ShowAgain(painter_.BoundsOf(*field));
  }
  lifted_ = 0;
  return 0;
}

void PageView::MarksChanged() { FollowMarks(); }

// Handles and lines are drawn over everything: where they were and where they are is shown again.
void PageView::FollowMarks() {
  ShowAgain(marks_);
  marks_ = {};
  const auto add = [this](RECT area) {
    InflateRect(&area, 2, 2);
    ShowAgain(area);
    UnionRect(&marks_, &marks_, &area);
  };
  const PageTransform& transform = painter_.Transform();
  if (const auto handles = TheCanvas().Handles()) {
    RECT all{};  // the corners enclose all the others
    const RECT first = transform.PixelsOf((*handles)[1]);
    const RECT last = transform.PixelsOf((*handles)[5]);
    UnionRect(&all, &first, &last);
    add(all);
  }
  if (presenter_.TheDocument().LogoSelected() && Current().logo) add(transform.PixelsOf(Current().logo->box));
  const RECT sight = InSight();
  for (const Guide& guide : TheCanvas().Guides()) {
    const LONG at = transform.Pixels(guide.position);
    add(guide.vertical ? RECT{at, sight.top, at + 1, sight.bottom}
                       : RECT{sight.left, at, sight.right, at + 1});
  }
}

void PageView::PlaceChanged() {
  RememberTransform();
  tip_.Follow({}, {});  // until the mouse moves on the page as it lies now
  FollowMarks();
  InvalidateRect(Handle(), nullptr, FALSE);
}

std::optional<TileCache::Place> PageView::FirstMissing(const RECT& ofPage) {
  const auto [first, last] = TileCache::Touched(ofPage);
  for (int row = first.row; row <= last.row; ++row)
    for (int column = first.column; column <= last.column; ++column)
      if (!tiles_.Find({column, row})) return TileCache::Place{column, row};
  return std::nullopt;
}

void PageView::DrawTile(TileCache::Place place) {
  try {
    painter_.Draw(tiles_.Add(place), place.Corner(), Current(), lifted_);
  } catch (...) {
    tiles_.Drop(place);
    throw;
  }
}

bool PageView::DrawAhead() {
  if (!IsWindowVisible(Handle()) || TheCanvas().Dragging()) return false;
  RECT wanted = InSight();
  InflateRect(&wanted, TileCache::kSide, HeightOf(wanted));
  const auto [first, last] = TileCache::Touched(wanted);
  const auto count = static_cast<std::size_t>(last.row - first.row + 1) *
                     static_cast<std::size_t>(last.column - first.column + 1);
  if (count > tiles_.Capacity()) return false;
  RECT page = painter_.Transform().PageOf(Current());
  InflateRect(&page, TileCache::kSide, TileCache::kSide);
  if (!IntersectRect(&wanted, &wanted, &page)) return false;
  const auto missing = FirstMissing(wanted);
  if (missing) DrawTile(*missing);
  return missing.has_value();
}

void PageView::Compose(const RECT& area) {
  RECT ofPage = area;
  OffsetRect(&ofPage, -Origin().x, -Origin().y);
  const auto [first, last] = TileCache::Touched(ofPage);
  for (int row = first.row; row <= last.row; ++row) {
    for (int column = first.column; column <= last.column; ++column) {
      const TileCache::Place place{column, row};
      if (!tiles_.Find(place)) DrawTile(place);
      const POINT corner{Origin().x + place.Corner().x, Origin().y + place.Corner().y};
      buffer_->Copy(*tiles_.Find(place), corner, area);
    }
  }
  if (const Field* field = Current().At(lifted_))
    painter_.DrawField(*buffer_, {-Origin().x, -Origin().y}, Current(), *field);
  DrawMarks();
}

void PageView::DrawHandle(const Box& box, int number) {
  const RECT area = ToView(painter_.Transform().PixelsOf(box));
  buffer_->Fill(area, PixelOf(CanBeDragged(number) ? kAccent : RGB(255, 255, 255)));
  buffer_->Outline(area, PixelOf(CanBeDragged(number) ? kAccent : kFaintOutline), false);
}

void PageView::DrawMarks() {
  const Pixel border = PixelOf(GetFocus() == Handle() ? kAccent : kPageEdge);
  buffer_->Outline({0, 0, buffer_->Width(), buffer_->Height()}, border, false);
  const PageTransform& transform = painter_.Transform();
  const POINT origin = Origin();
  for (const Guide& guide : TheCanvas().Guides()) {
    const LONG at = transform.Pixels(guide.position);
    buffer_->Fill(guide.vertical ? RECT{origin.x + at, 0, origin.x + at + 1, buffer_->Height()}
                                 : RECT{0, origin.y + at, buffer_->Width(), origin.y + at + 1},
                  PixelOf(kGuide));
  }
  // Pressed but not moved yet, the lifted one may still be another.
  const Document& document = presenter_.TheDocument();
  const bool moving = TheCanvas().Dragging() && !document.LogoSelected() && lifted_ == document.Selected();
  if (const Field* field = moving ? Current().At(lifted_) : nullptr)
    buffer_->Outline(ToView(transform.PixelsOf(field->box)), PixelOf(kAccent), true);
  if (const auto handles = TheCanvas().Handles()) {
    if (const Field* field = Current().At(presenter_.TheDocument().Selected()))
      buffer_->Outline(ToView(transform.PixelsOf(field->box)), PixelOf(kAccent), false);
    for (int number = 1; number <= 8; ++number)
      DrawHandle((*handles)[static_cast<std::size_t>(number)], number);
  }
  if (presenter_.TheDocument().LogoSelected() && Current().logo) {
    RECT frame = ToView(transform.PixelsOf(Current().logo->box));
    InflateRect(&frame, 1, 1);
    buffer_->Outline(frame, PixelOf(kAccent), false);
  }
}

Answer PageView::OnPaint(WPARAM, LPARAM) {
  struct Painting {
    explicit Painting(HWND handle) : window(handle), dc(BeginPaint(handle, &data)) {}
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;
    ~Painting() { EndPaint(window, &data); }
    HWND window;
    PAINTSTRUCT data{};
    HDC dc;
  };
  const Painting painting(Handle());
  const RECT& area = painting.data.rcPaint;
  const RECT client = Client();
  if (!buffer_ || buffer_->Width() != client.right || buffer_->Height() != client.bottom)
    buffer_ = std::make_unique<Bitmap32>(static_cast<int>(client.right), static_cast<int>(client.bottom));
  Compose(area);
  const OwnedDc memory(CreateCompatibleDC(painting.dc));
  const SelectedObject selected(memory.Get(), buffer_->Handle());
  BitBlt(painting.dc, area.left, area.top, WidthOf(area), HeightOf(area), memory.Get(), area.left, area.top,
         SRCCOPY);
  failing_ = false;
  return 0;
}

Answer PageView::OnSize(WPARAM, LPARAM) {
  const RECT client = Client();
  const auto [first, last] = TileCache::Touched({0, 0, client.right + TileCache::kSide, client.bottom});
  const int columns = last.column - first.column + 2;
  const int rows = last.row - first.row + 2;
  tiles_.SetCapacity(static_cast<std::size_t>(columns * rows) * 3);  // and a screen above and below
  TheCanvas().SetViewport(VisibleWidth() * TheCanvas().Zoom(), VisibleHeight() * TheCanvas().Zoom());
  return 0;
}

}  // namespace qm::designer::win32
