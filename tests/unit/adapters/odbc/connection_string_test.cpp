#include "ferrowind/adapters/odbc/connection_string.h"

#include <chrono>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/support/failure_of.h"

namespace ferrowind::odbc {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(ConnectionString, HasItsKeywordsWhateverTheirLetterCaseAndTheFirstOfEach) {
  const ConnectionString text("Driver={Some Driver}; Server = db.example ;port=5433;PORT=1");
  EXPECT_EQ(text.ValueOf("DRIVER"), "Some Driver");
  EXPECT_EQ(text.ValueOf("server"), "db.example");
  EXPECT_EQ(text.ValueOf("Port"), "5433");
  EXPECT_EQ(text.ValueOf("Database"), "");
}

TEST(ConnectionString, TakesEverySignInBraces) {
  EXPECT_EQ(ConnectionString("DSN=x;PWD={a;b=c{d}}e }} }; UID=clerk").ValueOf("PWD"), "a;b=c{d}e } ");
  EXPECT_EQ(ConnectionString("DSN=x;PWD={}").ValueOf("PWD"), "");
  EXPECT_EQ(ConnectionString("DSN=x;PWD=a{b}c").ValueOf("PWD"), "a{b}c");
  EXPECT_EQ(ConnectionString("PWD={}}}").ValueOf("PWD"), "}");
}

TEST(ConnectionString, GivesTheDriverWhatWasWrittenButItsOwnKeyword) {
  EXPECT_EQ(ConnectionString("DSN=x; PWD={a;b} ;CallTimeout=7;;UID=clerk;").ForDriver(),
            "DSN=x;PWD={a;b} ;UID=clerk;LFConversion=0;");
  EXPECT_EQ(ConnectionString("DSN=x;lfconversion=1").ForDriver(), "DSN=x;lfconversion=1;");
}

TEST(ConnectionString, WaitsAsLongAsItSays) {
  EXPECT_EQ(ConnectionString("DSN=x").CallTimeout(), std::chrono::seconds(5));
  EXPECT_EQ(ConnectionString("DSN=x;calltimeout= 90 ").CallTimeout(), std::chrono::seconds(90));
  for (const std::string seconds : {"0", "-1", "3601", "1.5", "soon", "", "99999999999"}) {
    EXPECT_THAT(FailureOf([&] { ConnectionString("DSN=x;CallTimeout=" + seconds); }).Description(),
                HasSubstr("CallTimeout"))
        << seconds;
  }
}

TEST(ConnectionString, NamesItsDatabaseAsFarAsItSays) {
  EXPECT_EQ(ConnectionString("Driver=x;Server=db;Port=5433;Database=calendars").DatabaseName(),
            "The database calendars at db:5433");
  EXPECT_EQ(ConnectionString("DSN=Calendars;PWD=s3cret").DatabaseName(),
            "The database of the data source Calendars");
  EXPECT_EQ(ConnectionString("Driver=x;Servername=db").DatabaseName(), "The database at db");
  EXPECT_EQ(ConnectionString("FileDSN=x").DatabaseName(), "The database");
}

TEST(ConnectionString, QuotesNothingOfATextThatItDoesNotUnderstand) {
  for (const std::string text : {"s3cret", "DSN=x;PWD=a;s3cret", "DSN=x;PWD={s3cret", "DSN=x;PWD={a}s3cret",
                                 "=s3cret", "DSN=x;PWD={s3}cret}", "DSN=x;PWD=\xFFs3cret"}) {
    const std::string description = FailureOf([&] { (ConnectionString(text)); }).Description();
    EXPECT_THAT(description, HasSubstr("is not understood")) << text;
    EXPECT_THAT(description, Not(HasSubstr("s3cret"))) << text;
    EXPECT_THAT(description, Not(HasSubstr("cret"))) << text;
  }
  EXPECT_THAT(FailureOf([&] { (ConnectionString(std::string("DSN=x\0;PWD=s3cret", 17))); }).Description(),
              Not(HasSubstr("s3cret")));
}

}  // namespace
}  // namespace ferrowind::odbc
