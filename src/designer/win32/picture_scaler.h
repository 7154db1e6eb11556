#pragma once
// A picture stretched to a place on the page, drawn in parts that fit together without a seam: each pixel is
// the mean of the picture's pixels that fall on it.

#include "designer/win32/bitmap32.h"
#include "platform/win32/bitmap.h"

namespace qm::designer::win32 {

// The target's top-left corner and the place are in pixels of the page.
void DrawStretched(Bitmap32& target, POINT corner, const RECT& place,
                   const platform::win32::Bitmap24& picture);

}  // namespace qm::designer::win32
