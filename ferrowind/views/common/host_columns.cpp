#include "ferrowind/views/common/host_columns.h"

#include <utility>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/run_handler.h"

namespace ferrowind {

void HostColumns::Follow(const GridFields& map) {
  const std::int32_t count = map.Count();
  for (std::int32_t position = 1; position <= count; ++position) {
    // A map whose lists are out of step has columns that the grid lacks.
    IgnoringFailure([&] {
      const auto field = map.Fields(position);
      platform::GridColumn& column = grid_.ColumnByKey(field->LocalName());
      Followed& followed = followed_.insert({column.Index(), {field, column}}).first->second;
      Take(followed);
      changes_.push_back(
          field->OnChange([this, &followed] { RunHandler(platform_, [&] { Take(followed); }); }));
    });
  }
}

void HostColumns::Take(Followed& followed) {
  const GridField& field = *followed.field;
  platform::GridColumn& column = followed.column;
  const bool is_computed = static_cast<bool>(field.Function());
  // The window itself computes some of the constant ones.
  if (!field.IsConst() && column.Unbound() != is_computed) column.SetUnbound(is_computed);
  if (column.Caption() != field.Caption()) column.SetCaption(field.Caption());
  if (followed.is_visible == field.Visible()) return;
  followed.is_visible = field.Visible();
  if (column.Visible() != field.Visible()) column.SetVisible(field.Visible());
}

void HostColumns::SaveLayout(const std::function<void()>& save) const {
  std::vector<platform::GridColumn*> hidden;
  for (const auto& [index, followed] : followed_) {
    if (!followed.is_visible && !followed.column.Visible()) hidden.push_back(&followed.column);
  }
  struct HiddenAgain {
    ~HiddenAgain() {
      for (platform::GridColumn* column : columns) IgnoringFailure([&] { column->SetVisible(false); });
    }
    const std::vector<platform::GridColumn*>& columns;
  };
  const HiddenAgain hidden_again{hidden};
  for (platform::GridColumn* column : hidden) column->SetVisible(true);
  save();
}

void HostColumns::ComputeCell(platform::RecordSet::Bookmark bookmark, std::int16_t column,
                              platform::Value& receiver) const {
  const auto found = followed_.find(column);
  if (found == followed_.end() || !found->second.field->Function()) return;
  const auto records = grid_.Records();
  if (!records) return;
  records->MoveTo(bookmark);
  platform::Value computed = found->second.field->Function()(*records);
  if (!computed.IsObject()) receiver = std::move(computed);
}

}  // namespace ferrowind
