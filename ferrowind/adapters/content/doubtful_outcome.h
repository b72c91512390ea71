#pragma once

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::content {

/// A failure at the end of a work, after which all of it may be kept: nobody told whether it is, or it is,
/// but not everywhere where it should be. Every other failure of a work that is kept whole or not at all
/// leaves the database as it was.
class DoubtfulOutcome : public platform::Failure {
 public:
  explicit DoubtfulOutcome(const platform::Failure& failure) : Failure(failure) {}
};

}  // namespace ferrowind::content
