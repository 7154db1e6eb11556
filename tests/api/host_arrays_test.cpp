// Arrays of the host, with bounds of their own.

#include "api/host_arrays.h"

#include <gtest/gtest.h>

#include <cstring>

#include "runtime/error.h"
#include "tests/api/component.h"
#include "tests/api/safe_array.h"
#include "tests/error_of.h"

namespace qm::tests {
namespace {

using api::HostArrays;

TEST(HostArrays, TheFirstIndexIsTheFileAndTheSecondTheFieldWithinTheirOwnBounds) {
  SafeArray values(VT_BSTR, {{5, 2}, {3, 1}});  // 5 files from 2, 3 fields from 1
  SafeArray types(VT_I2, {{9, -1}, {9, 0}});
  values.PutText({6, 3}, L"Muñoz");
  types.PutShort({6, 3}, -7);
  HostArrays arrays(values.Get(), types.Get());
  EXPECT_EQ(arrays.Value(6, 3), u"Muñoz");
  EXPECT_EQ(arrays.Value(2, 1), u"");
  EXPECT_EQ(arrays.Type(6, 3), -7);
  EXPECT_EQ(arrays.Type(-1, 0), 0);
  const std::pair<std::int16_t, std::int16_t> outside[] = {{1, 1}, {7, 1}, {2, 0}, {2, 4}};
  for (const auto& [file, field] : outside)
    EXPECT_EQ(ErrorOf([&, file = file, field = field] { (void)arrays.Value(file, field); }), 9)
        << file << field;
  EXPECT_EQ(ErrorOf([&] { (void)arrays.Type(-2, 0); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)arrays.Type(8, 0); }), 9);
}

TEST(HostArrays, AnArrayNeverDimensionedOrOfOtherDimensionsIsError9WhenItIsLookedAt) {
  SafeArray line(VT_BSTR, {{5, 0}});
  SafeArray cube(VT_I2, {{5, 0}, {5, 0}, {5, 0}});
  HostArrays none(nullptr, nullptr);
  HostArrays other(line.Get(), cube.Get());
  EXPECT_EQ(ErrorOf([&] { (void)none.Value(1, 1); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)none.Type(1, 1); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)other.Value(1, 1); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)other.Type(1, 1); }), 9);
}

TEST(HostArrays, ElementsOfOtherTypesConvert) {
  SafeArray values(VT_VARIANT, {{2, 1}, {5, 1}});
  values.Put({1, 1}, Value(1234.5));
  values.Put({1, 2}, Value(L"texto"));
  values.Put({1, 3}, Value::Null());
  values.Put({1, 4}, Value::Missing());
  SafeArray types(VT_VARIANT, {{2, 1}, {5, 1}});
  types.Put({1, 1}, Value(L"80"));
  types.Put({1, 2}, Value(2.5));
  types.Put({1, 3}, Value(40000L));
  types.Put({1, 4}, Value(L"tres"));
  HostArrays arrays(values.Get(), types.Get());
  EXPECT_EQ(arrays.Value(1, 1), u"1234,5");
  EXPECT_EQ(arrays.Value(1, 2), u"texto");
  EXPECT_EQ(ErrorOf([&] { (void)arrays.Value(1, 3); }), 94);
  EXPECT_EQ(ErrorOf([&] { (void)arrays.Value(1, 4); }), 13);
  EXPECT_EQ(arrays.Value(1, 5), u"");
  EXPECT_EQ(arrays.Type(1, 1), 80);
  EXPECT_EQ(arrays.Type(1, 2), 2);
  EXPECT_EQ(ErrorOf([&] { (void)arrays.Type(1, 3); }), 6);
  EXPECT_EQ(ErrorOf([&] { (void)arrays.Type(1, 4); }), 13);
  EXPECT_EQ(arrays.Type(1, 5), 0);

  SafeArray doubles(VT_R8, {{2, 1}, {2, 1}});
  SafeArray longs(VT_I4, {{2, 1}, {2, 1}});
  const double half = 0.5;
  doubles.PutPlain({1, 1}, &half);
  const LONG five = 5;
  longs.PutPlain({1, 1}, &five);
  HostArrays numbers(doubles.Get(), longs.Get());
  EXPECT_EQ(numbers.Value(1, 1), u"0,5");
  EXPECT_EQ(numbers.Type(1, 1), 5);
}

// Compiled hosts make their descriptors themselves: the last dimension stands first, the first one varies
// fastest, and nothing need say what plain numbers are.
TEST(HostArrays, OfACompiledHostAreReadWhereItPutTheElements) {
  struct Descriptor {
    USHORT dimensions, features;
    ULONG elementSize, locks;
    void* data;
    SAFEARRAYBOUND bounds[2];
  };
  static_assert(offsetof(Descriptor, bounds) == offsetof(SAFEARRAY, rgsabound));
  BSTR texts[2 * 3] = {};  // files 1 and 2, fields 1 to 3
  texts[1 + 2 * 2] = SysAllocString(L"fichero 2, campo 3");
  SHORT types[2 * 3] = {11, 21, 12, 22, 13, 23};
  Descriptor forTexts{2, FADF_STATIC | FADF_FIXEDSIZE | FADF_BSTR, sizeof(BSTR), 0, texts, {{3, 1}, {2, 1}}};
  Descriptor forTypes{2, FADF_STATIC | FADF_FIXEDSIZE, sizeof(SHORT), 0, types, {{3, 1}, {2, 1}}};
  {
    HostArrays arrays(reinterpret_cast<SAFEARRAY*>(&forTexts), reinterpret_cast<SAFEARRAY*>(&forTypes));
    EXPECT_EQ(arrays.Value(2, 3), u"fichero 2, campo 3");
    EXPECT_EQ(arrays.Value(1, 3), u"");
    EXPECT_EQ(arrays.Type(2, 3), 23);
    EXPECT_EQ(arrays.Type(1, 2), 12);
    EXPECT_EQ(ErrorOf([&] { (void)arrays.Type(3, 2); }), 9);
    EXPECT_EQ(forTexts.locks, 1U);
  }
  EXPECT_EQ(forTexts.locks, 0U);
  EXPECT_EQ(std::wcscmp(texts[5], L"fichero 2, campo 3"), 0);  // still the host's
  SysFreeString(texts[5]);
}

TEST(HostArrays, CannotBeTakenAwayWhileTheyAreUsed) {
  SafeArray values(VT_VARIANT, {{2, 1}, {2, 1}});
  HRESULT taken = S_OK;
  {
    HostArrays arrays(values.Get(), nullptr);
    taken = SafeArrayDestroyData(values.Get());
  }
  EXPECT_EQ(taken, DISP_E_ARRAYISLOCKED);
}

}  // namespace
}  // namespace qm::tests
