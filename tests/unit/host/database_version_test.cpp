#include "host/delivery/database_version.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/statement.h"

#include "host/delivery/delivered_books.h"
#include "tests/contract/database/old_version.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::host {
namespace {

using contract::FailureTextOf;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class DatabaseVersionTest : public ::testing::Test {
 protected:
  void MakeOldDatabase(int version = 1) {
    std::ofstream(path_).close();
    sqlite::DatabaseHandle(path_).Execute(contract::OldVersionScript(version, "sqlite").c_str());
  }
  /// As version 3 had them, which knew no first years.
  void PutInBooksOfVersion3(const std::vector<almanac::NamedBook>& books) {
    const sqlite::DatabaseHandle database(path_);
    for (const almanac::NamedBook& named : books) {
      Insert(database, "INSERT INTO CldBook SELECT CcyID, ?2, ?3 FROM DicCcy WHERE Ccy = ?1",
             {named.name, named.book.publisher, named.book.document});
      std::int32_t position = 0;
      for (const almanac::BookRule& rule : named.book.rules) {
        Insert(database,
               "INSERT INTO CldRecurrence SELECT CcyID, ?2, ?3, ?4, ?5, nullif(?6, ''), nullif(?7, '')"
               " FROM DicCcy WHERE Ccy = ?1",
               {named.name, ++position, rule.name, static_cast<std::int32_t>(rule.kind),
                rule.expression.ToText(), rule.comment, rule.moved_name});
      }
    }
  }
  static void Insert(const sqlite::DatabaseHandle& database, const std::string& sql,
                     const std::vector<platform::Value>& values) {
    sqlite::Statement insert(database, sql);
    int index = 0;
    for (const platform::Value& value : values) insert.Bind(++index, value);
    insert.Step();
  }
  void MakeNewerDatabase() {
    sqlite::CreateDatabase(path_);
    sqlite::DatabaseHandle(path_).Execute("PRAGMA user_version = 99");
  }

  DatabaseVersionTest() { engines_.Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>()); }

  contract::TemporaryFolder folder_;
  platform::EngineRegistry engines_;
  std::string path_ = folder_.Path() + "/own.db";
  std::string url_ = "sqlite:" + path_;
};

TEST_F(DatabaseVersionTest, TheProgramsOwnDatabaseIsUpgraded) {
  MakeOldDatabase();
  UpgradeOwnDatabase(engines_, url_);
  EXPECT_THAT(sqlite::CheckDatabase(path_), IsEmpty());
  UpgradeOwnDatabase(engines_, url_);
  EXPECT_EQ(sqlite::ReadSchemaVersion(path_), 8);
}

TEST_F(DatabaseVersionTest, TheBooksOfTheProgramsOwnDatabaseLearnSinceWhenTheyHold) {
  MakeOldDatabase(3);
  {
    // What another one has changed is no delivered book.
    std::vector<almanac::NamedBook> books = DeliveredBooks();
    const auto euro = std::find_if(books.begin(), books.end(), [](auto& book) { return book.name == "EUR"; });
    euro->book.rules.pop_back();
    PutInBooksOfVersion3(books);
  }
  UpgradeOwnDatabase(engines_, url_);
  const sqlite::DatabaseHandle database(path_);
  sqlite::Statement ask(database,
                        "SELECT FromYear, count(*), min(ID1) FROM CldBook GROUP BY FromYear ORDER BY 1");
  ASSERT_TRUE(ask.Step());
  EXPECT_EQ(ask.Text(0), "");
  EXPECT_EQ(ask.Text(1), "1");
  EXPECT_EQ(ask.Text(2), "978");
  ASSERT_TRUE(ask.Step());
  EXPECT_EQ(ask.Text(0), "2015");
  EXPECT_EQ(ask.Text(1), "25");
}

TEST_F(DatabaseVersionTest, TheProgramsOwnDatabaseThatIsNewerIsToldAndStays) {
  MakeNewerDatabase();
  EXPECT_THAT(
      FailureTextOf([&] { UpgradeOwnDatabase(engines_, url_); }),
      AllOf(HasSubstr("own.db has the schema version 99"), HasSubstr("newer version of this program")));
  EXPECT_EQ(sqlite::ReadSchemaVersion(path_), 99);
}

TEST_F(DatabaseVersionTest, AnotherOlderDatabaseIsToldHowToUpgradeAndStays) {
  MakeOldDatabase();
  EXPECT_THAT(FailureTextOf([&] { RequireThisVersion(url_); }),
              AllOf(HasSubstr("own.db has the schema version 1"), HasSubstr("ferrowindctl upgrade")));
  EXPECT_EQ(sqlite::ReadSchemaVersion(path_), 1);
}

TEST_F(DatabaseVersionTest, AnotherNewerDatabaseIsTold) {
  MakeNewerDatabase();
  EXPECT_THAT(FailureTextOf([&] { RequireThisVersion(url_); }), HasSubstr("newer version of this program"));
}

TEST_F(DatabaseVersionTest, WhatCannotBeReadIsLeftToTheWindows) {
  for (const auto& url :
       {url_, "sqlite:" + folder_.Path(), std::string("postgresql://host.invalid/calendars"),
        std::string("other:thing"), std::string()}) {
    UpgradeOwnDatabase(engines_, url);
    RequireThisVersion(url);
  }
  std::ofstream(path_) << std::string(5000, 'x');
  UpgradeOwnDatabase(engines_, url_);
  RequireThisVersion(url_);
}

TEST_F(DatabaseVersionTest, ADatabaseOfThisVersionIsNotSpokenOf) {
  sqlite::CreateDatabase(path_);
  RequireThisVersion(url_);
  UpgradeOwnDatabase(engines_, url_);
}

}  // namespace
}  // namespace ferrowind::host
