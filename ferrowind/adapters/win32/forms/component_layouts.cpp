#include "ferrowind/adapters/win32/forms/form_layout.h"

namespace ferrowind::win32 {
namespace {

constexpr int kMargin = 10;

//: says 3
LayoutPlace Control(const char* name, int stretch = 0, const char* spoken_name = "") {
  return {.name = name, .stretch = stretch, .spoken_name = spoken_name};
}

LayoutPlace Row(std::vector<LayoutPlace> places, int stretch = 0) {
  return {.direction = LayoutDirection::kRow, .stretch = stretch, .places = std::move(places)};
}

LayoutPlace Column(std::vector<LayoutPlace> places, int stretch = 0) {
  return {.stretch = stretch, .places = std::move(places)};
}

LayoutPlace Held(const char* name, LayoutDirection direction, std::vector<LayoutPlace> places,
                 int stretch = 0, int margin = 0) {
  return {.name = name,
          .direction = direction,
          .stretch = stretch,
          .margin = margin,
          .places = std::move(places)};
}

/// Takes the room that the others leave.
LayoutPlace Rest() { return {.stretch = 1}; }

LayoutPlace Dialog(std::vector<LayoutPlace> places) {
  return {.margin = kMargin, .places = std::move(places)};
}

LayoutPlace Calendars() {
  return Column(
      {Held("ssspUp", LayoutDirection::kRow,
            {Held("pctToolBar", LayoutDirection::kRow, {Control("ssatb", 1)}, 1), Control("anim")}),
       Held("sssp", LayoutDirection::kRow,
            {Control("tvCalendar", 2, "Currencies and calendars"), Control("gexCalendar", 9, "Days")}, 1),
       Control("sbCalendar")});
}

LayoutPlace Holidays() {
  return Column({Row({Control("ssatb", 1)}),
                 Held("sssp", LayoutDirection::kRow,
                      {Control("gexHolidays", 1, "Holidays"),
                       Column({Held("frmEditors", LayoutDirection::kColumn,
                                    {Control("cmdAction0"), Control("cmdAction1"), Control("cmdAction2"),
                                     Control("cmdAction3"), Control("cmdAction4")}),
                               Rest(),
                               Held("pctAction", LayoutDirection::kColumn,
                                    {Held("Frame1", LayoutDirection::kColumn, {Control("cmdAction5")})})})},
                      1)});
}

LayoutPlace HolidayEditor() {
  return Dialog({Row({Control("lblHolidayType"), Control("cmbHolidayType", 1)}),
                 Held("frmFields", LayoutDirection::kColumn,
                      {Row({Control("lblName"), Control("txtName", 1)}),
                       Row({Control("lblDayOfWeek"), Control("lblFullDate"), Control("cmbDayOfWeek", 1),
                            Control("dtpFullDate", 1), Control("dtpHolidayPoint", 1)}),
                       Row({Control("lblComment"), Control("txtComment", 1)})}),
                 Rest(), Row({Rest(), Control("cmdOk"), Control("cmdCancel")})});
}

LayoutPlace YearQuestion() {
  // The arrows belong to the box.
  LayoutPlace year{
      .direction = LayoutDirection::kRow,
      .gap = 0,
      .places = {Held("pct", LayoutDirection::kRow, {Control("txtYear")}), Control("udYear", 0, "Year")}};
  return Dialog({Row({Control("lblCreate"), std::move(year), Rest()}), Control("lblRange"), Rest(),
                 Row({Rest(), Control("cmdCreate"), Control("cmdCancel")})});
}

LayoutPlace ExceptionQuestion() {
  return Dialog({Row({Control("lblMessage"), Control("txtMessage", 1)}), Rest(),
                 Row({Rest(), Control("cmdExcept"), Control("cmdCancel")})});
}

LayoutPlace Message() {
  return Dialog({Control("lblMessage", 1), Row({Rest(), Control("cmdOk"), Control("cmdCancel")})});
}

}  // namespace

FormLayouts ComponentLayouts() {
  FormLayouts layouts;
  layouts.Add("fmAddHoliday", HolidayEditor());
  layouts.Add("fmCalendar", Calendars());
  layouts.Add("fmEnterHolidays", Holidays());
  layouts.Add("fmExceptMess", ExceptionQuestion());
  layouts.Add("fmMessage", Message());
  layouts.Add("fmSelectYear", YearQuestion());
  layouts.Add("fmWait", Dialog({Control("lblMessage")}));
  return layouts;
}

}  // namespace ferrowind::win32
