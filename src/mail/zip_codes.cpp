#include "mail/zip_codes.h"

#include <algorithm>

#include "platform/archiver.h"
#include "runtime/format.h"

namespace qm::mail {
namespace {

constexpr char16_t kSeparator = u'·';

// One separator is missing on purpose: 50 and 100 are one piece.
constexpr std::u16string_view kTable =
    u"XcdWarningGeneral (10)· XcdWarningNoZipFile (30) ·   XcdWarningFilesSkipped (40)·    "
    u"XcdWarningEmptyZipFile (50) XcdErrorNoZipFile (100)·    XcdErrorZipStruct (110)·    "
    u"XcdErrorMemory (120)·    XcdErrorBadCall (130)·    XcdErrorNothingToDo (140)·    "
    u"XcdErrorDiskFull (150)·    XcdErrorEOF (160)·    XcdErrorLibInUse (180)·    "
    u"XcdErrorUserAbort (190)·    XcdErrorTestFailed (200)·    XcdErrorZeroTested (210)·    "
    u"XcdErrorDLLNotFound (240)·    XcdErrorInternalLogic (250)·    XcdErrorTempFile (280)·    "
    u"XcdErrorParentDir (350)·    XcdErrorNameRepeat (370)·    XcdErrorLatest (380)·    "
    u"XcdErrorDOSError (400)·    XcdErrorMultidisk (410)·    XcdErrorWrongDisk (420)";

}  // namespace

std::u16string_view DescripcionErrorZip(int code) {
  const std::u16string digits = runtime::ToText(static_cast<std::int32_t>(code));
  for (std::size_t begin = 0; begin < kTable.size();) {
    const std::size_t end = std::min(kTable.find(kSeparator, begin), kTable.size());
    const std::u16string_view piece = kTable.substr(begin, end - begin);
    if (piece.find(digits) != std::u16string_view::npos) return piece;
    begin = end + 1;
  }
  return {};
}

std::u16string WithZipError(std::u16string text, int code) {
  using platform::ZipResult;
  if (code == static_cast<int>(ZipResult::Done) || code == static_cast<int>(ZipResult::NothingToDo))
    return text;
  if (!text.empty()) text += u"\r\n";
  return text.append(DescripcionErrorZip(code));
}

void AcumularErrorZip(int code) { (void)WithZipError({}, code); }

}  // namespace qm::mail
