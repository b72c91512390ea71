#include "ferrowind/adapters/grid_content/record_cells.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/grid_engine/value_order.h"

namespace ferrowind::grid_content {

using grid_engine::Record;
using platform::Value;

namespace {

const Value& NoValue() {
  static const Value none;
  return none;
}

}  // namespace

RecordCells::RecordCells(const StoredColumns& columns, HandlerRunner run)
    : columns_(columns),
      run_(std::move(run)),
      computed_([this](Record record, std::int16_t column, Value& receiver) {
        if (is_muted_) return;
        run_([&] { unbound_value_.Emit(BookmarkOf(record), column, receiver); });
      }),
      orders_([this](Record record, std::int16_t column, Value& receiver) {
        receiver = CellValue(column, record);
        if (is_muted_) return;
        run_([&] { unbound_order_.Emit(BookmarkOf(record), column, receiver); });
      }) {}

void RecordCells::Attach(std::shared_ptr<platform::RecordSet> records) {
  ForgetComputed();
  records_ = std::move(records);
  bookmarks_.clear();
  record_count_ = records_ == nullptr ? 0 : static_cast<std::uint32_t>(records_->RowCount());
  if (record_count_ > 0 && !records_->Filter().empty()) {
    bookmarks_.reserve(record_count_);
    for (std::uint32_t i = 0; i < record_count_; ++i) bookmarks_.push_back(records_->BookmarkAt(i));
  }
  BindFields();
}

void RecordCells::BindFields() {
  fields_.assign(static_cast<std::size_t>(columns_.Count()), std::nullopt);
  if (records_ == nullptr) return;
  for (std::int32_t index = 1; index <= columns_.Count(); ++index) {
    fields_[static_cast<std::size_t>(index) - 1] = records_->FindField(columns_[index].BoundField());
  }
}

const Value& RecordCells::KeyValue(std::int16_t column, Record record) const {
  if (has_order_handlers_ && columns_[column].Unbound()) return orders_.ValueOf(record, column);
  return CellValue(column, record);
}

const Value& RecordCells::CellValue(std::int16_t column, Record record) const {
  if (columns_[column].Unbound()) return computed_.ValueOf(record, column);
  const auto place = static_cast<std::size_t>(column) - 1;
  if (place >= fields_.size() || !fields_[place]) return NoValue();
  return records_->Cell(BookmarkOf(record), *fields_[place]);
}

bool RecordCells::ShowsNumber(std::int16_t column, Record record) const {
  return !columns_[column].HasValueList() &&
         grid_engine::KindOf(CellValue(column, record)) == grid_engine::ValueKind::kNumber;
}

bool RecordCells::IsNumberColumn(std::int16_t column) const {
  // Enough to pass the rows that leave the column empty, and few enough to ask at each paint.
  constexpr std::uint32_t kRecordsAsked = 50;
  for (Record record = 0; record < std::min(record_count_, kRecordsAsked); ++record) {
    if (!CellValue(column, record).IsEmpty()) return ShowsNumber(column, record);
  }
  return false;
}

void RecordCells::AskForText(std::int16_t column, Record record, std::string& text) const {
  run_([&] { cell_text_.Emit(BookmarkOf(record), column, text); });
}

platform::Subscription RecordCells::OnUnboundValue(
    std::function<void(Bookmark, std::int16_t, Value&)> handler) {
  // What nobody answered before may have an answer now.
  ForgetComputed();
  return unbound_value_.Subscribe(std::move(handler));
}

platform::Subscription RecordCells::OnUnboundOrder(
    std::function<void(Bookmark, std::int16_t, Value&)> handler) {
  ForgetComputed();
  has_order_handlers_ = true;
  return unbound_order_.Subscribe(std::move(handler));
}

platform::Subscription RecordCells::OnCellText(
    std::function<void(Bookmark, std::int16_t, std::string&)> handler) {
  has_cell_text_handlers_ = true;
  return cell_text_.Subscribe(std::move(handler));
}

}  // namespace ferrowind::grid_content
