#include "platform/win32/spooler.h"

#include <gmock/gmock.h>

namespace qm::platform::win32 {
namespace {

using ::testing::Contains;
using ::testing::Not;
using ::testing::SizeIs;

constexpr std::u16string_view kPrinter = u"Impresora A4";
constexpr std::u16string_view kNoPrinter = u"Impresora que no existe";

TEST(SpoolerForms, AreSupportedOnThisFamilyOfWindows) { EXPECT_TRUE(Win32Spooler().SupportsForms()); }

TEST(SpoolerForms, OfAPrinterAreListedByName) {
  const auto names = Win32Spooler().FormNames(kPrinter);
  ASSERT_TRUE(names.has_value());
  EXPECT_THAT(*names, SizeIs(testing::Ge(100U)));
  EXPECT_THAT(*names, Contains(u"A4"));
  EXPECT_THAT(*names, Not(Contains(std::u16string())));
}

TEST(SpoolerForms, OfAMissingPrinterAreNotListed) {
  EXPECT_EQ(Win32Spooler().FormNames(kNoPrinter), std::nullopt);
}

TEST(SpoolerForms, CannotBeAddedToNorDeletedFromAMissingPrinter) {
  EXPECT_FALSE(Win32Spooler().AddForm(kNoPrinter, {u"PS", 209982, 297142}).opened);
  EXPECT_FALSE(Win32Spooler().DeleteForm(kNoPrinter, u"PS").opened);
}

// Wine accepts both without doing anything, so the list is not looked at.
TEST(SpoolerForms, AreAddedAndDeletedOnAnOpenPrinter) {
  Win32Spooler spooler;
  const SpoolerOutcome added = spooler.AddForm(kPrinter, {u"PS", 209982, 297142});
  EXPECT_TRUE(added.opened);
  EXPECT_EQ(added.error, 0U);
  const SpoolerOutcome deleted = spooler.DeleteForm(kPrinter, u"PS");
  EXPECT_TRUE(deleted.opened);
  EXPECT_EQ(deleted.error, 0U);
}

}  // namespace
}  // namespace qm::platform::win32
