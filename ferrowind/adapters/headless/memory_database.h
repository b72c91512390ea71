#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/memory_history.h"
#include "ferrowind/adapters/headless/memory_tables.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::headless {

/// A stored procedure in C++.
struct MemoryProcedure {
  /// Runs on the tables of a transaction; `inputs` are one value per input parameter, of its type or empty.
  using Body =
      std::function<platform::CallOutcome(MemoryTables& tables, const std::vector<platform::Value>& inputs)>;

  /// The calls of a recorded procedure that return 0 go into the history.
  enum class Kind { kUnrecorded, kRecorded };

  std::string name;
  /// The return value first, then the inputs by position.
  std::vector<platform::ParameterDescription> parameters;
  Body body;
  Kind kind = Kind::kUnrecorded;
};

/// That a database behaves like one whose server does not answer.
struct MemorySilence {
  /// What its watches tell; nothing while it answers.
  std::optional<std::chrono::milliseconds> until_next_try;
  int tries_asked_for = 0;
};

/// A calendar database in memory, with all procedures and what belongs to an empty one: currencies (a
/// choice of them), holiday types, the built-in rule and the setting.
class MemoryDatabase {
 public:
  MemoryDatabase();
  MemoryDatabase(const MemoryDatabase&) = delete;
  MemoryDatabase& operator=(const MemoryDatabase&) = delete;

  /// The tables, for a test to look at and to change outside any transaction.
  [[nodiscard]] MemoryTables& Tables() { return tables_; }
  /// A procedure of that name is replaced. `inputs` by position, names with their "@".
  void AddProcedure(const std::string& name,
                    const std::vector<std::pair<std::string, platform::ParameterType>>& inputs,
                    MemoryProcedure::Body body,
                    MemoryProcedure::Kind kind = MemoryProcedure::Kind::kUnrecorded);
  /// Of the calls; lives as long as the database.
  [[nodiscard]] const MemoryHistory& History() const { return history_; }
  /// Whom the history names for the calls from now on; "memory" at first.
  void SetUser(std::string user) { user_ = std::move(user); }
  [[nodiscard]] const std::string& User() const { return user_; }
  /// When the history says that the calls from now on were made, as it writes moments, none before an earlier
  /// one's; at first each when it is made.
  void SetMoment(std::string moment) { moment_ = std::move(moment); }
  /// For a test to set: while it is silent nobody can connect.
  [[nodiscard]] MemorySilence& Silence() { return silence_; }
  /// Found without regard to case; a failure that names it when there is none.
  [[nodiscard]] const MemoryProcedure& ProcedureNamed(const std::string& name) const;
  /// Calls it in a transaction, as `platform::Connection::Call` promises.
  [[nodiscard]] platform::CallOutcome Call(const std::string& procedure,
                                           const std::vector<platform::Value>& inputs);
  /// The dictionary table "Ccy"; a failure that names any other.
  [[nodiscard]] std::shared_ptr<platform::RecordSet> Dictionary(const std::string& name) const;

 private:
  void AddToHistory(const MemoryProcedure& procedure, const std::vector<platform::Value>& inputs,
                    MemoryChanges changes);

  MemoryTables tables_;
  MemoryHistory history_;
  std::string user_ = "memory";
  std::optional<std::string> moment_;
  MemorySilence silence_;
  std::vector<MemoryProcedure> procedures_;
};

}  // namespace ferrowind::headless
