#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/text_box.h"
#include "ferrowind/views/planning/record_texts.h"
#include "ferrowind/views/planning/text_index.h"

namespace ferrowind {

/// A bar above a grid by which an operator leaves out the records that have not what is typed in them, or are
/// not of the kind chosen. While it is closed all records are on show.
class FindBar {
 public:
  /// Tells whether a record is of a kind.
  using Condition =
      std::function<bool(const platform::RecordSet& records, platform::RecordSet::Bookmark record)>;

  struct Kind {
    std::string caption;
    /// Makes the condition whenever records are searched by that kind; empty for all records.
    std::function<Condition()> condition = {};
  };

  struct Subject {
    /// How many of how many are left: "%1 of %2 days".
    std::string count;
    /// The first one is chosen at first, and for all of them.
    std::vector<Kind> kinds;
    RecordTexts::Names names;
  };

  /// The controls of a bar, in tab order; at most one bar stands on a form.
  [[nodiscard]] static std::vector<platform::ControlDesign> Controls();

  /// `form` has the controls; all must outlive the bar.
  FindBar(const platform::Platform& platform, platform::Form& form, platform::Grid& grid, Subject subject);
  ~FindBar();
  FindBar(const FindBar&) = delete;
  FindBar& operator=(const FindBar&) = delete;

  [[nodiscard]] bool IsOpen() const;
  /// Shows the bar, ready to type.
  void Open();
  /// Shows all records; the current one stays current.
  void Close();

 private:
  void Search();
  void ChooseKind();
  /// Makes what depends on the records, on them and the kind, and on them and what is typed.
  void TakeRecords(const std::shared_ptr<platform::RecordSet>& records);
  void TakeKind();
  void Find();
  [[nodiscard]] bool Shows(platform::RecordSet::Bookmark record) const;
  void NarrowGrid();
  void MakeARowCurrent();
  void SetOpen(bool is_open);

  const platform::Platform& platform_;
  platform::Grid& grid_;
  Subject subject_;
  platform::Control& panel_;
  platform::TextBox& text_;
  platform::DropDownList& kind_;
  platform::Label& count_;
  platform::Button& close_;

  /// The records that the rest is about; their bookmarks, and by bookmark less 1 their numbers.
  std::shared_ptr<platform::RecordSet> records_;
  std::vector<platform::RecordSet::Bookmark> bookmarks_;
  std::vector<std::size_t> numbers_;
  TextIndex texts_;
  /// By number; empty for all kinds.
  std::vector<bool> of_kind_;
  std::vector<bool> found_;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
