// Making a calendar database on a server.

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using platform::Failure;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class EmptyDatabase {
 public:
  EmptyDatabase() : name_(postgres_server::CreateEmptyDatabase()) {}
  EmptyDatabase(const EmptyDatabase&) = delete;
  EmptyDatabase& operator=(const EmptyDatabase&) = delete;
  ~EmptyDatabase() { postgres_server::DropDatabase(name_); }

  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(name_); }
  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] bool IsUntouched() const {
    return postgres_server::Ask(name_, "SELECT coalesce(to_regnamespace('ferrowind')::text, 'none')") ==
           "none";
  }

 private:
  std::string name_;
};

/// The login of an administrator who is no superuser, with these rights beside that to log in.
class Administrator {
 public:
  explicit Administrator(const std::string& rights) {
    postgres_server::Execute("postgres", "CREATE ROLE administrator LOGIN PASSWORD 'adm' " + rights);
  }
  Administrator(const Administrator&) = delete;
  Administrator& operator=(const Administrator&) = delete;
  ~Administrator() { postgres_server::Execute("postgres", "DROP ROLE administrator"); }

  [[nodiscard]] std::string UriOfOwn(const EmptyDatabase& database) const {
    postgres_server::Execute("postgres", "ALTER DATABASE " + database.Name() + " OWNER TO administrator");
    return postgres_server::Uri("administrator", "adm", database.Name());
  }
};

/// A server on which no calendar database has been created yet, as long as this lives.
class ServerWithoutRoles {
 public:
  ServerWithoutRoles() { Rename("ferrowind_", "kept_"); }
  ServerWithoutRoles(const ServerWithoutRoles&) = delete;
  ServerWithoutRoles& operator=(const ServerWithoutRoles&) = delete;
  ~ServerWithoutRoles() {
    postgres_server::Execute("postgres",
                             "DROP ROLE IF EXISTS ferrowind_owner, ferrowind_operator, ferrowind_reader");
    Rename("kept_", "ferrowind_");
  }

 private:
  static void Rename(const std::string& prefix, const std::string& new_prefix) {
    for (const std::string role : {"owner", "operator", "reader"}) {
      const std::string name = prefix + role;
      if (postgres_server::Ask("postgres",
                               "SELECT rolname::text FROM pg_roles WHERE rolname = '" + name + "'") == name) {
        postgres_server::Execute("postgres", "ALTER ROLE " + name + " RENAME TO " + new_prefix + role);
      }
    }
  }
};

void TakeLargeObjects(const EmptyDatabase& database) {
  postgres_server::Execute(database.Name(),
                           "REVOKE EXECUTE ON FUNCTION lo_creat(integer), lo_create(oid), lo_from_bytea(oid, "
                           "bytea) FROM PUBLIC");
}

/// What the check says where no superuser has taken from everybody what only a superuser can.
::testing::Matcher<std::vector<std::string>> FaultsThatTakeASuperuser() {
  return UnorderedElementsAre(HasSubstr("large objects by lo_creat(integer)"),
                              HasSubstr("large objects by lo_create(oid)"),
                              HasSubstr("large objects by lo_from_bytea(oid,bytea)"));
}

/// From version 16 on the right to create roles is none to the roles that others have created.
bool ServerKeepsOthersRolesFromAdministrators() {
  return postgres_server::Ask(
             "postgres", "SELECT (current_setting('server_version_num')::integer >= 160000)::text") == "true";
}

TEST(PostgresCreation, WhatFillsItIsPartOfTheCreation) {
  const EmptyDatabase database;
  postgres::CreateDatabaseObjects(database.Uri(), [](const std::shared_ptr<platform::Engine>& engine) {
    const auto connection = engine->Connect("postgresql://anywhere");
    EXPECT_EQ(connection->DescribeProcedure("CldIUMain").size(), 8U);
    const std::vector<platform::Value> inputs = {
        platform::Value(978), platform::Value(2026), {}, {}, {}, {}, {}};
    EXPECT_EQ(connection->Call("CldIUMain", inputs).return_value, 0);
    EXPECT_EQ(engine->Connect("")->Call("CldIUMain", inputs).return_value, 6);
    EXPECT_EQ(engine->Connect("")->Call("CldAllInfo", {}).record_sets.size(), 4U);
    EXPECT_EQ(connection->Call("CldAllInfo", {}).record_sets.at(0)->RowCount(), 1U);
    EXPECT_GT(engine->ReadDictionary("", "Ccy")->RowCount(), 150U);
  });
  EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT count(*)::text FROM ferrowind.CldDay"), "365");
  EXPECT_THAT(postgres::CheckDatabase(database.Uri()), IsEmpty());
}

TEST(PostgresCreation, ACreationThatFailsLeavesTheDatabaseEmpty) {
  const EmptyDatabase database;
  EXPECT_THROW(
      postgres::CreateDatabaseObjects(
          database.Uri(), [](const std::shared_ptr<platform::Engine>&) { throw Failure(5, "no more"); }),
      Failure);
  EXPECT_TRUE(database.IsUntouched());
  postgres::CreateDatabaseObjects(database.Uri());
}

TEST(PostgresCreation, ADatabaseThatIsNotEmptyIsRefusedAndStaysAsItIs) {
  const EmptyDatabase database;
  postgres_server::Execute(database.Name(), "CREATE TABLE public.orders (a integer)");
  EXPECT_THAT(FailureTextOf([&] { postgres::CreateDatabaseObjects(database.Uri()); }),
              HasSubstr("public.orders"));
  EXPECT_TRUE(database.IsUntouched());

  PostgresDatabase calendars;
  EXPECT_THAT(FailureTextOf(
                  [&] { postgres::CreateDatabaseObjects(postgres_server::SuperuserUri(calendars.Name())); }),
              HasSubstr("has a schema ferrowind already"));
  EXPECT_TRUE(calendars.IsSound());
}

TEST(PostgresCreation, TheSecondOfTwoAtTheSameTimeIsToldThatTheOtherWasFirst) {
  const std::string name = postgres_server::CreateEmptyDatabase();
  const std::string uri = postgres_server::SuperuserUri(name);
  postgres::ServerConnection first(uri);
  first.RunScript("BEGIN; CREATE SCHEMA ferrowind");
  std::string failure;
  std::thread second([&] { failure = FailureTextOf([&] { postgres::CreateDatabaseObjects(uri); }); });
  while (postgres_server::Ask(name, "SELECT pid FROM pg_locks WHERE NOT granted").empty()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  first.RunScript("COMMIT");
  second.join();
  EXPECT_THAT(failure,
              ::testing::HasSubstr("somebody else was making it one at the same time and was first"));
  postgres_server::DropDatabase(name);
}

TEST(PostgresCreation, ADatabaseOfAnotherEncodingIsRefused) {
  postgres_server::Execute("postgres",
                           "CREATE DATABASE test_latin ENCODING 'LATIN1' LOCALE 'C' TEMPLATE template0");
  EXPECT_THAT(
      FailureTextOf([] { postgres::CreateDatabaseObjects(postgres_server::SuperuserUri("test_latin")); }),
      HasSubstr("LATIN1"));
  postgres_server::DropDatabase("test_latin");
}

TEST(PostgresCreation, ALoginThatOwnsTheDatabaseAndMayCreateRolesIsEnough) {
  const ServerWithoutRoles server;
  const Administrator administrator("CREATEROLE");
  const EmptyDatabase first;
  const EmptyDatabase second;
  for (const EmptyDatabase* database : {&first, &second}) {
    const std::string uri = administrator.UriOfOwn(*database);
    postgres::CreateDatabaseObjects(uri);
    EXPECT_THAT(postgres::CheckDatabase(uri), FaultsThatTakeASuperuser());
    TakeLargeObjects(*database);
    EXPECT_THAT(postgres::CheckDatabase(uri), IsEmpty());
  }
}

TEST(PostgresCreation, ALoginThatMayCreateRolesIsEnoughWhereASuperuserCreatedAnotherDatabase) {
  const PostgresDatabase of_superuser;
  const Administrator administrator("CREATEROLE");
  if (ServerKeepsOthersRolesFromAdministrators()) {
    postgres_server::Execute("postgres", "GRANT ferrowind_owner TO administrator");
  }
  const EmptyDatabase database;
  const std::string uri = administrator.UriOfOwn(database);
  postgres::CreateDatabaseObjects(uri);
  EXPECT_THAT(postgres::CheckDatabase(uri), FaultsThatTakeASuperuser());
}

TEST(PostgresCreation, ALoginThatCannotBecomeAMemberOfTheOwnerIsToldWhatItNeeds) {
  const PostgresDatabase of_superuser;
  const Administrator administrator(ServerKeepsOthersRolesFromAdministrators() ? "CREATEROLE"
                                                                               : "NOCREATEROLE");
  const EmptyDatabase database;
  const std::string uri = administrator.UriOfOwn(database);
  EXPECT_THAT(FailureTextOf([&] { postgres::CreateDatabaseObjects(uri); }),
              HasSubstr("GRANT ferrowind_owner TO administrator"));
  EXPECT_TRUE(database.IsUntouched());
  postgres_server::Execute("postgres", "GRANT ferrowind_owner TO administrator");
  postgres::CreateDatabaseObjects(uri);
  EXPECT_THAT(postgres::CheckDatabase(uri), FaultsThatTakeASuperuser());
}

}  // namespace
}  // namespace ferrowind::contract
