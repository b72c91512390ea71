#include "tests/gui/windows/operator_desk.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/data/module_state.h"

#include "tests/gui/windows/office_rules.h"

namespace ferrowind::gui {
namespace {

/// Long enough to be waited for, short enough for a test.
constexpr std::chrono::milliseconds kBusyTimeout{30};

}  // namespace

OperatorDesk::OperatorDesk(Rules rules)
    : engine_(std::make_shared<sqlite::Engine>(kBusyTimeout)), platform_{objects_, commands_,
                                                                         toolkit_, locale_,
                                                                         clock_,   FERROWIND_SHARE} {
  sqlite::CreateDatabase(DatabasePath());
  if (rules == Rules::kOfOffice) BeginWith(std::string(embedded::kOfficeRules));
  engines_.Register(sqlite::Engine::kScheme, engine_);
  objects_.Register(platform::kDictionaryIdentifier, [this] {
    return std::make_shared<DesktopDictionary>(engines_, "sqlite:" + DatabasePath());
  });
  objects_.Register(platform::kSharedServicesIdentifier, [this] {
    return std::make_shared<qt::QtSharedServices>(qt::SettingsStore(SettingsPath()));
  });
  // Windows live on one thread for the whole program, so each desk starts that thread's state afresh.
  Module() = ModuleState();
}

OperatorDesk::~OperatorDesk() { Module() = ModuleState(); }

void OperatorDesk::BeginWith(const std::string& sql) {
  Execute(sql);
  known_problems_ = sqlite::CheckDatabase(DatabasePath());
}

void OperatorDesk::Execute(const std::string& sql) const {
  sqlite::DatabaseHandle(DatabasePath()).Execute(sql.c_str());
}

std::vector<std::string> OperatorDesk::Read(const std::string& sql) const {
  const sqlite::DatabaseHandle database(DatabasePath());
  sqlite::Statement statement(database, sql);
  std::vector<std::string> rows;
  while (statement.Step()) {
    std::string row;
    for (int column = 0; column < statement.ColumnCount(); ++column) {
      if (column > 0) row += '|';
      const bool is_null = sqlite3_column_type(statement.Get(), column) == SQLITE_NULL;
      row += is_null ? "-" : std::string(statement.Text(column));
    }
    rows.push_back(row);
  }
  return rows;
}

std::string OperatorDesk::ReadOne(const std::string& sql) const {
  const auto rows = Read(sql);
  return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " rows";
}

void OperatorDesk::Call(const std::string& procedure, const std::vector<platform::Value>& inputs) {
  const auto outcome = engine_->Connect("sqlite:" + DatabasePath())->Call(procedure, inputs);
  if (outcome.return_value != 0) {
    throw std::runtime_error(procedure + " returns " + std::to_string(outcome.return_value));
  }
}

bool OperatorDesk::IsDatabaseSound() const {
  bool is_sound = true;
  for (const auto& problem : sqlite::CheckDatabase(DatabasePath())) {
    if (std::ranges::find(known_problems_, problem) != known_problems_.end()) continue;
    ADD_FAILURE() << problem;
    is_sound = false;
  }
  return is_sound;
}

}  // namespace ferrowind::gui
