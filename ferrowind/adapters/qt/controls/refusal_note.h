#pragma once

#include <QLabel>

namespace ferrowind::qt {

/// Tells below a field why what it holds is refused: a text behind a mark. Hidden without a text.
class RefusalNote : public QLabel {
  Q_OBJECT

 public:
  explicit RefusalNote(QWidget* parent = nullptr);

 public Q_SLOTS:
  void ShowRefusal(const QString& refusal);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace ferrowind::qt
