#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/services/clock.h"
#include "ferrowind/platform/services/dictionary.h"
#include "ferrowind/platform/services/locale.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/services/shared_services.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::contract {

/// One set of outside services, and an operator who answers every message at once. A new one, with an empty
/// store of settings, is made for every test.
class ServicesUnderTest {
 public:
  virtual ~ServicesUnderTest() = default;

  /// Makes the dictionary and the shared services; nothing is registered under "Nowhere.NoSuchClass". The
  /// dictionary "Ccy" has at least EUR (978, type 0), USD (840, type 0) and XAU (959, type 1).
  [[nodiscard]] virtual platform::ObjectFactory& Objects() = 0;
  [[nodiscard]] virtual const platform::Locale& Locale() = 0;
  [[nodiscard]] virtual const platform::Clock& Clock() = 0;
  /// What the dictionary must give as its connection string.
  [[nodiscard]] virtual std::string ConnectionString() = 0;

  /// A grid on a shown form, without columns.
  [[nodiscard]] virtual platform::Grid& Grid() = 0;
  /// Another grid of that name, without columns, as on a form that is opened anew; the one made by the call
  /// before is gone.
  [[nodiscard]] virtual platform::Grid& AnotherGrid() = 0;
  /// The text on the clipboard.
  [[nodiscard]] virtual std::string Clipboard() = 0;
  /// Makes the layout stored in the section unreadable.
  virtual void DamageLayout(const std::string& section) = 0;
  /// The texts of all messages and reports that the operator answered, in order.
  [[nodiscard]] virtual std::vector<std::string> AnsweredTexts() = 0;
};

/// Supplied by each adapter that the suite is built for.
[[nodiscard]] std::unique_ptr<ServicesUnderTest> MakeServicesUnderTest();

}  // namespace ferrowind::contract
