#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QObject>
#include <QString>

namespace ferrowind::qt {

/// Lets the operator type the space of an item's text: in the midst of typing, a space that some item goes on
/// with is one more letter. Any other space opens the list, as Qt has it for every one. Lives as long as the
/// box.
class SpaceInTypeAhead : public QObject {
 public:
  /// The box is not editable.
  explicit SpaceInTypeAhead(QComboBox& box);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool BeginsAnItem(const QString& text) const;
  void SearchOn(const QString& keys);

  QComboBox& box_;
  /// What was typed in one go until now.
  QString typed_;
  QElapsedTimer since_last_key_;
};

}  // namespace ferrowind::qt
