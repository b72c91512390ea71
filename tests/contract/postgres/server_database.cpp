#include "tests/contract/postgres/server_database.h"

#include <exception>

#include <gtest/gtest.h>

#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {

ServerDatabase::ServerDatabase(const std::string& model) : name_(postgres_server::CreateDatabaseLike(model)) {
  postgres_server::EnsureOperator();
}

ServerDatabase::~ServerDatabase() {
  try {
    postgres_server::DropDatabase(name_);
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
}

std::string ServerDatabase::ConnectionStringFor(const std::string& procedure) {
  // Only administrators change the lists of currencies and conventions, and so undo such a change.
  const bool is_administrators =
      procedure == "CldIUCurrency" || procedure == "CldIUConvention" || procedure == "CldUndo";
  return is_administrators ? AdministratorsConnectionString() : ConnectionString();
}

void ServerDatabase::SetFirstDay(int first_day) {
  Execute("UPDATE ferrowind.CldSetting SET FirstDay = " + std::to_string(first_day));
}

void ServerDatabase::SetLastDay(std::int32_t currency, std::optional<platform::Date> last_day) {
  Execute("UPDATE ferrowind.DicCcy SET LastDay = " + (last_day ? '\'' + last_day->ToIso() + '\'' : "NULL") +
          " WHERE CcyID = " + std::to_string(currency));
}

std::string ServerDatabase::UserName() { return postgres_server::kOperator; }

void ServerDatabase::Execute(const std::string& sql) { postgres_server::Execute(name_, sql); }

void ServerDatabase::AddProbes() {
  Execute(R"(
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
}

}  // namespace ferrowind::contract
