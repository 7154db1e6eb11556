#pragma once
// The public interface of the record-file library as one table.
// Hosts are compiled against all of it: members are never renamed, renumbered or moved.

#include "automation/typelib/description.h"

namespace qm::qmfile2 {

extern const automation::Interface kRecordFileFace;

extern const automation::Library kRecordFileLibrary;

}  // namespace qm::qmfile2
