// A server that lies, in every message of every procedure's call: the call fails and names the procedure, or
// gives the truth, or what nobody can tell from it; and it ends, with no more memory than is allowed.
//
// FERROWIND_LIES tells that many times as many lies, FERROWIND_LIES_SEED chooses others; a failed test prints
// the name of the lie, which the same seed tells again.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/lies.h"
#include "tests/contract/postgres/lying_proxy.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using namespace std::string_literals;

using platform::Date;
using std::chrono::seconds;
using std::chrono::steady_clock;
using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// Far more than a call takes here, and far less than for ever.
constexpr seconds kLongest{10};

struct ProcedureCall {
  std::string procedure;
  Arguments arguments;
};

void PrintTo(const ProcedureCall& call, std::ostream* stream) { *stream << call.procedure; }

/// Each gives the same whenever it is made.
std::vector<ProcedureCall> CallsOfEveryProcedure() {
  const Date day(2026, 12, 25);
  return {
      {"CldAllInfo", {}},
      {"CldGetMain", {{"ID1", 978}, {"Year1", 2026}}},
      {"CldIUMain",
       {{"ID1", 978},
        {"Year1", 2026},
        {"TID1", 4},
        {"ID2", 2},
        {"Day1", 359},
        {"ODate", day},
        {"Comment", "c"}}},
      {"CldIUCelebrate",
       {{"Name1", "Christmas"},
        {"TID1", 4},
        {"D1", day},
        {"MY", 12},
        {"MD", 25},
        {"ID2", 2},
        {"Comment", "r"}}},
      {"CldGetBook", {{"ID1", 978}}},
      {"CldIUBook",
       {{"ID1", 978}, {"Expected", "another"}, {"Publisher", "p"}, {"Document", "d"}, {"Rules", "[]"}}},
      {"CldGetFingerprint", {{"ID1", 978}, {"Year1", 2026}}},
      {"CldApplyPlan", {{"ID1", 978}, {"Year1", 2026}, {"Expected", "another"}, {"Days", "[]"}}},
      {"CldUndo", {{"EntryID", 999999}}},
      {"CldGetHistory", {{"EntryID", 3}}},
      {"CldGetAsOf", {{"ID1", 978}, {"Year1", 2026}, {"EntryID", 3}}},
      {"CldGetClosedDays", {{"FromYear", 2026}, {"ToYear", 2026}}},
      {"CldGetMarkedDays", {{"FromYear", 2026}, {"ToYear", 2026}}},
      {"CldIUCurrency", {{"CcyID", 978}, {"Ccy", "EUR"}, {"CcyType", 0}, {"Name", "Euro"}}},
      {"CldGetCurrencies", {}},
      {"CldGetContent", {}},
      {"CldIUConvention", {{"CcyID", 978}, {"OtherID", 840}, {"SpotDays", 1}}},
      {"CldGetConventions", {}},
  };
}

/// All that a call gave, to be compared.
std::string TextOf(const platform::CallOutcome& outcome) {
  std::string text = std::to_string(outcome.return_value);
  for (const auto& record_set : outcome.record_sets) {
    text += "\n--";
    for (const std::string& field : FieldsOf(*record_set)) text += " " + field;
    for (const Row& row : RowsOf(*record_set)) {
      text += '\n';
      for (const platform::Value& cell : row) text += platform::ToTextOrEmpty(cell) + '|';
    }
  }
  return text;
}

class LyingServer : public ::testing::Test {
 protected:
  /// A database with a calendar, rules, a book and a history, the same for all tests.
  static void SetUpTestSuite() {
    database_ = std::make_unique<PostgresDatabase>();
    ProcedureCaller caller(*database_);
    const Date day(2026, 12, 25);
    ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
    ASSERT_EQ(caller.Return("CldIUCelebrate",
                            {{"Name1", "Christmas"}, {"TID1", 4}, {"D1", day}, {"MY", 12}, {"MD", 25}}),
              0);
    ASSERT_EQ(caller.Return(
                  "CldIUMain",
                  {{"ID1", 978}, {"Year1", 2026}, {"TID1", 4}, {"ID2", 2}, {"Day1", 359}, {"ODate", day}}),
              0);
    ASSERT_EQ(
        caller.Return(
            "CldIUBook",
            {{"ID1", 978},
             {"Expected", ""},
             {"Publisher", "p"},
             {"Document", "d"},
             {"Rules", R"([{"Name1": "Christmas", "TID1": 4, "Expression": "12-25", "Comment": "c"}])"}}),
        0);
  }
  static void TearDownTestSuite() { database_.reset(); }

  static std::string Uri(const LyingProxy& proxy, const std::string& procedure) {
    std::string uri = database_->ConnectionStringFor(procedure);
    uri.replace(uri.find(":" + postgres_server::Port() + "/"), postgres_server::Port().size() + 1,
                ":" + proxy.Port());
    // Long enough for the limit of an answer to be what ends one without an end.
    return uri + "?sslmode=disable&gssencmode=disable&call_timeout=120&host=" + proxy.Host();
  }

  /// What the call gives over the proxy, or its failure.
  static std::string Make(const ProcedureCall& call, const Teller& teller, std::string& failure,
                          LyingProxy::Place place = LyingProxy::Place::kLoopback) {
    std::string given;
    const LyingProxy proxy(postgres_server::Port(), teller, place);
    failure = FailureTextOf([&] {
      const auto connection = database_->Engine().Connect(Uri(proxy, call.procedure));
      given = TextOf(CallOver(*connection, call.procedure, call.arguments));
    });
    return given;
  }

  static std::unique_ptr<PostgresDatabase> database_;
};

std::unique_ptr<PostgresDatabase> LyingServer::database_;

class LyingServerCall : public LyingServer, public ::testing::WithParamInterface<ProcedureCall> {};

void ExpectClear(const std::string& failure, const std::string& procedure) {
  EXPECT_THAT(failure, AnyOf(HasSubstr("rocedure " + procedure), HasSubstr("cannot be connected to")));
  EXPECT_THAT(failure, AllOf(Not(HasSubstr("\n")), Not(HasSubstr(postgres_server::kOperatorPassword))));
  EXPECT_TRUE(platform::IsWellFormedUtf8(failure)) << failure;
  EXPECT_LT(failure.size(), 5000U);
}

TEST_P(LyingServerCall, IsToldOrDoesNoHarm) {
  const ProcedureCall& call = GetParam();
  std::vector<ServerMessage> conversation;
  std::string failure;
  const std::string truth = Make(call, Recorder(conversation), failure);
  ASSERT_EQ(failure, "");
  ASSERT_GT(conversation.size(), 20U);
  std::size_t failures = 0;
  std::size_t truths = 0;
  const auto lies = Chosen(LiesAbout(conversation, SeedOfLies()), CountOfLies(60), SeedOfLies());
  for (const Lie& lie : lies) {
    SCOPED_TRACE(call.procedure + ", " + lie.name + ", of the seed " + std::to_string(SeedOfLies()));
    const auto start = steady_clock::now();
    const std::string given = Make(call, TellerOf(lie), failure);
    EXPECT_LT(steady_clock::now() - start, kLongest);
    if (!failure.empty()) {
      ++failures;
      ExpectClear(failure, call.procedure);
    } else if (lie.detection != Lie::Detection::kImpossible) {
      ++truths;
      EXPECT_EQ(given, truth);
      EXPECT_NE(lie.detection, Lie::Detection::kFailure);
    }
    if (HasFailure()) break;
  }
  EXPECT_GT(failures, lies.size() / 4) << "the lies were told";
  EXPECT_GT(truths, 0U) << "some do no harm";
}

std::string NameOfCall(const ::testing::TestParamInfo<ProcedureCall>& info) { return info.param.procedure; }

INSTANTIATE_TEST_SUITE_P(Procedures, LyingServerCall, ::testing::ValuesIn(CallsOfEveryProcedure()),
                         NameOfCall);

TEST_F(LyingServer, EveryProcedureIsCalled) {
  std::string called;
  for (const ProcedureCall& call : CallsOfEveryProcedure()) called += " " + call.procedure;
  EXPECT_EQ(
      postgres_server::Ask(database_->Name(),
                           "SELECT coalesce(string_agg(proname, ' '), '') FROM pg_proc WHERE prokind = 'p'"
                           " AND pronamespace = 'ferrowind'::regnamespace AND proname <> ALL"
                           " (string_to_array(lower('" +
                               called + "'), ' '))"),
      "")
      << "no test here calls it";
}

/// Days without an end, with `cell` for each text.
Teller EndlessRows(const std::string& cell) {
  auto has_begun = std::make_shared<bool>(false);
  auto is_record_set = std::make_shared<bool>(false);
  return [=](std::size_t, const ServerMessage& message) {
    if (message.type == 'T') *is_record_set = message.body.find("ODate") != std::string::npos;
    if (message.type != 'D' || !*is_record_set || *has_begun) return Told{message.Bytes()};
    *has_begun = true;
    ServerMessage row = message;
    // The columns of the days are ODate, TID1, Name1, Comment2, Comment, ID2, Day1.
    row.body = "\0\7\0\0\0\4\0\0\0\0\0\0\0\4\0\0\0\1"s;
    const auto add = [&](const std::string& text) {
      const auto size = static_cast<std::uint32_t>(text.size());
      for (int shift = 24; shift >= 0; shift -= 8) row.body += static_cast<char>(size >> shift & 0xFF);
      row.body += text;
    };
    for (int i = 0; i < 3; ++i) add(cell);
    row.body += std::string(8, '\xFF');
    return Told{row.Bytes(), Told::Then::kRepeat, true, std::chrono::minutes(2)};
  };
}

TEST_F(LyingServer, RowsWithoutAnEndEndAtTheLimitOfAnAnswer) {
  constexpr std::size_t kTextBytes = 300000;
  for (const auto place : {LyingProxy::Place::kLoopback, LyingProxy::Place::kLocalSocket}) {
    SCOPED_TRACE(place == LyingProxy::Place::kLoopback ? "loopback" : "local socket");
    std::string failure;
    Make({"CldGetMain", {{"ID1", 978}, {"Year1", 2026}}}, EndlessRows(std::string(kTextBytes, 'x')), failure,
         place);
    EXPECT_THAT(failure, AllOf(HasSubstr("CldGetMain"), HasSubstr("gives more than 512 MB at once")));
  }
}

TEST_F(LyingServer, ARowTooFewOrTooManyIsToldWhereverItIsFound) {
  for (const auto place : {LyingProxy::Place::kLoopback, LyingProxy::Place::kLocalSocket}) {
    SCOPED_TRACE(place == LyingProxy::Place::kLoopback ? "loopback" : "local socket");
    for (const int times : {0, 1, 2}) {
      std::string failure;
      const std::string given = Make(
          {"CldGetMain", {{"ID1", 978}, {"Year1", 2026}}},
          [=, days = std::make_shared<int>(0)](std::size_t, const ServerMessage& message) {
            // The 100th row of the answer: those of a day have seven cells.
            const bool is_day = message.type == 'D' && message.body.starts_with("\0\7"s);
            if (!is_day || ++*days != 100) return Told{message.Bytes()};
            std::string bytes;
            for (int i = 0; i < times; ++i) bytes += message.Bytes();
            return Told{bytes, Told::Then::kGoOn, times != 1};
          },
          failure, place);
      if (times == 1) {
        EXPECT_THAT(failure, "");
        EXPECT_THAT(given, HasSubstr("Christmas"));
      } else {
        EXPECT_THAT(failure, AllOf(HasSubstr("CldGetMain"), HasSubstr(std::to_string(364 + times) + " rows"),
                                   HasSubstr("of which it says that they are 365")));
      }
    }
  }
}

TEST_F(LyingServer, MessagesWithoutAnEndEndWithTheConnection) {
  for (const ServerMessage& message :
       {ServerMessage{'N', "SNOTICE\0C00000\0Mhear\0\0"s}, ServerMessage{'S', "TimeZone\0UTC\0"s},
        ServerMessage{'A', "\0\0\0\1ferrowind_change\0\0"s}}) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i) bytes += message.Bytes();
    // While it logs in, asks for the procedure, and calls it.
    for (const std::size_t at : {std::size_t{0}, std::size_t{24}, std::size_t{32}}) {
      SCOPED_TRACE(message.type + std::to_string(at));
      std::string failure;
      const auto start = steady_clock::now();
      Make(
          {"CldGetMain", {{"ID1", 978}, {"Year1", 2026}}},
          [&](std::size_t number, const ServerMessage& honest) {
            if (number != at) return Told{honest.Bytes()};
            return Told{bytes, Told::Then::kRepeat, true, std::chrono::milliseconds(700)};
          },
          failure);
      ExpectClear(failure, "CldGetMain");
      EXPECT_LT(steady_clock::now() - start, kLongest);
    }
  }
}

TEST_F(LyingServer, ANumberThatIsNoneStopsTheReadingOfASignature) {
  std::string failure;
  Make(
      {"CldGetMain", {{"ID1", 978}, {"Year1", 2026}}},
      [told = std::make_shared<bool>(false)](std::size_t, const ServerMessage& message) {
        if (message.type != 'D' || *told) return Told{message.Bytes()};
        *told = true;
        // Names, modes and all types null; the list of inputs has an element of one byte.
        ServerMessage row{'D', "\0\5"s + std::string(12, '\xFF')};
        row.body += "\0\0\0\x19\0\0\0\1\0\0\0\0\0\0\0\x1A\0\0\0\1\0\0\0\0\0\0\0\1"s + "\x17";
        row.body += "\0\0\0\4\0\0\0\1"s;
        return Told{row.Bytes(), Told::Then::kGoOn, true};
      },
      failure);
  EXPECT_THAT(failure, HasSubstr("CldGetMain is described as no PostgreSQL server describes one"));
}

TEST_F(LyingServer, AChangeThatTheServerDoesNotKeepIsNoSuccess) {
  std::string failure;
  Make(
      {"CldIUMain", {{"ID1", 978}, {"Year1", 2027}}},
      [](std::size_t, const ServerMessage& message) {
        if (message.type != 'C' || !message.body.starts_with("COMMIT")) return Told{message.Bytes()};
        return Told{ServerMessage{'C', "ROLLBACK\0"s}.Bytes(), Told::Then::kGoOn, true};
      },
      failure);
  EXPECT_THAT(failure,
              AllOf(HasSubstr("CldIUMain was interrupted"), HasSubstr("look before you call it again"),
                    HasSubstr("no word that what was done is kept")));
}

TEST_F(LyingServer, AWatchThatIsLiedToFailsOrSeesNoMoreThanAChange) {
  std::vector<ServerMessage> conversation;
  const auto look = [&](const Teller& teller) {
    const LyingProxy proxy(postgres_server::Port(), teller);
    const auto watch = database_->Engine().Watch(Uri(proxy, "CldGetMain"));
    std::string failure;
    const auto end = steady_clock::now() + seconds(3);
    bool is_watching = false;
    while (failure.empty() && !is_watching && steady_clock::now() < end) {
      const auto start = steady_clock::now();
      failure = FailureTextOf([&] { is_watching = watch->Look(); });
      EXPECT_LT(steady_clock::now() - start, seconds(2));
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    // What comes behind its agreement.
    for (int i = 0; i < 3 && failure.empty(); ++i) failure = FailureTextOf([&] { (void)watch->Look(); });
    if (!failure.empty()) {
      EXPECT_THAT(failure, HasSubstr("The database"));
      EXPECT_TRUE(platform::IsWellFormedUtf8(failure));
    }
    return failure;
  };
  ASSERT_EQ(look(Recorder(conversation)), "");
  std::size_t failures = 0;
  for (const Lie& lie : Chosen(LiesAbout(conversation, SeedOfLies()), CountOfLies(60), SeedOfLies())) {
    SCOPED_TRACE(lie.name + ", of the seed " + std::to_string(SeedOfLies()));
    if (!look(TellerOf(lie)).empty()) ++failures;
    if (HasFailure()) break;
  }
  EXPECT_GT(failures, 5U);
}

}  // namespace
}  // namespace ferrowind::contract
