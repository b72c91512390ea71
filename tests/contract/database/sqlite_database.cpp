#include "tests/contract/database/sqlite_database.h"

#include <cstdlib>
#include <filesystem>
#include <random>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <pwd.h>
#include <unistd.h>
#endif

#include "ferrowind/adapters/sql_script/procedure_source.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/procedure_catalogue.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::contract {

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  std::filesystem::path path;
  do {
    path = std::filesystem::temp_directory_path() / ("ferrowind-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path));
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
  path_ = platform::FileName(path);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(platform::FilePath(path_), ignored);
}

std::string TemporaryFolder::File(const std::string& name) const {
  return platform::FileName(platform::FilePath(path_) / platform::FilePath(name));
}

SqliteDatabase::SqliteDatabase() { sqlite::CreateDatabase(Path()); }

void SqliteDatabase::SetFirstDay(int first_day) {
  Execute("UPDATE CldSetting SET FirstDay = " + std::to_string(first_day));
}

void SqliteDatabase::SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) {
  Execute("UPDATE DicCcy SET LastDay = " + (last_day ? '\'' + last_day->ToIso() + '\'' : "NULL") +
          " WHERE CcyID = " + std::to_string(currency));
}

bool SqliteDatabase::IsSound() {
  auto problems = sqlite::CheckDatabase(Path());
  for (const auto& name : added_procedures_) {
    std::erase(problems, "The procedure " + name + " does not belong to the schema");
  }
  for (const auto& problem : problems) ADD_FAILURE() << problem;
  return problems.empty();
}

std::string SqliteDatabase::UserName() {
#ifdef _WIN32
  return std::getenv("USERNAME");
#else
  return getpwuid(getuid())->pw_name;
#endif
}

void SqliteDatabase::Execute(const std::string& sql) { sqlite::DatabaseHandle(Path()).Execute(sql.c_str()); }

void SqliteDatabase::AddProcedure(const std::string& source) {
  const auto procedure = sql_script::ParseProcedureSource(source);
  sqlite::AddToCatalogue(sqlite::DatabaseHandle(Path()), procedure);
  added_procedures_.push_back(procedure.name);
}

std::unique_ptr<DatabaseUnderTest> MakeSqliteProbes() {
  auto database = std::make_unique<SqliteDatabase>();
  database->Execute("CREATE TABLE Probe (Small SMALLINT, Number INTEGER, Text TEXT, Day DATE)");
  database->AddProcedure(R"(-- procedure ProbeStore writes
-- parameter @Small int16
-- parameter @Number int32
-- parameter @Text text
-- parameter @Day date
INSERT INTO Probe (Small, Number, Text, Day) VALUES (:Small, :Number, :Text, :Day);)");
  database->AddProcedure(R"(-- procedure ProbeLoad reads
SELECT Small, Number, Text, Day FROM Probe ORDER BY rowid;
SELECT count(*) AS Count FROM Probe;)");
  database->AddProcedure(R"(-- procedure ProbeStoreAndReturn writes
-- parameter @Number int32
-- parameter @Outcome int32
INSERT INTO Probe (Number) VALUES (:Number);
SELECT Number FROM Probe;
SELECT :Outcome AS "@return";)");
  database->AddProcedure(R"(-- procedure ProbeStoreAndFail writes
-- parameter @Number int32
INSERT INTO Probe (Number) VALUES (:Number);
INSERT INTO NoSuchTable (Number) VALUES (:Number);)");
  return database;
}

}  // namespace ferrowind::contract
