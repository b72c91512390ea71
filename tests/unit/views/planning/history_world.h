#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "tests/unit/planning/memory_world.h"

namespace ferrowind::testing {

/// A database in memory with the calendar EUR 2028, made by "memory" (entry 3), whose Good Friday anna has
/// assigned (entry 4), and the windows on it. Make one on a fresh thread.
class HistoryWorld : public planning::MemoryWorld {
 public:
  HistoryWorld() {
    AddSundayAndGoodFriday();
    Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
    ActAs("anna");
    AssignGoodFriday();
    ActAs("memory");
    world.log.Clear();
  }

  /// Excepts the day that Good Friday stands on.
  void ExceptGoodFriday() {
    Call("CldIUMain",
         {{"ID1", 978}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", 105}, {"Comment", "Audit"}});
  }

  void OpenHistory(const planning::HistoryFilter& filter = {}) { windows.OpenHistory(filter); }
  [[nodiscard]] headless::HeadlessForm& History() const { return world.toolkit.FormNamed("fmHistory"); }
  [[nodiscard]] headless::HeadlessTable& Entries() const {
    return History().Part<headless::HeadlessTable>("tblEntries");
  }
  /// The column "What" of all entries on show.
  [[nodiscard]] std::vector<std::string> Sentences() const {
    std::vector<std::string> sentences;
    for (const auto& key : Entries().RowKeys()) sentences.push_back(Entries().Cell(key, "Change").text);
    return sentences;
  }
  /// The changes of the current entry, "what | before | after".
  [[nodiscard]] std::vector<std::string> Changes() const {
    auto& table = History().Part<headless::HeadlessTable>("tblChanges");
    std::vector<std::string> lines;
    for (const auto& key : table.RowKeys()) {
      const auto texts = table.Texts(key);
      lines.push_back(texts.at(0) + " | " + texts.at(1) + " | " + texts.at(2));
    }
    return lines;
  }
  [[nodiscard]] headless::HeadlessButton& ButtonOf(const std::string& name) const {
    return History().Part<headless::HeadlessButton>(name);
  }
  [[nodiscard]] std::string LabelText(const std::string& name) const {
    return History().Part<headless::HeadlessLabel>(name).Text();
  }
  void Choose(const std::string& list, const std::string& item) {
    History().Part<headless::HeadlessDropDownList>(list).ChooseByOperator(item);
  }
  [[nodiscard]] std::string Chosen(const std::string& list) const {
    const auto& choices = History().Part<headless::HeadlessDropDownList>(list);
    return choices.ItemText(choices.Chosen());
  }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
};

}  // namespace ferrowind::testing
