#include "ferrowind/adapters/qt/designer/calendar_widget_plugin.h"

#include <QIcon>

#include "ferrowind/adapters/qt/embedding/calendar_widget.h"
#include "ferrowind/adapters/qt/look/tree_images.h"

namespace ferrowind::qt {

QString CalendarWidgetPlugin::name() const { return QStringLiteral("ferrowind::qt::CalendarWidget"); }

QString CalendarWidgetPlugin::group() const { return QStringLiteral("Ferrowind"); }

QString CalendarWidgetPlugin::toolTip() const {
  return QStringLiteral("Opens the holiday calendars of currencies");
}

QString CalendarWidgetPlugin::whatsThis() const {
  return QStringLiteral(
      "The program gives it its platform by SetPlatform and opens the calendars by ShowInFront.");
}

QString CalendarWidgetPlugin::includeFile() const {
  return QStringLiteral("ferrowind/adapters/qt/embedding/calendar_widget.h");
}

QIcon CalendarWidgetPlugin::icon() const { return TreeImage("Calendar"); }

QWidget* CalendarWidgetPlugin::createWidget(QWidget* parent) { return new CalendarWidget(parent); }

QString CalendarWidgetPlugin::domXml() const {
  return QStringLiteral(R"(<ui language="c++">
  <widget class="ferrowind::qt::CalendarWidget" name="calendar"/>
  <customwidgets>
    <customwidget>
      <class>ferrowind::qt::CalendarWidget</class>
      <extends>QWidget</extends>
      <header location="global">ferrowind/adapters/qt/embedding/calendar_widget.h</header>
      <slots><slot>ShowInFront()</slot></slots>
    </customwidget>
  </customwidgets>
</ui>
)");
}

}  // namespace ferrowind::qt
