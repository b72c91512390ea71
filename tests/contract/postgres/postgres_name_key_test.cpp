// The server compares names as the rest of the component does.

#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/postgres/result_reader.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

/// Whether the server's key of the name is the one of a name that the platform has folded.
std::string DifferencesBetweenFolds(const std::string& letters, const std::string& folded,
                                    const PostgresDatabase& database) {
  postgres::ServerConnection connection(postgres_server::SuperuserUri(database.Name()));
  const auto rows = postgres::ReadRecordSet(
      connection
          .Query("SELECT coalesce(string_agg(letter, ' '), '') FROM unnest(string_to_array($1, '|'), "
                 "string_to_array($2, '|')) AS pair (letter, folded)"
                 " WHERE ferrowind.NameKey(letter) <> sha256(convert_to(folded, 'UTF8'))",
                 {letters, folded})
          .get());
  return platform::ToText(rows->Cell(rows->BookmarkAt(0), 0));
}

TEST(PostgresNameKey, FoldsEveryLetterAsThePlatformDoes) {
  const PostgresDatabase database;
  const std::string letters = postgres_server::Ask(
      database.Name(),
      "SELECT string_agg('(' || chr(c) || ')', '|' ORDER BY c) FROM generate_series(1, 65535) AS c"
      " WHERE c NOT BETWEEN 55296 AND 57343 AND chr(c) <> '|'");
  ASSERT_GT(letters.size(), 100000U);
  EXPECT_EQ(DifferencesBetweenFolds(letters, platform::FoldCase(letters), database), "");
  EXPECT_EQ(DifferencesBetweenFolds("(A)|(B)", "(a)|(c)", database), "(B)") << "a difference is found";
}

TEST(PostgresNameKey, LeavesOutOuterBlanksAndNoOthers) {
  const PostgresDatabase database;
  EXPECT_EQ(postgres_server::Ask(database.Name(),
                                 "SELECT (ferrowind.NameKey('  a b ') = ferrowind.NameKey('A B'))::text"),
            "true");
  for (const std::string other : {"a  b", "a b\t", "ab", "a b\u00A0"}) {
    EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT (ferrowind.NameKey('a b') = ferrowind.NameKey('" +
                                                        other + "'))::text"),
              "false")
        << other;
  }
}

}  // namespace
}  // namespace ferrowind::contract
