#include "platform/text_batches.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace qm::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TextBox At(int left, int top, int face, int font) { return {left, top, left + 100, top + 20, face, font}; }

int FaceChanges(const std::vector<TextBox>& texts, const std::vector<std::size_t>& order) {
  int changes = 0;
  for (std::size_t i = 1; i < order.size(); ++i) changes += texts[order[i]].face != texts[order[i - 1]].face;
  return changes;
}

void ExpectPermutationThatKeepsOverlaps(const std::vector<TextBox>& texts,
                                        const std::vector<std::size_t>& order) {
  ASSERT_EQ(order.size(), texts.size());
  std::vector<std::size_t> place(texts.size(), texts.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    ASSERT_LT(order[i], texts.size());
    ASSERT_EQ(place[order[i]], texts.size()) << "text " << order[i] << " is drawn twice";
    place[order[i]] = i;
  }
  for (std::size_t a = 0; a < texts.size(); ++a)
    for (std::size_t b = a + 1; b < texts.size(); ++b)
      if (texts[a].Overlaps(texts[b])) {
        ASSERT_LT(place[a], place[b]) << "texts " << a << " and " << b;
      }
}

std::vector<TextBox> RandomTexts(std::mt19937& random, int count, int pageSide, int longest) {
  const auto pick = [&random](int below) {
    return static_cast<int>(random() % static_cast<std::uint32_t>(below));
  };
  std::vector<TextBox> texts;
  for (int i = 0; i < count; ++i) {
    TextBox text{.left = pick(pageSide) - pageSide / 4, .top = pick(pageSide) - pageSide / 4};
    text.right = text.left + pick(longest);
    text.bottom = text.top + pick(longest);
    text.face = pick(5);
    text.font = text.face * 3 + pick(3);
    texts.push_back(text);
  }
  return texts;
}

TEST(DrawingOrder, OfAnEmptyPageIsEmpty) { EXPECT_THAT(DrawingOrder({}), IsEmpty()); }

TEST(DrawingOrder, DrawsTheTextsOfAFaceTogether) {
  EXPECT_THAT(DrawingOrder({At(0, 0, 1, 1), At(0, 30, 2, 2), At(0, 60, 1, 1), At(0, 90, 2, 2)}),
              ElementsAre(0, 2, 1, 3));
}

TEST(DrawingOrder, DrawsTheTextsOfAFontTogetherWithinTheirFace) {
  EXPECT_THAT(DrawingOrder({At(0, 0, 1, 1), At(0, 30, 1, 2), At(0, 60, 2, 3), At(0, 90, 1, 1)}),
              ElementsAre(0, 3, 1, 2));
}

TEST(DrawingOrder, KeepsOverlappingTextsOfDifferentFacesInTheirOrder) {
  EXPECT_THAT(DrawingOrder({At(0, 0, 1, 1), At(50, 10, 2, 2), At(60, 15, 1, 1)}), ElementsAre(0, 1, 2));
}

TEST(DrawingOrder, KeepsOverlappingTextsOfOneFaceInTheirOrder) {
  EXPECT_THAT(DrawingOrder({At(0, 0, 1, 1), At(50, 10, 1, 2), At(60, 15, 1, 1)}), ElementsAre(0, 1, 2));
}

TEST(DrawingOrder, LetsATextJoinItsFaceAcrossTextsItDoesNotTouch) {
  EXPECT_THAT(DrawingOrder({At(0, 0, 1, 1), At(50, 10, 2, 2), At(500, 0, 1, 1)}), ElementsAre(0, 2, 1));
}

TEST(DrawingOrder, TakesTextsThatOnlyTouchAsSeparate) {
  EXPECT_THAT(DrawingOrder({At(0, 0, 1, 1), At(0, 20, 2, 2), At(0, 40, 1, 1)}), ElementsAre(0, 2, 1));
}

TEST(DrawingOrder, ChangesFaceOnceForEachFaceOnAPageOfSeparateLines) {
  std::vector<TextBox> texts;
  for (int line = 0; line < 60; ++line) texts.push_back(At(0, line * 24, line % 7, line % 8));
  EXPECT_EQ(FaceChanges(texts, DrawingOrder(texts)), 6);
}

TEST(DrawingOrder, OfAnyTextsIsAPermutationInWhichOverlappingTextsKeepTheirOrder) {
  std::mt19937 random(20151231);
  for (int round = 0; round < 400; ++round) {
    const int count = 1 + static_cast<int>(random() % 150);
    const int pageSide = 10 + static_cast<int>(random() % 2000);
    const int longest = 1 + static_cast<int>(random() % 300);
    const std::vector<TextBox> texts = RandomTexts(random, count, pageSide, longest);
    SCOPED_TRACE(round);
    ExpectPermutationThatKeepsOverlaps(texts, DrawingOrder(texts));
    if (HasFatalFailure()) return;
  }
}

TEST(DrawingOrder, OfManyTextsOnOneSpotKeepsTheirOrder) {
  std::vector<TextBox> texts;
  for (int i = 0; i < 3000; ++i) texts.push_back(At(0, 0, i % 3, i % 3));
  const std::vector<std::size_t> order = DrawingOrder(texts);
  EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(DrawingOrder, AcceptsPositionsAtTheEndsOfTheirRange) {
  const std::vector<TextBox> texts = {{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, 1, 1},
                                      {INT32_MAX - 1, 0, INT32_MAX, 10, 2, 2},
                                      {INT32_MIN, 0, INT32_MIN + 5, 10, 1, 1}};
  ExpectPermutationThatKeepsOverlaps(texts, DrawingOrder(texts));
}

}  // namespace
}  // namespace qm::platform
