#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/database/silence_watch.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::platform {

/// What a procedure call gave.
struct FERROWIND_EXPORT CallOutcome {
  /// What the procedure returned; 0 is done, and anything else has changed nothing.
  std::int32_t return_value = 0;
  /// In the order in which the procedure produced them, none of them null. Empty when the return value is
  /// not 0.
  std::vector<std::shared_ptr<RecordSet>> record_sets;
};

/// One connection to a database, for one call or several that follow each other; closed when destroyed.
///
/// Every method fails with a `Failure` that keeps the engine's own code and text. A connection is used by one
/// thread.
class FERROWIND_EXPORT Connection {
 public:
  virtual ~Connection() = default;

  /// The parameters of `procedure`, the return value first and then the inputs by position, as the database
  /// declares them now. An unknown or ambiguous procedure is a failure that names it. Procedure names are
  /// found without regard to case.
  [[nodiscard]] virtual std::vector<ParameterDescription> DescribeProcedure(const std::string& procedure) = 0;

  /// Calls `procedure` in one transaction of its own: when it returns 0 everything it did is durable, when it
  /// returns another value or fails nothing is. `inputs` holds one value per input parameter in the order of
  /// their positions, each of the declared type or empty.
  [[nodiscard]] virtual CallOutcome Call(const std::string& procedure, const std::vector<Value>& inputs) = 0;
};

/// A kind of database, reached by connection strings of its own form.
class FERROWIND_EXPORT Engine {
 public:
  virtual ~Engine() = default;

  /// Opens the database that `connection_string` names. Failure when it cannot be opened; nothing is created.
  [[nodiscard]] virtual std::unique_ptr<Connection> Connect(const std::string& connection_string) = 0;

  /// The rows of the dictionary table `name` ("Ccy": `CcyID`, `Ccy`, `CcyType`, `Name`, ordered by `Ccy`);
  /// never null. An unknown dictionary is a failure that names it.
  [[nodiscard]] virtual std::shared_ptr<RecordSet> ReadDictionary(const std::string& connection_string,
                                                                  const std::string& name) = 0;

  /// As `ChangeWatchFactory` says.
  [[nodiscard]] virtual std::unique_ptr<ChangeWatch> Watch(const std::string& connection_string) = 0;
  /// As `ChangeWatchFactory` says. Files and the like are never silent.
  [[nodiscard]] virtual std::unique_ptr<SilenceWatch> WatchSilence(const std::string& /*connection_string*/) {
    return nullptr;
  }
};

}  // namespace ferrowind::platform
