#pragma once

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/expect_failure.h"
#include "tests/contract/services/services_under_test.h"

namespace ferrowind::contract {

/// Holds the services under test.
class ServicesContract : public testing::Test {
 protected:
  /// A new object of that kind from the factory.
  template <typename Kind>
  [[nodiscard]] std::shared_ptr<Kind> Create(const char* programmatic_identifier) {
    auto object =
        std::dynamic_pointer_cast<Kind>(under_test->Objects().CreateObject(programmatic_identifier));
    if (object == nullptr)
      throw std::logic_error(std::string(programmatic_identifier) + " is of another kind");
    return object;
  }

  std::unique_ptr<ServicesUnderTest> under_test = MakeServicesUnderTest();
};

}  // namespace ferrowind::contract
