#pragma once
// How many GDI objects this process has, to see whether all are given back.

#include <vector>

#include "platform/win32/wide.h"

namespace qm::platform::win32 {

// Wine does not count them. There, brushes are made until it has no more to give; the difference of two such
// numbers is the number of objects that came or went in between.
inline long GdiObjectCount() {
  if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
    return static_cast<long>(counted);
  std::vector<HBRUSH> room;
  room.reserve(0x10000);
  while (const HBRUSH brush = CreateSolidBrush(0)) room.push_back(brush);
  for (const HBRUSH brush : room) DeleteObject(brush);
  return -static_cast<long>(room.size());
}

}  // namespace qm::platform::win32
