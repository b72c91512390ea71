#pragma once

#include <QObject>
#include <QString>

#include "host/desktop/watched_engine.h"

namespace ferrowind::host {

/// What stands between the operator and the database: the failure of its last use, until a later use works.
class DatabaseTrouble : public QObject, public DatabaseObserver {
  Q_OBJECT

 public:
  void DatabaseAnswered() override;
  void DatabaseFailed(const platform::Failure& failure) override;

  /// In the operator's words, with when and why, and without any password; empty when all is well.
  [[nodiscard]] const QString& Text() const { return text_; }

 signals:
  /// `text` as `Text`.
  void Changed(const QString& text);

 private:
  QString text_;
};

}  // namespace ferrowind::host
