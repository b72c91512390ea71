#pragma once

#include <memory>

#include "ferrowind/adapters/automation/surroundings.h"

namespace ferrowind::host {

/// The composition root of the component's file: the adapters that a control runs on whose host created it by
/// name.
[[nodiscard]] std::unique_ptr<automation::Surroundings> MakeComponentSurroundings();

}  // namespace ferrowind::host
