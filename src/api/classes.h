#pragma once
// The classes of the component that hosts create.

#include <span>

#include "automation/class_factory.h"

namespace qm::api {

[[nodiscard]] std::span<const automation::Creatable> CreatableClasses() noexcept;

}  // namespace qm::api
