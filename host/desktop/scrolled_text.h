#pragma once

#include <QLabel>
#include <QScrollArea>
#include <QString>

namespace ferrowind::host {

/// A text of any length that takes no more than a few lines: a longer one scrolls, by keyboard too. Plain
/// text, never markup, that the mouse can select.
class ScrolledText : public QScrollArea {
  Q_OBJECT

 public:
  /// `name` is the object name of the label with the text.
  explicit ScrolledText(const QString& name, QWidget* parent = nullptr);

  void SetText(const QString& text);
  [[nodiscard]] QLabel& Label() { return *label_; }
  /// The height beyond which the text scrolls, in pixels, within one and a few lines; those at first.
  void SetMostHeight(int height);

  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FollowLength();

  QLabel* label_;
  int most_height_;
};

}  // namespace ferrowind::host
