// The tables of virtual functions of all public interfaces, whose sizes the check of exported symbols
// compares. Without optimising, the compiler keeps the table of a class wherever something that is derived of
// it is made.

#include "ferrowind/adapters/services/trace_sink.h"
#include "ferrowind/platform/additions/additions.h"
#include "ferrowind/platform/additions/calendars_additions.h"
#include "ferrowind/platform/additions/calendars_scene.h"
#include "ferrowind/platform/additions/holidays_additions.h"
#include "ferrowind/platform/additions/holidays_scene.h"
#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/database/engine.h"
#include "ferrowind/platform/database/silence_watch.h"
#include "ferrowind/platform/services/action_observer.h"
#include "ferrowind/platform/services/clock.h"
#include "ferrowind/platform/services/dictionary.h"
#include "ferrowind/platform/services/locale.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/services/shared_services.h"
#include "ferrowind/platform/services/words.h"
#include "ferrowind/platform/toolkit/animation.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/control_site.h"
#include "ferrowind/platform/toolkit/date_picker.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/grid_column.h"
#include "ferrowind/platform/toolkit/grid_keys.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/status_bar.h"
#include "ferrowind/platform/toolkit/table.h"
#include "ferrowind/platform/toolkit/text_box.h"
#include "ferrowind/platform/toolkit/text_view.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/toolkit/toolkit.h"
#include "ferrowind/platform/toolkit/tree.h"
#include "ferrowind/platform/toolkit/up_down.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::testing {

template <typename... Interfaces>
struct Implementers : Interfaces... {
  Implementers();
};

template <typename... Interfaces>
Implementers<Interfaces...>::Implementers() = default;

template struct Implementers<TraceSink>;
template struct Implementers<platform::Additions, platform::CalendarsAdditions, platform::CalendarsScene,
                             platform::HolidaysAdditions, platform::HolidaysScene>;
template struct Implementers<platform::ChangeWatch, platform::ChangeWatchFactory, platform::Command,
                             platform::CommandFactory, platform::Connection, platform::Engine,
                             platform::ResultCursor, platform::SilenceWatch>;
template struct Implementers<platform::ActionObserver, platform::Clock, platform::Dictionary,
                             platform::Locale, platform::ObjectFactory, platform::Words>;
template struct Implementers<platform::SharedServices>;
template struct Implementers<platform::ControlSite, platform::GridColumn, platform::GridKeyList,
                             platform::GridValueList, platform::Toolkit>;
template struct Implementers<platform::Animation>;
template struct Implementers<platform::Button>;
template struct Implementers<platform::DatePicker>;
template struct Implementers<platform::DropDownList>;
template struct Implementers<platform::Form>;
template struct Implementers<platform::Grid>;
template struct Implementers<platform::Label>;
template struct Implementers<platform::StatusBar>;
template struct Implementers<platform::Table>;
template struct Implementers<platform::TextBox>;
template struct Implementers<platform::TextView>;
template struct Implementers<platform::ToolBar>;
template struct Implementers<platform::Tree>;
template struct Implementers<platform::UpDown>;
template struct Implementers<platform::YearView>;

}  // namespace ferrowind::testing
