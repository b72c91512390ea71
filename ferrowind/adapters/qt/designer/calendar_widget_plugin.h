#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace ferrowind::qt {

/// `CalendarWidget` among the widgets that Qt Designer offers. What it makes has no control: the host gives
/// it its platform.
class CalendarWidgetPlugin : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  [[nodiscard]] QString name() const override;
  [[nodiscard]] QString group() const override;
  [[nodiscard]] QString toolTip() const override;
  [[nodiscard]] QString whatsThis() const override;
  [[nodiscard]] QString includeFile() const override;
  [[nodiscard]] QIcon icon() const override;
  [[nodiscard]] bool isContainer() const override { return false; }
  [[nodiscard]] QWidget* createWidget(QWidget* parent) override;
  [[nodiscard]] QString domXml() const override;
};

}  // namespace ferrowind::qt
