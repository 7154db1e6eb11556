#include "tests/runtime/vectors.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using qm::test::Vector;

// Line numbers of rows in which the core answers otherwise on purpose, with the reason. There are none.
const std::set<int> kDeviations = {};

TEST(MeasuredValues, EveryRowIsAnsweredAsMeasured) {
  const std::vector<Vector> vectors = qm::test::ReadVectors();
  ASSERT_EQ(vectors.size(), 974U);  // all rows were read
  for (const Vector& vector : vectors) {
    const bool same = qm::test::Answer(vector) == vector.expected;
    EXPECT_EQ(same, !kDeviations.contains(vector.line))
        << "vectors.tsv:" << vector.line << " " << vector.function << ": expected " << vector.expected
        << ", answered " << qm::test::Answer(vector);
  }
}

}  // namespace
