#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::contract {

/// A database of the engine that the contract of `platform::Engine` is tried on. It holds the currencies, and
/// the probe procedures, which every engine brings in its own language:
///
///  - ProbeStore(@Small int16, @Number int32, @Text text, @Day date) writes: appends a row of those values to
///  the table
///    of the probes; no record set.
///  - ProbeLoad() reads: 1 the rows in the order of their storing, fields `Small` (int16), `Number` (int32),
///  `Text`,
///    `Day` (date); 2 a row with the field `Count` (int32), their number.
///  - ProbeStoreAndReturn(@Number int32, @Outcome int32) writes: appends a row of that number, selects it as
///  a record
///    set, and returns Outcome.
///  - ProbeStoreAndFail(@Number int32) writes: appends a row of that number and then fails.
class DatabaseUnderTest {
 public:
  virtual ~DatabaseUnderTest() = default;
  [[nodiscard]] virtual platform::Engine& Engine() = 0;
  /// An operator's.
  [[nodiscard]] virtual std::string ConnectionString() = 0;
  /// That of somebody who may call the procedure whatever it is to change: an administrator's where an
  /// operator may not.
  [[nodiscard]] virtual std::string ConnectionStringFor(const std::string& /*procedure*/) {
    return ConnectionString();
  }
};

/// An empty calendar database, on which the four procedures are tried.
class CalendarDatabaseUnderTest : public DatabaseUnderTest {
 public:
  /// Sets the setting `FirstDay`, which no procedure changes.
  virtual void SetFirstDay(int first_day) = 0;
  /// Sets or takes away the last day of a currency, as an upgrade does whatever calendars there are, and no
  /// procedure. What is not taken away again is a fault to the check, since no call made it.
  virtual void SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) = 0;
  /// Whether the database finds itself sound, as after every call it must; true where an engine has no such
  /// check.
  [[nodiscard]] virtual bool IsSound() = 0;
};

/// How a suite gets the new database of each of its tests.
template <typename Database>
struct DatabaseKind {
  std::string name;
  std::function<std::unique_ptr<Database>()> make;
};

template <typename Database>
void PrintTo(const DatabaseKind<Database>& kind, std::ostream* stream) {
  *stream << kind.name;
}

/// Names the tests of a suite after its kind of database.
template <typename Kind>
std::string KindName(const ::testing::TestParamInfo<Kind>& info) {
  return info.param.name;
}

}  // namespace ferrowind::contract
