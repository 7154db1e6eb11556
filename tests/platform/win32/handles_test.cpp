#include "platform/win32/handles.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace qm::platform::win32 {
namespace {

std::vector<int>& Closed() {
  static std::vector<int> closed;
  return closed;
}

struct NumberRule {
  using Handle = int;
  static int None() { return -1; }
  static void Close(int number) { Closed().push_back(number); }
};
using Number = Owned<NumberRule>;

struct OwnersOfHandles : testing::Test {
  OwnersOfHandles() { Closed().clear(); }
};

TEST_F(OwnersOfHandles, CannotBeCopied) {
  EXPECT_FALSE(std::is_copy_constructible_v<Number>);
  EXPECT_FALSE(std::is_copy_assignable_v<Number>);
  EXPECT_FALSE(std::is_copy_constructible_v<SelectedObject>);
  EXPECT_FALSE(std::is_copy_constructible_v<ScreenDc>);
  EXPECT_FALSE(std::is_copy_constructible_v<ActivatedContext>);
}

TEST_F(OwnersOfHandles, GiveTheirHandleBackOnce) {
  {
    Number first(1);
    Number second(std::move(first));
    EXPECT_EQ(second.Get(), 1);
  }
  EXPECT_EQ(Closed(), std::vector<int>{1});
}

TEST_F(OwnersOfHandles, GiveTheOldHandleBackForANewOne) {
  {
    Number owner(1);
    owner = Number(2);
    owner.Reset(3);
    EXPECT_EQ(Closed(), (std::vector<int>{1, 2}));
  }
  EXPECT_EQ(Closed(), (std::vector<int>{1, 2, 3}));
}

TEST_F(OwnersOfHandles, GiveNothingBackThatWasReleasedOrNeverThere) {
  {
    Number released(1);
    EXPECT_EQ(released.Release(), 1);
    const Number empty;
    EXPECT_FALSE(static_cast<bool>(empty));
  }
  EXPECT_TRUE(Closed().empty());
}

TEST_F(OwnersOfHandles, SelectionsAreUndoneAtTheEndOfTheirScope) {
  const OwnedDc dc(CreateCompatibleDC(nullptr));
  const HGDIOBJ before = GetCurrentObject(dc.Get(), OBJ_FONT);
  const OwnedFont font(CreateFontW(-20, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Arial"));
  {
    const SelectedObject selected(dc.Get(), font.Get());
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_FONT), static_cast<HGDIOBJ>(font.Get()));
  }
  EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_FONT), before);
}

}  // namespace
}  // namespace qm::platform::win32
