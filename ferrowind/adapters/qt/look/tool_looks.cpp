#include "ferrowind/adapters/qt/look/tool_looks.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "ferrowind/adapters/qt/look/glyphs.h"
#include "ferrowind/adapters/qt/look/line_icon.h"

namespace ferrowind::qt {
namespace {

struct Entry {
  std::string_view tool_id;
  Glyph (*glyph)();
  const char* shortcut;
};

constexpr std::array kLooks = {
    Entry{"ID_Refresh", RefreshGlyph, "F5"},
    Entry{"ID_New", NewCalendarGlyph, "Ctrl+N"},
    Entry{"ID_Expand", ExpandTreeGlyph, ""},
    Entry{"ID_Collapse", CollapseTreeGlyph, ""},
    Entry{"ID_ShowHide", GroupHeaderGlyph, "Ctrl+G"},
    Entry{"ID_ExpandGrid", ExpandRowsGlyph, ""},
    Entry{"ID_CollapseGrid", CollapseRowsGlyph, ""},
    Entry{"ID_ExpSel", ExpandSelectionGlyph, ""},
    Entry{"ID_Copy", CopyGlyph, "Ctrl+Shift+C"},
    Entry{"ID_AssignSingle", AssignOneGlyph, ""},
    Entry{"ID_AssignMany", AssignManyGlyph, ""},
    Entry{"ID_Except", ExceptGlyph, ""},
    Entry{"ID_Except2", ExceptWithTextGlyph, ""},
    Entry{"ID_PlanYear", PlanGlyph, ""},
    Entry{"ID_AllDays", AllDaysGlyph, ""},
    Entry{"ID_RuleBook", BookGlyph, ""},
    Entry{"ID_YearPlanner", YearGlyph, ""},
    Entry{"ID_YearWindow", YearWindowGlyph, ""},
    Entry{"ID_RefreshYear", RefreshGlyph, ""},
    Entry{"ID_YearBefore", YearBeforeGlyph, ""},
    Entry{"ID_YearAfter", YearAfterGlyph, ""},
    Entry{"ID_PrintYear", PrintGlyph, ""},
    Entry{"ID_SaveYearPdf", SaveDocumentGlyph, ""},
    Entry{"ID_SaveYearPicture", SavePictureGlyph, ""},
    Entry{"ID_ExceptDays", ExceptGlyph, ""},
    Entry{"ID_CloseDays", AssignOneGlyph, ""},
    Entry{"ID_History", HistoryGlyph, ""},
    Entry{"ID_DayHistory", HistoryGlyph, ""},
    Entry{"ID_Undo", UndoGlyph, ""},
    Entry{"ID_Import", ImportGlyph, ""},
    Entry{"ID_Export", ExportGlyph, ""},
    Entry{"ID_Find", FindGlyph, ""},
    Entry{"ID_GoToDate", GoToDateGlyph, ""},
    Entry{"ID_Why", QuestionGlyph, ""},
    Entry{"ID_OwnRules", CurrencyGlyph, ""},
};

}  // namespace

ToolLook ToolLookOf(const std::string& tool_id) {
  const auto* entry = std::find_if(kLooks.begin(), kLooks.end(),
                                   [&](const Entry& candidate) { return candidate.tool_id == tool_id; });
  if (entry == kLooks.end()) return {};
  return {LineIcon(entry->glyph), QKeySequence(QLatin1String(entry->shortcut))};
}

}  // namespace ferrowind::qt
