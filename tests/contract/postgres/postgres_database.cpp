#include "tests/contract/postgres/postgres_database.h"

#include <utility>

#include <gtest/gtest.h>

#include "ferrowind/adapters/postgres/database_objects.h"

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {

namespace {

/// A calendar database that all of a program's are copies of.
const std::string& Model() {
  static const std::string name = [] {
    std::string created = postgres_server::CreateEmptyDatabase();
    postgres::CreateDatabaseObjects(postgres_server::SuperuserUri(created));
    return created;
  }();
  return name;
}

}  // namespace

PostgresDatabase::PostgresDatabase(std::string more)
    : name_(postgres_server::CreateDatabaseLike(Model())), more_(std::move(more)) {
  postgres_server::EnsureOperator();
}

PostgresDatabase::~PostgresDatabase() {
  try {
    postgres_server::DropDatabase(name_);
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
}

std::string PostgresDatabase::ConnectionString() { return postgres_server::OperatorUri(name_) + more_; }

std::string PostgresDatabase::ConnectionStringFor(const std::string& procedure) {
  // Only administrators change the lists of currencies and conventions, and so undo such a change.
  const bool is_administrators =
      procedure == "CldIUCurrency" || procedure == "CldIUConvention" || procedure == "CldUndo";
  return is_administrators ? postgres_server::SuperuserUri(name_) : ConnectionString();
}

void PostgresDatabase::SetFirstDay(int first_day) {
  Execute("UPDATE ferrowind.CldSetting SET FirstDay = " + std::to_string(first_day));
}

void PostgresDatabase::SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) {
  Execute("UPDATE ferrowind.DicCcy SET LastDay = " + (last_day ? '\'' + last_day->ToIso() + '\'' : "NULL") +
          " WHERE CcyID = " + std::to_string(currency));
}

bool PostgresDatabase::IsSound() {
  const auto problems = postgres::CheckDatabase(postgres_server::SuperuserUri(name_));
  for (const auto& problem : problems) ADD_FAILURE() << problem;
  return problems.empty();
}

std::string PostgresDatabase::UserName() { return postgres_server::kOperator; }

void PostgresDatabase::Execute(const std::string& sql) { postgres_server::Execute(name_, sql); }

std::unique_ptr<DatabaseUnderTest> MakePostgresProbes(const std::string& more) {
  auto database = std::make_unique<PostgresDatabase>(more);
  database->Execute(R"(
SET search_path = ferrowind;
CREATE TABLE Probe (Position integer GENERATED ALWAYS AS IDENTITY, Small smallint, Number integer, Text text, Day date);

CREATE PROCEDURE ProbeStore("Small" smallint, "Number" integer, "Text" text, "Day" date, INOUT "RETURN_VALUE" integer)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp AS $$
BEGIN
  INSERT INTO Probe (Small, Number, Text, Day) VALUES ("Small", "Number", "Text", "Day");
  "RETURN_VALUE" := 0;
END $$;

CREATE PROCEDURE ProbeLoad(INOUT "RETURN_VALUE" integer, INOUT "Rows" refcursor, INOUT "Counts" refcursor)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp AS $$
BEGIN
  OPEN "Rows" FOR
    SELECT Small AS "Small", Number AS "Number", Text AS "Text", Day AS "Day" FROM Probe ORDER BY Position;
  OPEN "Counts" FOR SELECT count(*)::integer AS "Count" FROM Probe;
  "RETURN_VALUE" := 0;
END $$;

CREATE PROCEDURE ProbeStoreAndReturn("Number" integer, "Outcome" integer, INOUT "RETURN_VALUE" integer,
  INOUT "Rows" refcursor)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp AS $$
BEGIN
  INSERT INTO Probe (Number) VALUES ("Number");
  OPEN "Rows" FOR SELECT Number AS "Number" FROM Probe;
  "RETURN_VALUE" := "Outcome";
END $$;

CREATE PROCEDURE ProbeStoreAndFail("Number" integer, INOUT "RETURN_VALUE" integer)
LANGUAGE plpgsql SECURITY DEFINER SET search_path = ferrowind, pg_temp AS $$
BEGIN
  INSERT INTO Probe (Number) VALUES ("Number");
  INSERT INTO NoSuchTable (Number) VALUES ("Number");
  "RETURN_VALUE" := 0;
END $$;

REVOKE ALL ON ALL ROUTINES IN SCHEMA ferrowind FROM PUBLIC;
GRANT EXECUTE ON PROCEDURE ProbeStore, ProbeLoad, ProbeStoreAndReturn, ProbeStoreAndFail TO ferrowind_operator;
)");
  return database;
}

}  // namespace ferrowind::contract
