#pragma once
// The number of a model as hosts give it.

#include <windows.h>

#include <oaidl.h>

#include "data/print_job.h"

namespace qm::api {

// Errors: 13 and 6 for what is no number; Null and texts are judged where the model is looked up.
[[nodiscard]] data::ModelNumber ModelNumberOf(const VARIANT& value);

}  // namespace qm::api
