#include "automation/typelib/description.h"

namespace qm::automation {

const Class& Library::ClassOf(const Interface& defaultFace) const {
  for (const Class& each : classes) {
    if (each.face == &defaultFace) return each;
  }
  return classes.front();
}

}  // namespace qm::automation
