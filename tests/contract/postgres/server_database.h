#pragma once

#include <string>

#include "tests/contract/database/database_with_history.h"

namespace ferrowind::contract {

/// A new calendar database without delivered rules on the server of the test, dropped at the end, whatever
/// engine calls it. Calls log in as an operator.
class ServerDatabase : public DatabaseWithHistoryUnderTest {
 public:
  /// It is a copy of the calendar database `model`.
  explicit ServerDatabase(const std::string& model);
  ServerDatabase(const ServerDatabase&) = delete;
  ServerDatabase& operator=(const ServerDatabase&) = delete;
  ~ServerDatabase() override;

  [[nodiscard]] std::string ConnectionStringFor(const std::string& procedure) override;
  void SetFirstDay(int first_day) override;
  void SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) override;
  [[nodiscard]] std::string UserName() override;

  [[nodiscard]] const std::string& Name() const { return name_; }
  /// Runs SQL as the superuser.
  void Execute(const std::string& sql);
  /// Adds the probe procedures.
  void AddProbes();

 private:
  /// The superuser's.
  [[nodiscard]] virtual std::string AdministratorsConnectionString() const = 0;

  std::string name_;
};

}  // namespace ferrowind::contract
