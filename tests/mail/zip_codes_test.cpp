#include "mail/zip_codes.h"

#include <gtest/gtest.h>

namespace qm::mail {
namespace {

struct Row {
  int code;
  std::u16string_view text;
};

TEST(ZipCodes, ACodeFindsTheFirstPieceWithItsDigitsAndKeepsItsBlanks) {
  for (const Row& row : {Row{10, u"XcdWarningGeneral (10)"},
                         {30, u" XcdWarningNoZipFile (30) "},
                         {40, u"   XcdWarningFilesSkipped (40)"},
                         {50, u"    XcdWarningEmptyZipFile (50) XcdErrorNoZipFile (100)"},
                         {110, u"    XcdErrorZipStruct (110)"},
                         {120, u"    XcdErrorMemory (120)"},
                         {130, u"    XcdErrorBadCall (130)"},
                         {140, u"    XcdErrorNothingToDo (140)"},
                         {150, u"    XcdErrorDiskFull (150)"},
                         {160, u"    XcdErrorEOF (160)"},
                         {180, u"    XcdErrorLibInUse (180)"},
                         {190, u"    XcdErrorUserAbort (190)"},
                         {200, u"    XcdErrorTestFailed (200)"},
                         {210, u"    XcdErrorZeroTested (210)"},
                         {240, u"    XcdErrorDLLNotFound (240)"},
                         {250, u"    XcdErrorInternalLogic (250)"},
                         {280, u"    XcdErrorTempFile (280)"},
                         {350, u"    XcdErrorParentDir (350)"},
                         {370, u"    XcdErrorNameRepeat (370)"},
                         {380, u"    XcdErrorLatest (380)"},
                         {400, u"    XcdErrorDOSError (400)"},
                         {410, u"    XcdErrorMultidisk (410)"},
                         {420, u"    XcdErrorWrongDisk (420)"}}) {
    EXPECT_EQ(DescripcionErrorZip(row.code), row.text) << row.code;
  }
}

TEST(ZipCodes, OneHundredSharesItsPieceWithFifty) {
  EXPECT_EQ(DescripcionErrorZip(100), u"    XcdWarningEmptyZipFile (50) XcdErrorNoZipFile (100)");
}

TEST(ZipCodes, AMissingCodeMayFindANeighbourOrNothing) {
  EXPECT_EQ(DescripcionErrorZip(20), u"    XcdErrorMemory (120)");
  EXPECT_EQ(DescripcionErrorZip(0), u"XcdWarningGeneral (10)");
  EXPECT_EQ(DescripcionErrorZip(1), u"XcdWarningGeneral (10)");
  EXPECT_EQ(DescripcionErrorZip(500), u"");
  EXPECT_EQ(DescripcionErrorZip(-10), u"");
}

TEST(ZipCodes, AccumulatingAddsALineForEveryCodeButSuccessAndNothingToDo) {
  std::u16string text = WithZipError({}, 0);
  text = WithZipError(text, 140);
  EXPECT_EQ(text, u"");
  text = WithZipError(text, 150);
  EXPECT_EQ(text, u"    XcdErrorDiskFull (150)");
  text = WithZipError(text, 400);
  EXPECT_EQ(text, u"    XcdErrorDiskFull (150)\r\n    XcdErrorDOSError (400)");
}

}  // namespace
}  // namespace qm::mail
