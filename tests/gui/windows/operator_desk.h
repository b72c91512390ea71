#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/values/value.h"

#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::gui {

/// The Qt toolkit, with an ear for its beeps.
class HeardToolkit : public qt::QtToolkit {
 public:
  void Beep() override { ++beeps_; }
  [[nodiscard]] int Beeps() const { return beeps_; }

 private:
  int beeps_ = 0;
};

/// What an operator's machine has: a calendar database, settings in an ini file and the adapters of the
/// desktop, all of it in a temporary folder.
///
/// One at a time, since it is what the component uses on this thread.
class OperatorDesk {
 public:
  enum class Rules {
    kBuiltInOnly,
    /// Those that an office of five currencies has, as office_rules.sql lists them.
    kOfOffice
  };

  explicit OperatorDesk(Rules rules);
  ~OperatorDesk();
  OperatorDesk(const OperatorDesk&) = delete;
  OperatorDesk& operator=(const OperatorDesk&) = delete;

  [[nodiscard]] const platform::Platform& Platform() const { return platform_; }
  /// For windows that are opened from now on; null for none.
  void SetAdditions(platform::Additions* additions) { platform_.additions = additions; }
  void SetChangeWatches(platform::ChangeWatchFactory* watches) { platform_.change_watches = watches; }
  [[nodiscard]] const HeardToolkit& Toolkit() const { return toolkit_; }
  [[nodiscard]] const std::string& Folder() const { return folder_.Path(); }
  [[nodiscard]] std::string DatabasePath() const { return Folder() + "/calendars.db"; }
  [[nodiscard]] std::string SettingsPath() const { return Folder() + "/settings.ini"; }

  /// Runs SQL by which a database becomes the one that the test is about, before an operator does anything.
  void BeginWith(const std::string& sql);
  /// Runs SQL on a connection of its own.
  void Execute(const std::string& sql) const;
  /// The rows that a connection of its own reads: the cells of each as text with "|" between them, NULL as
  /// "-".
  [[nodiscard]] std::vector<std::string> Read(const std::string& sql) const;
  /// The only cell of the only row.
  [[nodiscard]] std::string ReadOne(const std::string& sql) const;
  /// Calls a procedure by position, which must return 0.
  void Call(const std::string& procedure, const std::vector<platform::Value>& inputs);
  /// Whether the database passes its own check; what is wrong with it fails the test. That no call has made
  /// the rules which the desk began with is known.
  [[nodiscard]] bool IsDatabaseSound() const;

 private:
  contract::TemporaryFolder folder_;
  /// What the check finds in the database that the desk begins with.
  std::vector<std::string> known_problems_;
  std::shared_ptr<sqlite::Engine> engine_;
  platform::EngineRegistry engines_;
  platform::EngineCommandFactory commands_{engines_};
  ObjectMakers objects_;
  HeardToolkit toolkit_;
  qt::QtLocale locale_{QLocale()};
  qt::QtClock clock_;
  platform::Platform platform_;
};

}  // namespace ferrowind::gui
