#pragma once

#include <QString>
#include <chrono>
#include <memory>
#include <string>

#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/sqlite/wait_budget.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/desktop/operator_news.h"

namespace ferrowind::host {

/// The composition root of the desktop program: the adapters that the component runs on here. Make one after
/// the application, and keep it until all windows are gone.
class DesktopSurroundings {
 public:
  /// What an operator waits for before a window that does not answer feels broken.
  static constexpr std::chrono::milliseconds kPatience{2000};

  /// `news` learn of what the operator has the component do, and must outlive this object. Each action waits
  /// as long as `patience`, which is not null and is renewed for it, lasts for another program to release a
  /// database file.
  explicit DesktopSurroundings(OperatorNews& news, std::shared_ptr<sqlite::WaitBudget> patience =
                                                       std::make_shared<sqlite::WaitBudget>(kPatience));
  ~DesktopSurroundings();
  DesktopSurroundings(const DesktopSurroundings&) = delete;
  DesktopSurroundings& operator=(const DesktopSurroundings&) = delete;

  /// Appends the trace to the file from now on. A file that cannot be opened is a failure that names it.
  void TraceTo(const QString& file);
  /// From now on the dictionary object names the database of `connection_string`.
  void UseDatabase(const std::string& connection_string);

  /// The engines for what the host does itself.
  [[nodiscard]] const platform::EngineRegistry& Engines() const;
  [[nodiscard]] qt::QtToolkit& Toolkit();
  /// The windows of planning, which the windows that `Get` has the additions for open as well.
  [[nodiscard]] PlanningWindows& Windows();
  /// Valid as long as this object lives.
  [[nodiscard]] const platform::Platform& Get() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace ferrowind::host
