// Business days and value dates asked in SQL, by a login that is a reader's.

#include <chrono>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/business_days/convention.h"
#include "ferrowind/business_days/currency_codes.h"
#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/business_days/joint_calendar.h"
#include "ferrowind/business_days/tenor.h"
#include "ferrowind/business_days/value_dates.h"
#include "ferrowind/loading/day_loader.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/unit/business_days/calendars.h"
#include "tests/unit/business_days/random_calendars.h"

namespace ferrowind::contract {
namespace {

using namespace std::chrono_literals;
using business_days::PreparedYear;
using business_days::RandomNumbers;
using std::chrono::sys_days;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr const char* kReader = "trade_system";

std::string Iso(sys_days day) {
  const std::chrono::year_month_day date(day);
  return platform::Date(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day())))
      .ToIso();
}

/// Currencies joined by commas or a pair; what else is asked, a convention or a tenor; how many days, or
/// whether the trade date stays.
struct Question {
  std::string function;
  std::string of;
  sys_days day;
  std::string word;
  int number = 0;
};

/// Asks the library, which prepares itself once for each pair and each list of currencies.
class LibrarysAnswers {
 public:
  explicit LibrarysAnswers(std::shared_ptr<const loading::LoadedDays> days) : days_(std::move(days)) {}

  /// A date, "true" or "false"; of a failure the state that stands for it, and its text.
  std::string To(const Question& question) {
    try {
      return Answer(question);
    } catch (const business_days::NotPrepared& failure) {
      return "WD001 " + failure.Description();
    } catch (const business_days::NoBusinessDay& failure) {
      return "WD002 " + failure.Description();
    } catch (const platform::Failure& failure) {
      const bool is_unknown = failure.Number() == platform::failure_number::kElementNotFound;
      return (is_unknown ? "WD003 " : "WD004 ") + failure.Description();
    }
  }

 private:
  std::string Answer(const Question& question) {
    const auto& [function, of, day, word, number] = question;
    if (function == "SpotDate" || function == "ValueDate") {
      const business_days::Tenor tenor = business_days::ReadTenor(function == "SpotDate" ? "SPOT" : word);
      const auto closed = number != 0 ? business_days::ClosedTradeDate::kStays
                                      : business_days::ClosedTradeDate::kCountsAsNext;
      return Iso(DatesOf(of).ValueDate(day, tenor, closed));
    }
    const business_days::JointCalendar& calendar = JointOf(of);
    if (function == "IsBusinessDay") return calendar.IsBusinessDay(day) ? "true" : "false";
    if (function == "AddBusinessDays") return Iso(calendar.AddBusinessDays(day, number));
    return Iso(calendar.Adjust(day, business_days::ConventionNamed(word).value()));
  }

  const business_days::ValueDates& DatesOf(const std::string& pair) {
    const auto found = dates_.find(pair);
    if (found != dates_.end()) return found->second;
    return dates_
        .emplace(pair, business_days::ValueDates(business_days::ReadCurrencyPair(pair), days_->calendars,
                                                 days_->conventions))
        .first->second;
  }
  const business_days::JointCalendar& JointOf(const std::string& codes) {
    const auto found = joint_.find(codes);
    if (found != joint_.end()) return found->second;
    return joint_.emplace(codes, days_->calendars.Joint(business_days::ReadCurrencyCodes(codes)))
        .first->second;
  }

  std::shared_ptr<const loading::LoadedDays> days_;
  std::map<std::string, business_days::ValueDates> dates_;
  std::map<std::string, business_days::JointCalendar> joint_;
};

/// Questions most of which have an answer, and some of which have each of the failures.
class QuestionMaker {
 public:
  explicit QuestionMaker(unsigned seed) : random_(seed) {}

  Question Next() {
    Question question{.day = business_days::RandomDay(random_)};
    switch (Pick(5)) {
      case 0:
        question.function = "IsBusinessDay";
        question.of = Codes();
        break;
      case 1:
        question.function = "AddBusinessDays";
        question.of = Codes();
        question.number = OneIn(20) ? Pick(2000) - 1000 : Pick(41) - 20;
        break;
      case 2:
        question.function = "AdjustDate";
        question.of = Codes();
        question.word =
            OneOf({"Following", "ModifiedFollowing", "MFBM", "preceding", "MP", "Nearest", "unadjusted"});
        break;
      case 3:
        question.function = "SpotDate";
        question.of = Pair();
        question.number = Pick(2);
        break;
      default:
        question.function = "ValueDate";
        question.of = Pair();
        question.word = Tenor();
        question.number = Pick(2);
    }
    return question;
  }

 private:
  int Pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool OneIn(int count) { return Pick(count) == 0; }
  std::string OneOf(const std::vector<std::string>& texts) {
    return texts[static_cast<std::size_t>(Pick(static_cast<int>(texts.size())))];
  }
  std::string Code() {
    return OneIn(100) ? OneOf({"XXX", "eur", "CHF"}) : OneOf({"EUR", "USD", "JPY", "CAD", "MXN"});
  }
  std::string Codes() {
    std::string codes = Code();
    for (int more = Pick(3); more > 0; --more) codes += ',' + Code();
    return codes;
  }
  std::string Pair() {
    return OneIn(200) ? OneOf({"EURO", "EUR-USD", ""}) : Code() + OneOf({"", "/"}) + Code();
  }
  std::string Tenor() {
    if (OneIn(100)) return OneOf({"", "M", "0D", "-1M", "IMM5", "101Y", "1.5M", "99999999999W", "ONE"});
    if (OneIn(2)) return OneOf({"ON", "TN", "SPOT", "SN", "SW", "s/w", "sp", "o/n", "IMM1", "imm2", "IMM4"});
    return std::to_string(1 + Pick(24)) + OneOf({"D", "W", "M", "m"});
  }

  RandomNumbers random_;
};

class PostgresBusinessDays : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    database_ = std::make_unique<PostgresDatabase>();
    database_->Execute(std::string("CREATE ROLE ") + kReader +
                       " LOGIN PASSWORD 'enter' IN ROLE ferrowind_reader");
    // The failure of a question as a text, and what it asks by its name.
    database_->Execute(R"(
CREATE SCHEMA tried;
GRANT USAGE ON SCHEMA tried TO ferrowind_reader;
CREATE FUNCTION tried.Answer(asked text, ccys text, day date, word text, n integer) RETURNS text LANGUAGE plpgsql AS $$
BEGIN
  RETURN CASE asked
    WHEN 'IsBusinessDay' THEN ferrowind.IsBusinessDay(string_to_array(ccys, ','), day)::text
    WHEN 'AddBusinessDays' THEN ferrowind.AddBusinessDays(string_to_array(ccys, ','), day, n)::text
    WHEN 'AdjustDate' THEN ferrowind.AdjustDate(string_to_array(ccys, ','), day, word)::text
    WHEN 'SpotDate' THEN ferrowind.SpotDate(ccys, day, n <> 0)::text
    ELSE ferrowind.ValueDate(ccys, day, word, n <> 0)::text END;
EXCEPTION WHEN OTHERS THEN
  RETURN SQLSTATE || ' ' || SQLERRM;
END $$)");
  }
  static void TearDownTestSuite() {
    database_->Execute(std::string("DROP OWNED BY ") + kReader + "; DROP ROLE " + kReader);
    database_.reset();
  }
  /// Without days; of rules, the one that comes with the database and one more.
  PostgresBusinessDays() {
    database_->Execute(
        "DELETE FROM ferrowind.CldDay; DELETE FROM ferrowind.CldCalendar;"
        "DELETE FROM ferrowind.CldConvention; DELETE FROM ferrowind.CldHoliday WHERE ID2 > 1;"
        "INSERT INTO ferrowind.CldHoliday (ID2, Name1, TID1, D1, MY, MD) VALUES (2, 'Closed', 3, "
        "'2026-01-01', 1, 1)");
  }

  [[nodiscard]] std::string ReaderUri() const {
    return postgres_server::Uri(kReader, "enter", database_->Name());
  }

  void Prepare(const std::string& code, const std::vector<PreparedYear>& years) {
    const std::string id = "(SELECT CcyID FROM ferrowind.DicCcy WHERE Ccy = '" + code + "')";
    for (const auto& [year, days] : years) {
      const std::string number = std::to_string(static_cast<int>(year));
      database_->Execute("INSERT INTO ferrowind.CldCalendar VALUES (" + id + ", " + number +
                         "); INSERT INTO ferrowind.CldDay (ID1, Year1, Day1, ODate, TID1, ID2) SELECT " + id +
                         ", " + number + ", n, make_date(" + number +
                         ", 1, 1) + n::integer - 1, CASE WHEN closed = '1' THEN 3 ELSE 1 END,"
                         " CASE WHEN closed = '1' THEN 2 END FROM string_to_table('" +
                         days + "', NULL) WITH ORDINALITY AS day (closed, n)");
    }
  }

  std::vector<std::string> Ask(const std::string& sql, const std::vector<std::string>& parameters = {}) {
    if (!connection_) connection_ = std::make_unique<postgres::ServerConnection>(ReaderUri());
    const auto result = connection_->Query(sql, parameters);
    std::vector<std::string> answers;
    for (int row = 0; row < PQntuples(result.get()); ++row)
      answers.emplace_back(PQgetvalue(result.get(), row, 0));
    return answers;
  }
  std::string Answer(const std::string& expression) {
    try {
      return Ask("SELECT (" + expression + ")::text").at(0);
    } catch (const platform::Failure& refusal) {
      return refusal.Description();
    }
  }
  /// By one statement.
  std::vector<std::string> ServersAnswers(const std::vector<Question>& questions) {
    std::vector<std::string> columns(5, "{");
    for (const auto& [function, of, day, word, number] : questions) {
      const std::vector<std::string> cells = {function, of, Iso(day), word, std::to_string(number)};
      for (std::size_t i = 0; i < cells.size(); ++i)
        columns[i] += (columns[i].size() == 1 ? "\"" : ",\"") + cells[i] + '"';
    }
    for (std::string& column : columns) column += '}';
    return Ask(
        "SELECT tried.Answer(f, c, d, w, n) FROM unnest($1::text[], $2::text[], $3::date[], $4::text[],"
        " $5::integer[]) WITH ORDINALITY AS q (f, c, d, w, n, place) ORDER BY place",
        columns);
  }

  /// Saturdays, Sundays and what is closed around the Golden Week of 2026.
  void PrepareGoldenWeek() {
    using std::chrono::month_day;
    const month_day labour_day = std::chrono::May / 1;
    Prepare("EUR", {business_days::YearWith(2026, {labour_day, std::chrono::December / 25})});
    Prepare("USD", {business_days::YearWith(2026, {std::chrono::December / 25})});
    Prepare("JPY", {business_days::YearWith(2026, {std::chrono::April / 29, std::chrono::May / 4,
                                                   std::chrono::May / 5, std::chrono::May / 6})});
  }

  static std::unique_ptr<PostgresDatabase> database_;
  std::unique_ptr<postgres::ServerConnection> connection_;
};

std::unique_ptr<PostgresDatabase> PostgresBusinessDays::database_;

TEST_F(PostgresBusinessDays, AnswersAsTheLibraryDoes) {
  constexpr int kQuestions = 50000;
  RandomNumbers random(20261122);
  for (const std::string code : {"EUR", "USD", "JPY", "CAD", "MXN"})
    Prepare(code, business_days::RandomYears(random));
  // In place of what comes with the program, and beside it.
  database_->Execute(R"(
INSERT INTO ferrowind.CldConvention (ID1, OtherID, SpotDays, DollarStops)
VALUES (392, 978, 1, NULL), (124, 392, 0, NULL), (392, 392, NULL, 1), (124, 840, 2, NULL), (484, 840, 1, NULL);
ANALYZE)");
  platform::EngineRegistry engines;
  engines.Register("postgresql", std::make_shared<postgres::Engine>());
  const loading::DayLoader loader(engines, ReaderUri());

  QuestionMaker maker(20261123);
  std::vector<Question> questions;
  for (int i = 0; i < kQuestions; ++i) questions.push_back(maker.Next());
  const std::vector<std::string> answers = ServersAnswers(questions);
  ASSERT_EQ(answers.size(), questions.size());

  LibrarysAnswers library(loader.Current());
  std::map<std::string, int> failures;
  for (std::size_t i = 0; i < questions.size(); ++i) {
    const Question& question = questions[i];
    const std::string expected = library.To(question);
    ASSERT_EQ(answers[i], expected) << question.function << ' ' << question.of << ' ' << Iso(question.day)
                                    << ' ' << question.word << ' ' << question.number;
    ++failures[expected.starts_with("WD") ? expected.substr(0, 5) : "answered"];
  }
  EXPECT_GT(failures["answered"], kQuestions / 2);
  for (const char* state : {"WD001", "WD002", "WD003", "WD004"}) EXPECT_GT(failures[state], 50) << state;
}

TEST_F(PostgresBusinessDays, SettlesEuroAgainstYenBehindTheGoldenWeek) {
  PrepareGoldenWeek();
  EXPECT_EQ(Answer("ferrowind.SpotDate('EUR/JPY', '2026-04-30')"), "2026-05-07");
  EXPECT_EQ(Answer("ferrowind.SpotDate('eurjpy', '2026-04-30')"), "2026-05-07");
  EXPECT_EQ(Answer("ferrowind.ValueDate('EUR/JPY', '2026-04-30', '3M')"), "2026-08-07");
}

TEST_F(PostgresBusinessDays, TakesNoYearForPreparedThatIsClosedOnWeekendsAlone) {
  PrepareGoldenWeek();
  Prepare("CAD", {business_days::YearWith(2026, {})});
  EXPECT_EQ(Answer("ferrowind.IsBusinessDay('CAD', '2026-05-04')"), "true");
  database_->Execute(
      "INSERT INTO ferrowind.CldHoliday (ID2, Name1, TID1, WD) VALUES (3, 'Saturday', 2, 7);"
      "UPDATE ferrowind.CldDay SET TID1 = 2, ID2 = 3 WHERE TID1 = 3");
  EXPECT_THAT(Answer("ferrowind.IsBusinessDay('CAD', '2026-05-04')"), HasSubstr("CAD 2026 is not prepared"));
  EXPECT_THAT(Answer("ferrowind.SpotDate('EUR/JPY', '2026-04-30')"), HasSubstr("EUR 2026 is not prepared"));
}

TEST_F(PostgresBusinessDays, CountsFromAClosedTradeDateOnlyWhenItStays) {
  PrepareGoldenWeek();
  EXPECT_EQ(Answer("ferrowind.SpotDate('EUR/USD', '2026-05-01')"), "2026-05-06");
  EXPECT_EQ(Answer("ferrowind.SpotDate('EUR/USD', '2026-05-01', true)"), "2026-05-05");
}

TEST_F(PostgresBusinessDays, GoesFromTheLastBusinessDayOfAMonthToTheLastOne) {
  PrepareGoldenWeek();
  EXPECT_EQ(Answer("ferrowind.SpotDate('EUR/USD', '2026-02-25')"), "2026-02-27");
  EXPECT_EQ(Answer("ferrowind.ValueDate('EUR/USD', '2026-02-25', '1M')"), "2026-03-31");
}

TEST_F(PostgresBusinessDays, CountsTheCurrenciesOfACrossAsAgainstTheDollar) {
  PrepareGoldenWeek();
  Prepare("CAD", {business_days::YearWith(2026, {std::chrono::July / 1})});
  EXPECT_EQ(Answer("ferrowind.SpotDate('EUR/CAD', '2026-06-30')"), "2026-07-02");
  EXPECT_EQ(Answer("ferrowind.SpotDate('CAD/JPY', '2026-03-09')"), "2026-03-11");
  database_->Execute("INSERT INTO ferrowind.CldConvention (ID1, OtherID, SpotDays) VALUES (392, 840, 1)");
  EXPECT_EQ(Answer("ferrowind.SpotDate('CAD/JPY', '2026-03-09')"), "2026-03-10");
  database_->Execute("INSERT INTO ferrowind.CldConvention (ID1, OtherID, SpotDays) VALUES (124, 392, 2)");
  EXPECT_EQ(Answer("ferrowind.SpotDate('CAD/JPY', '2026-03-09')"), "2026-03-11");
}

TEST_F(PostgresBusinessDays, WaitsForTheWeekdaysOfTheDollar) {
  PrepareGoldenWeek();
  // Rests on Fridays and Saturdays.
  PreparedYear gulf{2026y, {}};
  for (sys_days day = 2026y / 1 / 1; day <= sys_days(2026y / 12 / 31); day += std::chrono::days(1)) {
    const std::chrono::weekday weekday(day);
    gulf.days += weekday == std::chrono::Friday || weekday == std::chrono::Saturday ? '1' : '0';
  }
  Prepare("KWD", {gulf});
  // Wednesday: Thursday and Sunday of the Gulf, Thursday and Friday of the dollar, and Monday is open for
  // both.
  EXPECT_EQ(Answer("ferrowind.SpotDate('USD/KWD', '2026-03-11')"), "2026-03-16");
  // Saturday stays: Sunday and Monday of the Gulf, Monday and Tuesday of the dollar.
  EXPECT_EQ(Answer("ferrowind.SpotDate('USD/KWD', '2026-03-14', true)"), "2026-03-17");
}

TEST_F(PostgresBusinessDays, TakesCodesInLettersOfAnyCase) {
  PrepareGoldenWeek();
  EXPECT_EQ(Answer("ferrowind.IsBusinessDay('eur', '2026-05-04')"), "true");
  EXPECT_EQ(Answer("ferrowind.AddBusinessDays(ARRAY['eur', 'EUR', 'Jpy'], '2026-05-03', 1)"), "2026-05-07");
  EXPECT_THAT(Answer("ferrowind.AdjustDate('chf', '2026-05-03', 'F')"),
              HasSubstr("There is no calendar of CHF"));
}

TEST_F(PostgresBusinessDays, TakesOneCurrencyAsTextAndSeveralAsAnArray) {
  PrepareGoldenWeek();
  EXPECT_EQ(Answer("ferrowind.IsBusinessDay('EUR', '2026-05-04')"), "true");
  EXPECT_EQ(Answer("ferrowind.IsBusinessDay(ARRAY['EUR', 'JPY'], '2026-05-04')"), "false");
  EXPECT_EQ(Answer("ferrowind.AddBusinessDays('EUR', '2026-12-24', 1)"), "2026-12-28");
  EXPECT_EQ(Answer("ferrowind.AdjustDate(ARRAY['EUR', 'JPY'], '2026-05-03', 'Following')"), "2026-05-07");
  EXPECT_EQ(Answer("ferrowind.AdjustDate('JPY', '2026-05-31', 'ModifiedFollowing')"), "2026-05-29");
}

TEST_F(PostgresBusinessDays, FollowsAConventionOfTheDatabaseAtOnce) {
  PrepareGoldenWeek();
  EXPECT_EQ(Answer("ferrowind.SpotDate('EUR/USD', '2026-03-09')"), "2026-03-11");
  database_->Execute("INSERT INTO ferrowind.CldConvention (ID1, OtherID, SpotDays) VALUES (840, 978, 1)");
  EXPECT_EQ(Answer("ferrowind.SpotDate('USD/EUR', '2026-03-09')"), "2026-03-10");
}

TEST_F(PostgresBusinessDays, FailsWithAStateThatTellsWhy) {
  PrepareGoldenWeek();
  // A calendar without days is none.
  database_->Execute("INSERT INTO ferrowind.CldCalendar VALUES (756, 2026), (978, 2027)");
  const auto answer = [&](const std::string& values) {
    return Ask("SELECT tried.Answer(" + values + ")").at(0);
  };
  EXPECT_EQ(answer("'IsBusinessDay', 'EUR', '2027-01-01', '', 0"), "WD001 EUR 2027 is not prepared");
  EXPECT_EQ(answer("'IsBusinessDay', 'EUR', '1899-12-31', '', 0"), "WD001 EUR 1899 is not prepared");
  EXPECT_EQ(answer("'IsBusinessDay', 'EUR', '3001-01-01', '', 0"), "WD001 EUR 3001 is not prepared");
  EXPECT_EQ(answer("'SpotDate', 'EUR/JPY', '2026-12-30', '', 0"), "WD001 EUR 2027 is not prepared");
  EXPECT_EQ(answer("'AddBusinessDays', 'EUR', '2026-05-04', '', 2147483647"),
            "WD001 EUR 2027 is not prepared");
  EXPECT_EQ(answer("'AddBusinessDays', 'EUR', '2026-05-04', '', -2147483648"),
            "WD001 EUR 2025 is not prepared");
  EXPECT_EQ(answer("'IsBusinessDay', 'CHF', '2026-05-04', '', 0"), "WD003 There is no calendar of CHF");
  EXPECT_EQ(answer("'IsBusinessDay', '', '2026-05-04', '', 0"),
            "WD004 A joint calendar needs at least one currency");
  EXPECT_EQ(answer("'IsBusinessDay', 'EUR', 'infinity', '', 0"),
            "WD004 infinity is not between 0001-01-01 and 9999-12-31");
  EXPECT_EQ(answer("'IsBusinessDay', 'EUR', '0001-01-01 BC', '', 0"),
            "WD004 0001-01-01 BC is not between 0001-01-01 and 9999-12-31");
  EXPECT_EQ(answer("'AddBusinessDays', 'EUR', '9999-12-31', '', 1"), "WD001 EUR 10000 is not prepared");
  EXPECT_THAT(answer("'AdjustDate', 'EUR', '2026-05-04', 'Sometimes', 0"),
              StartsWith("WD004 \"Sometimes\" is no convention: Following,"));
  EXPECT_THAT(answer("'ValueDate', 'EUR/USD', '2026-05-04', 'soon', 0"),
              StartsWith("WD004 \"soon\" is no tenor: ON,"));
}

TEST_F(PostgresBusinessDays, FailsWhereEverythingIsClosedForAYear) {
  Prepare("EUR", {{2026y, std::string(365, '1')}, {2027y, std::string(365, '1')}});
  const auto answer = [&](const std::string& values) {
    return Ask("SELECT tried.Answer(" + values + ")").at(0);
  };
  EXPECT_EQ(answer("'AddBusinessDays', 'EUR', '2026-01-01', '', 1"),
            "WD002 no business day of EUR within a year after 2026-01-01");
  EXPECT_EQ(answer("'AdjustDate', 'EUR', '2026-02-10', 'MF', 0"),
            "WD002 no business day of EUR from 2026-02-01 to 2026-02-28");
}

TEST_F(PostgresBusinessDays, LooksAtAYearAndNoFurther) {
  Prepare("EUR", {{2026y, std::string(365, '1')},
                  business_days::YearWith(2027),
                  {2028y, std::string(366, '1')},
                  business_days::YearWith(2029)});
  EXPECT_EQ(Answer("ferrowind.AddBusinessDays('EUR', '2025-12-31', 1)"), "2027-01-01");
  EXPECT_THAT(Answer("ferrowind.AddBusinessDays('EUR', '2027-12-31', 1)"),
              HasSubstr("no business day of EUR within a year after 2027-12-31"));
  EXPECT_THAT(Answer("ferrowind.AddBusinessDays('EUR', '2029-01-01', -1)"),
              HasSubstr("no business day of EUR within a year before 2029-01-01"));
}

TEST_F(PostgresBusinessDays, AnswersAnEmptyQuestionWithNothing) {
  PrepareGoldenWeek();
  for (const std::string question :
       {"IsBusinessDay(NULL::text, '2026-05-04')", "IsBusinessDay('EUR', NULL)", "SpotDate('EUR/USD', NULL)",
        "ValueDate('EUR/USD', '2026-05-04', NULL)"}) {
    EXPECT_EQ(Answer("ferrowind." + question + " IS NULL"), "true") << question;
  }
}

/// What stands in the guide's blocks of that language, in order.
std::vector<std::string> BlocksOfGuide(const std::string& language) {
  std::ifstream guide(FERROWIND_GUIDE_OF_BUSINESS_DAYS);
  std::vector<std::string> blocks;
  bool is_inside = false;
  for (std::string line; std::getline(guide, line);) {
    if (line == "```" + language) {
      blocks.emplace_back();
      is_inside = true;
    } else if (line == "```") {
      is_inside = false;
    } else if (is_inside) {
      blocks.back() += line + '\n';
    }
  }
  return blocks;
}

TEST_F(PostgresBusinessDays, AnswersAsTheGuideSays) {
  PrepareGoldenWeek();
  int tried = 0;
  for (const std::string& block : BlocksOfGuide("sql")) {
    std::istringstream lines(block);
    for (std::string line; std::getline(lines, line);) {
      const auto end = line.find(";");
      const auto comment = line.find("-- ");
      ASSERT_TRUE(line.starts_with("SELECT ") && end != std::string::npos && comment != std::string::npos)
          << line;
      EXPECT_EQ(Answer(line.substr(7, end - 7)), line.substr(comment + 3)) << line;
      ++tried;
    }
  }
  EXPECT_GT(tried, 0);
}

}  // namespace
}  // namespace ferrowind::contract
