#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <unistd.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/platform/values/file_path.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind::testing {

/// A folder of the test that makes it, which goes with it.
class ListFolder {
 public:
  ListFolder()
      : folder_(std::filesystem::path(::testing::TempDir()) /
                ("ferrowind-lists-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(folder_);
  }
  ~ListFolder() { std::filesystem::remove_all(folder_); }
  ListFolder(const ListFolder&) = delete;
  ListFolder& operator=(const ListFolder&) = delete;

  [[nodiscard]] std::string Path(const std::string& name) const {
    return platform::FileName(folder_ / platform::FilePath(name));
  }
  std::string Write(const std::string& name, std::string_view text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
    return Path(name);
  }
  [[nodiscard]] std::string Read(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  [[nodiscard]] std::size_t CountOfFiles() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {}));
  }

 private:
  std::filesystem::path folder_;
};

/// A database in memory with a book of EUR that has Sundays, Good Friday and Christmas Day, and a calendar
/// EUR 2028 as that book says; USD has neither. Make one on a fresh thread.
class ExchangeWorld : public planning::MemoryPlanningWorld {
 public:
  ExchangeWorld() {
    static_cast<void>(SharedServicesObject());
    GiveBook(planning::kEuro, "EUR",
             "point | Good Friday | easter-2 |\n"
             "celebration | Christmas Day | 12-25 |\n"
             "weekday | Sunday | weekday Sunday |\n");
    windows.OpenYearPlan({{planning::kEuro, 2028}});
    Form("fmYearPlan").Part<headless::HeadlessButton>("cmdApply").Click();
    EXPECT_TRUE(windows.CloseAll());
    world.log.Clear();
  }

  [[nodiscard]] headless::HeadlessForm& Form(const std::string& name) {
    return world.toolkit.FormNamed(name);
  }
  void Type(const std::string& form, const std::string& box, const std::string& text) {
    Form(form).Part<headless::HeadlessTextBox>(box).ReplaceText(text);
  }
  void Click(const std::string& form, const std::string& button) {
    Form(form).Part<headless::HeadlessButton>(button).Click();
  }
  [[nodiscard]] std::string TextOf(const std::string& form, const std::string& label) {
    return Form(form).Part<headless::HeadlessLabel>(label).Text();
  }

  ListFolder folder;
  almanac::DateTables tables;
  icalendar::ICalendar calendar_files;
  PlanningWindows windows{platform, tables, &calendar_files};
};

}  // namespace ferrowind::testing
