#include "ferrowind/adapters/glyphs/tool_faces.h"

#include <algorithm>
#include <array>

#include "ferrowind/adapters/glyphs/glyphs.h"

namespace ferrowind::glyphs {
namespace {

constexpr std::array kFaces = {
    ToolFace{"ID_Refresh", RefreshGlyph, "F5"},
    ToolFace{"ID_New", NewCalendarGlyph, "Ctrl+N"},
    ToolFace{"ID_Expand", ExpandTreeGlyph},
    ToolFace{"ID_Collapse", CollapseTreeGlyph},
    ToolFace{"ID_ShowHide", GroupHeaderGlyph, "Ctrl+G"},
    ToolFace{"ID_ExpandGrid", ExpandRowsGlyph},
    ToolFace{"ID_CollapseGrid", CollapseRowsGlyph},
    ToolFace{"ID_ExpSel", ExpandSelectionGlyph},
    ToolFace{"ID_Copy", CopyGlyph, "Ctrl+Shift+C"},
    ToolFace{"ID_AssignSingle", AssignOneGlyph},
    ToolFace{"ID_AssignMany", AssignManyGlyph},
    ToolFace{"ID_Except", ExceptGlyph},
    ToolFace{"ID_Except2", ExceptWithTextGlyph},
    ToolFace{"ID_PlanYear", PlanGlyph},
    ToolFace{"ID_AllDays", AllDaysGlyph},
    ToolFace{"ID_RuleBook", BookGlyph},
    ToolFace{"ID_YearPlanner", YearGlyph},
    ToolFace{"ID_YearWindow", YearWindowGlyph},
    ToolFace{"ID_RefreshYear", RefreshGlyph},
    ToolFace{"ID_YearBefore", YearBeforeGlyph},
    ToolFace{"ID_YearAfter", YearAfterGlyph},
    ToolFace{"ID_PrintYear", PrintGlyph},
    ToolFace{"ID_SaveYearPdf", SaveDocumentGlyph},
    ToolFace{"ID_SaveYearPicture", SavePictureGlyph},
    ToolFace{"ID_ExceptDays", ExceptGlyph},
    ToolFace{"ID_CloseDays", AssignOneGlyph},
    ToolFace{"ID_History", HistoryGlyph},
    ToolFace{"ID_DayHistory", HistoryGlyph},
    ToolFace{"ID_Undo", UndoGlyph},
    ToolFace{"ID_Import", ImportGlyph},
    ToolFace{"ID_Export", ExportGlyph},
    ToolFace{"ID_Find", FindGlyph},
    ToolFace{"ID_GoToDate", GoToDateGlyph},
    ToolFace{"ID_Why", QuestionGlyph},
    ToolFace{"ID_OwnRules", CurrencyGlyph},
};

}  // namespace

const ToolFace* FindToolFace(std::string_view tool_id) {
  const auto* face = std::find_if(kFaces.begin(), kFaces.end(),
                                  [&](const ToolFace& candidate) { return candidate.tool_id == tool_id; });
  return face == kFaces.end() ? nullptr : face;
}

}  // namespace ferrowind::glyphs
