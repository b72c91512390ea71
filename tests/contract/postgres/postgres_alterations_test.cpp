// That the check names whatever is altered, tried with alterations made from the server's catalogues: an
// object that is added to the schema is altered without anybody having thought of it.

#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/postgres/alterations.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A calendar database that is made once; copies of it are altered.
class PostgresAlterations : public ::testing::Test {
 protected:
  PostgresAlterations() { Superuser("postgres").RunScript("CREATE ROLE stranger"); }
  ~PostgresAlterations() override {
    DropCopy();
    Superuser("postgres").RunScript("DROP ROLE stranger");
  }

  [[nodiscard]] static postgres::ServerConnection Superuser(const std::string& database) {
    return postgres::ServerConnection(postgres_server::SuperuserUri(database));
  }
  void DropCopy() {
    if (!copy_.empty()) postgres_server::DropDatabase(copy_);
  }

  void MakeCopy() {
    DropCopy();
    copy_ = postgres_server::CreateDatabaseLike(database_.Name());
  }

  [[nodiscard]] static std::vector<std::string> Problems(const std::string& database) {
    return postgres::CheckDatabase(postgres_server::SuperuserUri(database));
  }

  /// Whether one of the problems is of the object, and not of one whose name begins with its name.
  [[nodiscard]] static bool IsNamed(const std::string& object, const std::vector<std::string>& problems) {
    for (const auto& problem : problems) {
      const auto place = problem.find(object);
      if (place == std::string::npos) continue;
      const auto end = place + object.size();
      if (end == problem.size() || problem[end] == ' ' || problem[end] == ',') return true;
    }
    return false;
  }

  PostgresDatabase database_;
  std::string copy_;
};

TEST_F(PostgresAlterations, OfEveryObjectInEveryWayAreNamed) {
  const auto rounds = AlterationsOf(database_.Name());
  MakeCopy();
  ASSERT_THAT(Problems(copy_), IsEmpty());
  std::set<std::string> objects;
  for (const auto& round : rounds) {
    ASSERT_FALSE(round.empty());
    MakeCopy();
    {
      auto superuser = Superuser(copy_);
      superuser.RunScript("SET allow_system_table_mods = on; SET check_function_bodies = off");
      for (const auto& [object, sql] : round) {
        SCOPED_TRACE(sql);
        superuser.RunScript(sql);
      }
    }
    const auto problems = Problems(copy_);
    for (const auto& [object, sql] : round) {
      EXPECT_TRUE(IsNamed(object, problems)) << sql;
      objects.insert(object);
    }
  }
  // So that a question of the catalogues that finds nothing is no success.
  EXPECT_THAT(objects, SizeIs(::testing::Gt(200u)));
}

TEST_F(PostgresAlterations, OfRolesMembershipsAndSettingsAreNamed) {
  auto superuser = Superuser(database_.Name());
  superuser.RunScript("SET allow_system_table_mods = on");
  for (const auto& round : RoleAlterations(database_.Name(), postgres_server::kOperator)) {
    ASSERT_FALSE(round.empty());
    for (const auto& alteration : round) superuser.RunScript(alteration.sql);
    const auto problems = Problems(database_.Name());
    for (const auto& alteration : round) {
      EXPECT_TRUE(IsNamed(alteration.object, problems)) << alteration.sql;
      superuser.RunScript(alteration.undo);
    }
  }
  EXPECT_THAT(Problems(database_.Name()), IsEmpty());
}

}  // namespace
}  // namespace ferrowind::contract
