#pragma once

#include <QWidget>

namespace ferrowind::qt {

/// The image beside a question. Drawn with each paint, so that it is crisp on any screen and follows the
/// theme.
class QuestionImage : public QWidget {
  Q_OBJECT

 public:
  explicit QuestionImage(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace ferrowind::qt
