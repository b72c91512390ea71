#include "tests/contract/postgres/copy_end.h"

#include <chrono>
#include <filesystem>
#include <string_view>

#include <gtest/gtest.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

bool AreNone(const std::vector<std::string>& problems) {
  for (const auto& problem : problems) ADD_FAILURE() << problem;
  return problems.empty();
}

}  // namespace

void FileEnd::Create() { sqlite::CreateDatabase(Path()); }

void FileEnd::Execute(const std::string& sql) {
  // Nothing here shall wait long for another one.
  sqlite::DatabaseHandle(Path(), std::chrono::milliseconds(200)).Execute(sql.c_str());
}

std::string FileEnd::SpoilDays() {
  Execute(
      "CREATE TRIGGER Spoil AFTER INSERT ON CldDay BEGIN"
      " UPDATE CldDay SET Comment = 'spoilt' WHERE ID1 = NEW.ID1 AND Year1 = NEW.Year1 AND Day1 = NEW.Day1;"
      " END");
  return "holds the trigger Spoil, which is not this program's";
}

void FileEnd::LeaveDaysAlone() { Execute("DROP TRIGGER Spoil"); }

void FileEnd::TakeHistoryAway() { Execute("PRAGMA foreign_keys = OFF; DROP TABLE CldHistory"); }

void FileEnd::SetSchemaVersion(int version) { Execute("PRAGMA user_version = " + std::to_string(version)); }

bool FileEnd::IsVacant() { return std::filesystem::is_empty(folder_.Path()); }

std::string FileEnd::OtherConnectionString() {
  const std::string link = folder_.Path() + "/link.db";
  std::filesystem::create_symlink(Path(), link);
  return "sqlite:" + link;
}

bool FileEnd::IsSound() { return AreNone(sqlite::CheckDatabase(Path())); }

ServerEnd::ServerEnd() : name_(postgres_server::CreateEmptyDatabase()) {}

ServerEnd::~ServerEnd() { postgres_server::DropDatabase(name_); }

std::string ServerEnd::ConnectionString() { return postgres_server::SuperuserUri(name_); }

void ServerEnd::Create() { postgres::CreateDatabaseObjects(ConnectionString()); }

void ServerEnd::Execute(const std::string& sql) {
  postgres_server::Execute(name_, "SET search_path = ferrowind; " + sql);
}

std::string ServerEnd::SpoilDays() {
  Execute(
      "CREATE FUNCTION Spoil() RETURNS trigger LANGUAGE plpgsql"
      " AS $$ BEGIN NEW.Comment := 'spoilt'; RETURN NEW; END $$;"
      "CREATE TRIGGER Spoil BEFORE INSERT ON CldDay FOR EACH ROW EXECUTE FUNCTION Spoil()");
  return "row 1 of CldDay";
}

void ServerEnd::LeaveDaysAlone() { Execute("DROP TRIGGER Spoil ON CldDay"); }

void ServerEnd::TakeHistoryAway() { Execute("ALTER TABLE CldHistory RENAME TO Gone"); }

void ServerEnd::SetSchemaVersion(int version) {
  Execute("UPDATE SchemaVersion SET Version = " + std::to_string(version));
}

bool ServerEnd::IsVacant() {
  return postgres_server::Ask(name_, "SELECT coalesce(to_regnamespace('ferrowind')::text, 'none')") == "none";
}

std::string ServerEnd::OtherConnectionString() { return ConnectionString() + "?application_name=other"; }

bool ServerEnd::IsSound() { return AreNone(postgres::CheckDatabase(ConnectionString())); }

}  // namespace ferrowind::contract
