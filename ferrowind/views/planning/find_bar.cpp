#include "ferrowind/views/planning/find_bar.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"

namespace ferrowind {

using platform::ControlKind;
using platform::ControlOf;
using platform::RecordSet;

std::vector<platform::ControlDesign> FindBar::Controls() {
  return {{ControlKind::kPanel, "pnlFind"},
          {ControlKind::kLabel, "lblFind", "Find"},
          {ControlKind::kTextBox, "txtFind"},
          {ControlKind::kDropDownList, "cboFind"},
          {ControlKind::kLabel, "lblFound"},
          {.kind = ControlKind::kButton, .name = "cmdFindClose", .text = "Close", .is_cancel_button = true}};
}

FindBar::FindBar(const platform::Platform& platform, platform::Form& form, platform::Grid& grid,
                 Subject subject)
    : platform_(platform),
      grid_(grid),
      subject_(std::move(subject)),
      panel_(form.ControlNamed("pnlFind")),
      text_(ControlOf<platform::TextBox>(form, "txtFind")),
      kind_(ControlOf<platform::DropDownList>(form, "cboFind")),
      count_(ControlOf<platform::Label>(form, "lblFound")),
      close_(ControlOf<platform::Button>(form, "cmdFindClose")) {
  SetOpen(false);
  for (std::size_t i = 0; i < subject_.kinds.size(); ++i) {
    kind_.AddItem(Said(platform_, subject_.kinds[i].caption), static_cast<std::int32_t>(i));
  }
  kind_.Choose(0);
  const auto handler = [this](void (FindBar::*member)()) {
    return [this, member] { RunHandler(platform_, [&] { (this->*member)(); }); };
  };
  subscriptions_.push_back(text_.OnChange(handler(&FindBar::Search)));
  subscriptions_.push_back(kind_.OnChoice(handler(&FindBar::ChooseKind)));
  subscriptions_.push_back(close_.OnClick(handler(&FindBar::Close)));
}

FindBar::~FindBar() {
  if (IsOpen()) grid_.Narrow({});
}

bool FindBar::IsOpen() const { return panel_.Visible(); }

void FindBar::SetOpen(bool is_open) {
  panel_.SetVisible(is_open);
  // For itself, so that Esc is the bar's only while it is open.
  close_.SetVisible(is_open);
}

void FindBar::Open() {
  if (!IsOpen()) {
    SetOpen(true);
    NarrowGrid();
  }
  text_.SetFocus();
  text_.SelectAll();
}

void FindBar::Close() {
  if (!IsOpen()) return;
  SetOpen(false);
  text_.SetText("");
  kind_.Choose(0);
  grid_.Narrow({});
  records_.reset();
  // Rows have come in before it: it is brought into sight again.
  if (grid_.CurrentRow() > 0) grid_.SetCurrentRow(grid_.CurrentRow());
  grid_.SetFocus();
}

void FindBar::Search() {
  if (!IsOpen()) return;
  Find();
  NarrowGrid();
}

void FindBar::ChooseKind() {
  if (!IsOpen()) return;
  TakeKind();
  Search();
}

void FindBar::NarrowGrid() {
  grid_.Narrow([this](const std::shared_ptr<RecordSet>& records) {
    if (records != records_) IgnoringFailure([&] { TakeRecords(records); });
    return [this](RecordSet::Bookmark record) { return Shows(record); };
  });
  MakeARowCurrent();
}

void FindBar::TakeRecords(const std::shared_ptr<RecordSet>& records) {
  records_ = records;
  bookmarks_.clear();
  numbers_.clear();
  of_kind_.clear();
  texts_ = TextIndex();
  const RecordTexts texts(grid_, *records_, subject_.names);
  for (std::size_t number = 0; number < records_->RowCount(); ++number) {
    const RecordSet::Bookmark record = records_->BookmarkAt(number);
    bookmarks_.push_back(record);
    numbers_.resize(static_cast<std::size_t>(record));
    numbers_.back() = number;
    texts_.Add(texts.Of(*records_, record));
  }
  Find();
  TakeKind();
  Find();
}

void FindBar::TakeKind() {
  of_kind_.clear();
  if (!records_) return;
  const auto chosen = static_cast<std::size_t>(std::max(kind_.Chosen(), 0));
  if (!subject_.kinds[chosen].condition) return;
  const Condition is_of_kind = subject_.kinds[chosen].condition();
  std::vector<bool> of_kind;
  for (const RecordSet::Bookmark record : bookmarks_) of_kind.push_back(is_of_kind(*records_, record));
  of_kind_ = std::move(of_kind);
}

void FindBar::Find() {
  found_ = texts_.Having(text_.Text());
  for (std::size_t number = 0; number < of_kind_.size(); ++number) {
    if (!of_kind_[number]) found_[number] = false;
  }
  const auto count = std::count(found_.begin(), found_.end(), true);
  count_.SetText(Said(platform_, subject_.count, {std::to_string(count), std::to_string(bookmarks_.size())}));
}

bool FindBar::Shows(RecordSet::Bookmark record) const {
  const auto place = static_cast<std::size_t>(record) - 1;
  return place < numbers_.size() && found_[numbers_[place]];
}

void FindBar::MakeARowCurrent() {
  if (grid_.CurrentRow() > 0) return;
  for (std::int32_t row = 1; row <= grid_.RowCount(); ++row) {
    if (grid_.RowBookmark(row) == 0) continue;
    grid_.SetCurrentRow(row);
    return;
  }
}

}  // namespace ferrowind
