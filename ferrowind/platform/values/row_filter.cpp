#include "ferrowind/platform/values/row_filter.h"

#include "ferrowind/platform/values/row_filter_parser.h"

namespace ferrowind::platform {

RowFilter::RowFilter(std::string_view text, const std::vector<std::string>& fields)
    : steps_(RowFilterParser(text, fields).Parse()) {}

bool RowFilter::Matches(const RecordRows& rows, std::size_t row) const {
  std::uint32_t next = 0;
  while (next < steps_.size()) {
    const RowFilterStep& step = steps_[next];
    next = step.Passes(rows.Cell(row, step.field)) ? step.if_true : step.if_false;
  }
  return next == RowFilterStep::kAccept;
}

}  // namespace ferrowind::platform
