#pragma once
// Draws a layout as it will print: the captions through the engine's own field printer, at the resolution of
// the screen times the zoom. Around the page lies the desk.
// Units: pixels of the page; see PageTransform.

#include <memory>

#include "designer/box_marks.h"
#include "designer/win32/bitmap32.h"
#include "designer/win32/page_transform.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/win32/canvas.h"

namespace qm::designer::win32 {

class PagePainter {
 public:
  PagePainter(platform::Files& files, platform::Pictures& pictures);
  PagePainter(const PagePainter&) = delete;
  PagePainter& operator=(const PagePainter&) = delete;
  ~PagePainter();

  void SetTransform(const PageTransform& transform);
  [[nodiscard]] const PageTransform& Transform() const { return transform_; }

  // The part of the page whose top-left corner lies at `corner`, as large as the bitmap; without one field.
  void Draw(Bitmap32& target, POINT corner, const Layout& layout, int without);
  // One field alone, upon what is there.
  void DrawField(Bitmap32& target, POINT corner, const Layout& layout, const Field& field);
  // All that drawing it can touch.
  [[nodiscard]] RECT BoundsOf(const Field& field) const;

 private:
  void DrawPage(Bitmap32& target, POINT corner, const Layout& layout) const;
  template <class Body>
  void WithTexts(Bitmap32& target, POINT corner, const Body& body);
  void AddField(Bitmap32& target, POINT corner, const Layout& layout, const Field& field);

  class FieldSurface;

  platform::Files& files_;
  platform::Pictures& pictures_;
  PageTransform transform_;
  platform::win32::OwnedDc dc_;
  std::unique_ptr<FieldSurface> printer_;  // measures as one does
  std::unique_ptr<BoxMarks> marks_;
  std::unique_ptr<FieldSurface> surface_;
};

}  // namespace qm::designer::win32
