#pragma once
// The public interface of the component as one table.
// Hosts are compiled against all of it: members are never renamed, renumbered or moved.

#include "automation/typelib/description.h"

namespace qm::api {

extern const automation::Interface kPrintFormFace;
extern const automation::Interface kPrintFormEventsFace;  // dispatch only
extern const automation::Interface kTablasFace;
extern const automation::Interface kCamposFace;
extern const automation::Interface kDatosTablaFace;
extern const automation::Interface kEmailFace;

extern const automation::Library kComponent;

}  // namespace qm::api
