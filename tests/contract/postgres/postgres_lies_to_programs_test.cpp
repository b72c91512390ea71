// A server that lies to the programs: a command of `ferrowindctl` says what is true or fails, and the windows
// stay usable. FERROWIND_LIES and FERROWIND_LIES_SEED as for the calls (lies.h).

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <unistd.h>

#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/admin/command_line.h"
#include "host/admin/guarded_stream.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/postgres/lies.h"
#include "tests/contract/postgres/lying_proxy.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::contract {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// Stands for the URL of the database in a command, and for a file to copy to.
constexpr const char* kUrl = "URL";
constexpr const char* kFile = "FILE";

struct Said {
  host::ExitStatus status = {};
  std::string out;
  std::string errors;
};

struct Command {
  std::vector<std::string> arguments;
  std::size_t lies;

  [[nodiscard]] std::string Text() const {
    std::string text;
    for (const std::string& argument : arguments) text += (text.empty() ? "" : " ") + argument;
    return text;
  }
};

void PrintTo(const Command& command, std::ostream* stream) { *stream << command.Text(); }

class LiesToPrograms : public ::testing::Test {
 protected:
  /// A calendar as its book has it, with one day changed by hand.
  static void SetUpTestSuite() {
    engines_ = std::make_unique<platform::EngineRegistry>();
    engines_->Register(postgres::Engine::kScheme, std::make_shared<postgres::Engine>());
    engines_->Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
    database_ = std::make_unique<PostgresDatabase>();
    const std::string url = postgres_server::SuperuserUri(database_->Name());
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"call", url, "CldIUMain", "ID1=978", "Year1=2026"},
          {"call", url, "CldIUCelebrate", "Name1=Christmas", "TID1=4", "D1=2026-12-25", "MY=12", "MD=25"},
          {"call", url, "CldIUMain", "ID1=978", "Year1=2026", "TID1=4", "ID2=2", "Day1=359",
           "ODate=2026-12-25"},
          {"call", url, "CldIUBook", "ID1=978", "Expected=", "Publisher=p", "Document=d",
           R"(Rules=[{"Name1": "Saturday", "TID1": 2, "Expression": "weekday Saturday"},)"
           R"( {"Name1": "Christmas", "TID1": 4, "Expression": "12-25"}])"}}) {
      const Said said = Run(arguments);
      ASSERT_EQ(said.status, host::ExitStatus::kDone) << said.errors;
    }
  }
  static void TearDownTestSuite() {
    database_.reset();
    engines_.reset();
  }

  static Said Run(const std::vector<std::string>& arguments) {
    std::ostringstream out;
    std::ostringstream errors;
    host::GuardedStream guarded_out(out, true);
    host::GuardedStream guarded_errors(errors, true);
    const auto status = host::RunCommandLine(arguments, *engines_, guarded_out, guarded_errors);
    guarded_out.flush();
    guarded_errors.flush();
    return {status, out.str(), errors.str()};
  }

  static std::string Uri(const LyingProxy& proxy, const std::string& database = database_->Name()) {
    std::string uri = postgres_server::SuperuserUri(database);
    uri.replace(uri.find(":" + postgres_server::Port() + "/"), postgres_server::Port().size() + 1,
                ":" + proxy.Port());
    return uri + "?sslmode=disable&gssencmode=disable";
  }

  static std::unique_ptr<platform::EngineRegistry> engines_;
  static std::unique_ptr<PostgresDatabase> database_;
};

std::unique_ptr<platform::EngineRegistry> LiesToPrograms::engines_;
std::unique_ptr<PostgresDatabase> LiesToPrograms::database_;

class LiesToCommand : public LiesToPrograms, public ::testing::WithParamInterface<Command> {
 protected:
  Said RunOverProxy(const Teller& teller) {
    std::filesystem::remove(file_);
    const LyingProxy proxy(postgres_server::Port(), teller);
    std::vector<std::string> arguments = GetParam().arguments;
    for (std::string& argument : arguments) {
      if (argument == kUrl) argument = Uri(proxy);
      if (argument == kFile) argument = "sqlite:" + file_;
    }
    Said said = Run(arguments);
    for (std::string* const text : {&said.out, &said.errors}) {
      for (auto at = text->find(proxy.Port()); at != std::string::npos; at = text->find(proxy.Port())) {
        text->replace(at, proxy.Port().size(), "PORT");
      }
    }
    // What a copy has copied.
    if (std::filesystem::exists(file_)) said.out += Run({"history", "sqlite:" + file_}).out;
    return said;
  }

  /// Whether it says that something is wrong: a failure, a fault that it was to look for, or a warning of
  /// what it could not look into.
  static bool IsTold(const Said& said) {
    if (!said.errors.empty()) return said.status != host::ExitStatus::kDone;
    if (said.status == host::ExitStatus::kNotDone && GetParam().arguments.front() == "check") return true;
    return said.out.find("Warning: The calendars cannot be looked into") != std::string::npos;
  }

  std::string file_ = ::testing::TempDir() + "lies_" + std::to_string(getpid()) + ".db";
};

TEST_P(LiesToCommand, AreToldOfOrDoNoHarm) {
  std::vector<ServerMessage> conversation;
  const Said truth = RunOverProxy(Recorder(conversation));
  ASSERT_EQ(truth.errors, "");
  ASSERT_GT(conversation.size(), 20U);
  std::size_t failures = 0;
  const auto all = LiesAbout(conversation, SeedOfLies());
  for (const Lie& lie : Chosen(all, CountOfLies(GetParam().lies), SeedOfLies())) {
    SCOPED_TRACE(GetParam().Text() + ", " + lie.name + ", of the seed " + std::to_string(SeedOfLies()));
    const Said said = RunOverProxy(TellerOf(lie));
    if (IsTold(said)) {
      ++failures;
    } else if (lie.detection != Lie::Detection::kImpossible) {
      EXPECT_EQ(said.status, truth.status);
      EXPECT_EQ(said.out, truth.out);
    }
    EXPECT_THAT(said.out + said.errors, Not(HasSubstr("\x1b")));
    if (HasFailure()) break;
  }
  EXPECT_GT(failures, 0U) << "the lies were told";
  std::filesystem::remove(file_);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, LiesToCommand,
    ::testing::Values(
        Command{{"check", kUrl}, 3}, Command{{"status", kUrl}, 4}, Command{{"review", kUrl}, 4},
        Command{{"plan", kUrl, "EUR", "2026"}, 4}, Command{{"why", kUrl, "EUR", "2026-12-25"}, 4},
        Command{{"history", kUrl}, 4}, Command{{"as-of", kUrl, "EUR", "2026", "2200-01-01"}, 4},
        Command{{"book", "show", kUrl, "EUR"}, 4}, Command{{"currency", "list", kUrl}, 4},
        Command{{"export", kUrl, "EUR", "2026", "--format", "csv"}, 4},
        Command{{"conventions", "list", kUrl}, 4}, Command{{"date", "next", kUrl, "EUR", "2026-12-24"}, 4},
        Command{{"call", kUrl, "CldAllInfo", "--format", "json"}, 4}, Command{{"copy", kUrl, kFile}, 3}),
    [](const auto& info) {
      std::string name = info.param.arguments.front();
      std::erase(name, '-');
      return name;
    });

/// The Calendars window over a server, without the toolkit of a screen.
class WindowOverServer {
 public:
  WindowOverServer(const platform::EngineRegistry& engines, const std::string& uri)
      : commands_(engines), platform_{world_.objects, commands_,    world_.toolkit,
                                      world_.locale,  world_.clock, "/component"} {
    world_.dictionary->SetConnectionString(uri);
    world_.dictionary->SetCurrencies({{978, "EUR"}, {840, "USD"}});
    world_.toolkit.AddAnimation("/component/Progress.pra");
    control_ = std::make_unique<Calendar>(platform_);
  }

  /// What an operator sees who looks at every calendar; nothing when the window did not open.
  std::string LookAround() {
    control_->Show();
    world_.script_errors.SetListener([](const std::string&) {});
    try {
      return LookThroughWindow();
    } catch (const headless::ScriptError&) {
      return "";
    }
  }

 private:
  std::string LookThroughWindow() {
    auto& form = world_.toolkit.FormNamed("fmCalendar");
    auto& tree = form.Part<headless::HeadlessTree>("tvCalendar");
    auto& grid = form.Part<headless::HeadlessGrid>("gexCalendar");
    std::string seen;
    for (const std::string& currency : tree.Roots()) {
      for (const std::string& calendar : tree.Children(currency)) {
        tree.SetExpanded(currency, true);
        tree.ClickNode(calendar);
        seen += calendar + ": " + std::to_string(grid.RowCount()) + "\n";
      }
    }
    form.Part<headless::HeadlessToolBar>("ssatb").ClickTool("ID_Refresh");
    seen += std::to_string(grid.RowCount());
    return control_->ForceClosing() ? seen : "";
  }

  headless::World world_;
  platform::EngineCommandFactory commands_;
  platform::Platform platform_;
  std::unique_ptr<Calendar> control_;
};

TEST_F(LiesToPrograms, TheCalendarsWindowSurvivesThem) {
  const auto look = [](const Teller& teller) {
    std::string seen;
    testing::RunInFreshThread([&] {
      const LyingProxy proxy(postgres_server::Port(), teller);
      seen = WindowOverServer(*engines_, Uri(proxy)).LookAround();
    });
    return seen;
  };
  std::vector<ServerMessage> conversation;
  const std::string truth = look(Recorder(conversation));
  ASSERT_THAT(truth, HasSubstr("365"));
  for (const Lie& lie : Chosen(LiesAbout(conversation, SeedOfLies()), CountOfLies(25), SeedOfLies())) {
    SCOPED_TRACE(lie.name + ", of the seed " + std::to_string(SeedOfLies()));
    EXPECT_NO_THROW(look(TellerOf(lie)));
    if (HasFailure()) break;
  }
  EXPECT_EQ(look(Recorder(conversation)), truth);
}

/// The windows of planning over a server, without the toolkit of a screen.
class PlanningOverServer {
 public:
  PlanningOverServer(const platform::EngineRegistry& engines, const std::string& uri)
      : commands_(engines), platform_{world_.objects, commands_,    world_.toolkit,
                                      world_.locale,  world_.clock, "/component"} {
    world_.dictionary->SetConnectionString(uri);
    world_.dictionary->SetCurrencies({{978, "EUR"}, {840, "USD"}});
    AttachPlatform(platform_);
    EnsureDictionaryObject();
    static_cast<void>(SharedServicesObject());
  }

  /// What an operator sees who opens every window; nothing of those that do not open.
  std::string LookAround() {
    world_.script_errors.SetListener([](const std::string&) {});
    std::string seen;
    for (const auto& open : std::vector<std::function<void()>>{
             [&] { windows_.OpenReadiness(); }, [&] { windows_.OpenHistory({}); },
             [&] { windows_.OpenCalendarThen(1); },
             [&] {
               windows_.OpenYearPlan({{978, 2026}});
             },
             [&] { windows_.OpenRuleBook(978); }, [&] { windows_.OpenYearPlanner({978}, 2026); }}) {
      try {
        RunHandler(platform_, open);
      } catch (const headless::ScriptError&) {
        // A message that nobody answers.
      }
    }
    for (const auto& [form, table] :
         {std::pair("fmReadiness", "tblBoard"), std::pair("fmReadiness", "tblFindings"),
          std::pair("fmHistory", "tblEntries")}) {
      seen += TableOf(form, table);
    }
    EXPECT_TRUE(windows_.CloseAll());
    return seen;
  }

 private:
  std::string TableOf(const std::string& form, const std::string& name) {
    std::string seen;
    try {
      auto& table = world_.toolkit.FormNamed(form).Part<headless::HeadlessTable>(name);
      for (const std::string& row : table.RowKeys()) {
        for (const std::string& text : table.Texts(row)) seen += text + "|";
        seen += "\n";
      }
    } catch (const headless::ScriptError&) {
      // It was not opened.
    }
    return seen;
  }

  headless::World world_;
  platform::EngineCommandFactory commands_;
  platform::Platform platform_;
  almanac::DateTables tables_;
  PlanningWindows windows_{platform_, tables_};
};

TEST_F(LiesToPrograms, TheWindowsOfPlanningSurviveThem) {
  const auto look = [](const Teller& teller) {
    std::string seen;
    testing::RunInFreshThread([&] {
      const LyingProxy proxy(postgres_server::Port(), teller);
      seen = PlanningOverServer(*engines_, Uri(proxy)).LookAround();
    });
    return seen;
  };
  std::vector<ServerMessage> conversation;
  const std::string truth = look(Recorder(conversation));
  ASSERT_THAT(truth, AllOf(HasSubstr("EUR|Euro|"), HasSubstr("Created the calendar EUR 2026")));
  for (const Lie& lie : Chosen(LiesAbout(conversation, SeedOfLies()), CountOfLies(4), SeedOfLies())) {
    SCOPED_TRACE(lie.name + ", of the seed " + std::to_string(SeedOfLies()));
    EXPECT_NO_THROW(look(TellerOf(lie)));
    if (HasFailure()) break;
  }
  EXPECT_EQ(look(Recorder(conversation)), truth);
}

TEST_F(LiesToPrograms, ACopyIntoTheServerIsThereWholeOrNotAtAll) {
  const TemporaryFolder folder;
  const std::string file = "sqlite:" + folder.Path() + "/original.db";
  ASSERT_EQ(Run({"copy", postgres_server::SuperuserUri(database_->Name()), file}).status,
            host::ExitStatus::kDone);
  const std::string original = Run({"history", file, "--format", "json"}).out;
  ASSERT_NE(original, "");
  std::size_t failures = 0;
  const auto copy = [&](const Teller& teller) {
    const std::string name = postgres_server::CreateEmptyDatabase();
    Said said;
    {
      const LyingProxy proxy(postgres_server::Port(), teller);
      said = Run({"copy", file, Uri(proxy, name)});
    }
    const std::string uri = postgres_server::SuperuserUri(name);
    const bool is_there = Run({"status", uri}).status == host::ExitStatus::kDone;
    const bool is_done = said.status == host::ExitStatus::kDone;
    failures += is_done ? 0 : 1;
    EXPECT_TRUE(is_there || !is_done) << "what was acknowledged is not there";
    if (is_there) {
      EXPECT_TRUE(is_done || said.errors.find("It is not known whether") != std::string::npos) << said.errors;
      EXPECT_EQ(Run({"check", uri}).status, host::ExitStatus::kDone);
      EXPECT_EQ(Run({"history", uri, "--format", "json"}).out, original);
    }
    postgres_server::DropDatabase(name);
  };
  std::vector<ServerMessage> conversation;
  copy(Recorder(conversation));
  ASSERT_EQ(failures, 0U);
  for (const Lie& lie : Chosen(LiesAbout(conversation, SeedOfLies()), CountOfLies(3), SeedOfLies())) {
    SCOPED_TRACE(lie.name + ", of the seed " + std::to_string(SeedOfLies()));
    copy(TellerOf(lie));
    if (HasFailure()) break;
  }
  EXPECT_GT(failures, 0U) << "the lies were told";
}

}  // namespace
}  // namespace ferrowind::contract
