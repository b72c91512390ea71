#pragma once

#include <QAction>
#include <QLineEdit>
#include <QObject>
#include <QString>

namespace ferrowind::qt {

/// Tells at a field, for as long as its text is longer than can be stored, how long it is and how long it may
/// be: by a mark at the field's end, a tip that opens below it while the operator types, and the field's
/// description for those who do not see it. The text stays as it is. Outer blanks do not count, since they
/// are not stored. Belongs to the field.
class LengthNote : public QObject {
  Q_OBJECT

 public:
  LengthNote(QLineEdit& line, qsizetype most_characters);

 private:
  void Look();
  void Tell(const QString& text);

  QLineEdit& line_;
  qsizetype most_characters_;
  QAction* mark_;
  QString description_before_;
  QString told_;
};

}  // namespace ferrowind::qt
