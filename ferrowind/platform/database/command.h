#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/parameter.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::platform {

/// The type of a command whose text is the name of a stored procedure.
inline constexpr std::int32_t kStoredProcedureCommand = 4;
/// The cursor location that makes record sets client-side copies.
inline constexpr std::int32_t kClientSideCursor = 3;
/// "No particular option" of `Command::Execute`, and "no particular lock" of `ResultCursor::Clone`.
inline constexpr std::int32_t kUnspecified = -1;
///@{
/// The states of a `ResultCursor`.
inline constexpr std::int32_t kStateClosed = 0;
inline constexpr std::int32_t kStateOpen = 1;
///@}

/// One of the record sets that an executed command produced, still held by the command's connection.
class FERROWIND_EXPORT ResultCursor {
 public:
  virtual ~ResultCursor() = default;

  /// `kStateOpen` or `kStateClosed`; a closed one has no rows to copy.
  [[nodiscard]] virtual std::int32_t State() const = 0;
  /// A copy of the record set that outlives the command and its connection. `lock_type` is `kUnspecified`.
  [[nodiscard]] virtual std::shared_ptr<RecordSet> CloneDetached(std::int32_t lock_type) = 0;
  /// The next record set of the same execution, or null behind the last one.
  [[nodiscard]] virtual std::unique_ptr<ResultCursor> NextRecordSet() = 0;
};

/// One call of a stored procedure: set up, executed once, read, dropped. Made by a `CommandFactory`.
///
/// Set the type, the text, the connection and the cursor location, refresh the parameters, set their values,
/// execute, read the return value. Every method may fail with a `Failure`. Nothing is shared between
/// commands, but for the connection where somebody has asked for that (`CommandFactory::ShareConnections`).
class FERROWIND_EXPORT Command {
 public:
  virtual ~Command() = default;

  /// Only `kStoredProcedureCommand` is supported; anything else is the failure Invalid argument.
  virtual void SetType(std::int32_t type) = 0;
  /// The name of the procedure.
  virtual void SetText(const std::string& text) = 0;
  /// Chooses the engine and opens the command's own new connection, or takes the one that is shared.
  virtual void SetConnection(const std::string& connection_string) = 0;
  /// Only `kClientSideCursor` is supported; anything else is the failure Invalid argument.
  virtual void SetCursorLocation(std::int32_t location) = 0;
  /// Asks the database for the procedure's parameters; all values are empty afterwards.
  virtual void RefreshParameters() = 0;
  /// Sets the value of the parameter of that name, "@" included, letter case ignored. An unknown name is the
  /// failure 3265 that names it; a value that does not fit the declared type is that conversion's failure,
  /// and the parameter keeps the value that it had.
  virtual void SetParameter(const std::string& name, const Value& value) = 0;
  /// Runs the procedure to completion. Null when it produced no record set. `options` is `kUnspecified`.
  [[nodiscard]] virtual std::unique_ptr<ResultCursor> Execute(std::int32_t options) = 0;
  /// The value of the parameter at that position; position 0 is the return value, empty before `Execute`.
  /// Subscript out of range when there is no such parameter.
  [[nodiscard]] virtual Value ParameterAt(std::int32_t position) const = 0;
};

/// Closes the shared connections when the last one of it is gone.
class FERROWIND_EXPORT SharedConnections {
 public:
  virtual ~SharedConnections() = default;
};

/// Makes the commands by which the component calls the procedures of its database.
class FERROWIND_EXPORT CommandFactory {
 public:
  virtual ~CommandFactory() = default;
  /// A new command, never null.
  [[nodiscard]] virtual std::unique_ptr<Command> CreateCommand() = 0;

  /// As long as what it returns lives, the factory's commands share one connection to each database, which
  /// the first of them opens. For calls that follow each other at once; each is a transaction of its own as
  /// ever. After a failure of a connection the next command opens a new one. Null when nothing is shared.
  [[nodiscard]] virtual std::shared_ptr<SharedConnections> ShareConnections() { return nullptr; }
};

}  // namespace ferrowind::platform
