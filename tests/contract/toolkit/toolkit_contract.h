#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/contract/expect_failure.h"
#include "tests/contract/toolkit/contract_forms.h"
#include "tests/contract/toolkit/toolkit_under_test.h"

namespace ferrowind::contract {

/// What handlers noted, in order.
using Notes = std::vector<std::string>;

/// Holds the toolkit under test and its contract form, which is shown.
class ToolkitContract : public testing::Test {
 protected:
  ToolkitContract() : form(under_test->Toolkit().CreateForm(ContractForm())) { form->Show(); }

  /// A control of the contract form.
  template <typename Kind>
  [[nodiscard]] Kind& The(const std::string& name) {
    return platform::ControlOf<Kind>(*form, name);
  }
  /// A handler that notes `what`.
  [[nodiscard]] std::function<void()> Note(const std::string& what) {
    return [this, what] { notes.push_back(what); };
  }
  /// A handler that notes `what` and the text that it is given.
  [[nodiscard]] std::function<void(const std::string&)> NoteKey(const std::string& what) {
    return [this, what](const std::string& key) { notes.push_back(what + " " + key); };
  }

  std::unique_ptr<ToolkitUnderTest> under_test = MakeToolkitUnderTest();
  platform::Toolkit& toolkit = under_test->Toolkit();
  std::shared_ptr<platform::Form> form;
  Notes notes;
};

}  // namespace ferrowind::contract
