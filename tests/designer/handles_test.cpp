#include "designer/handles.h"

#include <gmock/gmock.h>

#include "tests/designer/layouts.h"

namespace qm::designer {
namespace {

constexpr Box kField{1000, 2000, 600, 300};
constexpr float kSize = 90;

TEST(SizingHandles, StandOutsideTheFieldAndTouchIt) {
  const HandleBoxes handles = HandlesAround(kField, kSize);
  EXPECT_EQ(handles[1], (Box{910, 1910, 90, 90}));
  EXPECT_EQ(handles[2], (Box{1255, 1910, 90, 90}));
  EXPECT_EQ(handles[3], (Box{1600, 1910, 90, 90}));
  EXPECT_EQ(handles[4], (Box{1600, 2105, 90, 90}));
  EXPECT_EQ(handles[5], (Box{1600, 2300, 90, 90}));
  EXPECT_EQ(handles[6], (Box{1255, 2300, 90, 90}));
  EXPECT_EQ(handles[7], (Box{910, 2300, 90, 90}));
  EXPECT_EQ(handles[8], (Box{910, 2105, 90, 90}));
}

TEST(SizingHandles, OnlyThoseAtTheMiddlesOfEdgesCanBeDragged) {
  for (const int handle : {2, 4, 6, 8}) EXPECT_TRUE(CanBeDragged(handle)) << handle;
  for (const int handle : {0, 1, 3, 5, 7}) EXPECT_FALSE(CanBeDragged(handle)) << handle;
}

TEST(SizingHandles, ShowByThePointerWhichWayTheySize) {
  EXPECT_EQ(PointerOf(0), Pointer::Arrow);
  for (const int handle : {2, 6}) EXPECT_EQ(PointerOf(handle), Pointer::SizeNorthSouth) << handle;
  for (const int handle : {4, 8}) EXPECT_EQ(PointerOf(handle), Pointer::SizeWestEast) << handle;
  for (const int handle : {1, 3, 5, 7}) EXPECT_EQ(PointerOf(handle), Pointer::Corner) << handle;
}

TEST(SizingHandles, AreFoundByThePointWithinThem) {
  const HandleBoxes handles = HandlesAround(kField, kSize);
  for (int handle = 1; handle <= 8; ++handle) {
    const Box& box = handles[static_cast<std::size_t>(handle)];
    EXPECT_EQ(HandleAt(handles, {box.left, box.top}), handle);
    EXPECT_EQ(HandleAt(handles, {box.left + 89.0, box.top + 89.0}), handle);
  }
  EXPECT_EQ(HandleAt(handles, {1300, 2150}), 0) << "within the field";
  EXPECT_EQ(HandleAt(handles, {1100, 1950}), 0) << "between two handles";
}

TEST(SizingHandles, OfAFieldWithoutAnySizeCanStillBeDragged) {
  const Box empty{1000, 2000, 0, 0};
  const HandleBoxes handles = HandlesAround(empty, kSize);
  EXPECT_EQ(HandleAt(handles, {980, 1950}), 2) << "above the corner that lies there as well";
  EXPECT_EQ(HandleAt(handles, {1050, 2010}), 4);
  EXPECT_EQ(HandleAt(handles, {1020, 2050}), 6);
  EXPECT_EQ(HandleAt(handles, {950, 1990}), 8);
}

TEST(EdgeSizing, TheOppositeEdgeStays) {
  EXPECT_EQ(WithEdgeAt(kField, 2, 1800), (Box{1000, 1800, 600, 500}));
  EXPECT_EQ(WithEdgeAt(kField, 4, 1900), (Box{1000, 2000, 900, 300}));
  EXPECT_EQ(WithEdgeAt(kField, 6, 2400), (Box{1000, 2000, 600, 400}));
  EXPECT_EQ(WithEdgeAt(kField, 8, 900), (Box{900, 2000, 700, 300}));
}

TEST(EdgeSizing, AnEdgeStopsAtTheOppositeOneSoThatNoSizeIsNegative) {
  EXPECT_EQ(WithEdgeAt(kField, 2, 5000), (Box{1000, 2300, 600, 0}));
  EXPECT_EQ(WithEdgeAt(kField, 4, 0), (Box{1000, 2000, 0, 300}));
  EXPECT_EQ(WithEdgeAt(kField, 6, 0), (Box{1000, 2000, 600, 0}));
  EXPECT_EQ(WithEdgeAt(kField, 8, 5000), (Box{1600, 2000, 0, 300}));
}

TEST(EdgeSizing, CornersSizeNothing) {
  for (const int handle : {1, 3, 5, 7}) EXPECT_EQ(WithEdgeAt(kField, handle, 0), kField) << handle;
}

}  // namespace
}  // namespace qm::designer
