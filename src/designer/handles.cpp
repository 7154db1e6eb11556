#include "designer/handles.h"

#include <algorithm>

namespace qm::designer {

namespace {

enum Edge { kTop = 2, kRight = 4, kBottom = 6, kLeft = 8 };

}  // namespace

HandleBoxes HandlesAround(const Box& field, float size) {
  const float left = field.left - size, centre = field.left + (field.width - size) / 2, right = field.Right();
  const float top = field.top - size, middle = field.top + (field.height - size) / 2, bottom = field.Bottom();
  const auto at = [size](float x, float y) { return Box{x, y, size, size}; };
  return {Box{},
          at(left, top),
          at(centre, top),
          at(right, top),
          at(right, middle),
          at(right, bottom),
          at(centre, bottom),
          at(left, bottom),
          at(left, middle)};
}

int HandleAt(const HandleBoxes& handles, platform::Point at) {
  for (const int handle : {2, 4, 6, 8, 1, 3, 5, 7})
    if (Contains(handles[static_cast<std::size_t>(handle)], at)) return handle;
  return 0;
}

Pointer PointerOf(int handle) {
  switch (handle) {
    case 0:
      return Pointer::Arrow;
    case kTop:
    case kBottom:
      return Pointer::SizeNorthSouth;
    case kRight:
    case kLeft:
      return Pointer::SizeWestEast;
    default:
      return Pointer::Corner;
  }
}

Box WithEdgeAt(Box field, int handle, float position) {
  switch (handle) {
    case kTop:
      position = std::min(position, field.Bottom());
      field.height = field.Bottom() - position;
      field.top = position;
      break;
    case kRight:
      field.width = std::max(position - field.left, 0.0F);
      break;
    case kBottom:
      field.height = std::max(position - field.top, 0.0F);
      break;
    case kLeft:
      position = std::min(position, field.Right());
      field.width = field.Right() - position;
      field.left = position;
      break;
    default:
      break;
  }
  return field;
}

float EdgeOf(const Box& field, int handle) {
  switch (handle) {
    case kTop:
      return field.top;
    case kRight:
      return field.Right();
    case kBottom:
      return field.Bottom();
    default:
      return field.left;
  }
}

}  // namespace qm::designer
