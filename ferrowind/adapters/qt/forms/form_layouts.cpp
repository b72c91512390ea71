#include "ferrowind/adapters/qt/forms/form_layouts.h"

#include "ui_fmAddHoliday.h"
#include "ui_fmAsOf.h"
#include "ui_fmAssignPreview.h"
#include "ui_fmCalendar.h"
#include "ui_fmCalendarThen.h"
#include "ui_fmCloseDays.h"
#include "ui_fmEnterHolidays.h"
#include "ui_fmExceptMess.h"
#include "ui_fmExport.h"
#include "ui_fmGoToDate.h"
#include "ui_fmHistory.h"
#include "ui_fmImport.h"
#include "ui_fmMessage.h"
#include "ui_fmProgress.h"
#include "ui_fmReadiness.h"
#include "ui_fmRuleBook.h"
#include "ui_fmSelectYear.h"
#include "ui_fmWait.h"
#include "ui_fmYearPlan.h"
#include "ui_fmYearPlanner.h"

namespace ferrowind::qt {

bool FormLayouts::Build(const std::string& form_name, QDialog& window) const {
  const auto found = builders_.find(form_name);
  if (found == builders_.end()) return false;
  found->second(window);
  return true;
}

FormLayouts ComponentLayouts() {
  FormLayouts layouts;
  layouts.AddGenerated<Ui::fmAddHoliday>("fmAddHoliday");
  layouts.AddGenerated<Ui::fmAsOf>("fmAsOf");
  layouts.AddGenerated<Ui::fmAssignPreview>("fmAssignPreview");
  layouts.AddGenerated<Ui::fmCalendar>("fmCalendar");
  layouts.AddGenerated<Ui::fmCalendarThen>("fmCalendarThen");
  layouts.AddGenerated<Ui::fmCloseDays>("fmCloseDays");
  layouts.AddGenerated<Ui::fmEnterHolidays>("fmEnterHolidays");
  layouts.AddGenerated<Ui::fmExceptMess>("fmExceptMess");
  layouts.AddGenerated<Ui::fmExport>("fmExport");
  layouts.AddGenerated<Ui::fmGoToDate>("fmGoToDate");
  layouts.AddGenerated<Ui::fmHistory>("fmHistory");
  layouts.AddGenerated<Ui::fmImport>("fmImport");
  layouts.AddGenerated<Ui::fmMessage>("fmMessage");
  layouts.AddGenerated<Ui::fmProgress>("fmProgress");
  layouts.AddGenerated<Ui::fmReadiness>("fmReadiness");
  layouts.AddGenerated<Ui::fmRuleBook>("fmRuleBook");
  layouts.AddGenerated<Ui::fmSelectYear>("fmSelectYear");
  layouts.AddGenerated<Ui::fmWait>("fmWait");
  layouts.AddGenerated<Ui::fmYearPlan>("fmYearPlan");
  layouts.AddGenerated<Ui::fmYearPlanner>("fmYearPlanner");
  return layouts;
}

}  // namespace ferrowind::qt
