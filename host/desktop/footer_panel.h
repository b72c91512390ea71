#pragma once

#include <QString>
#include <QWidget>

#include "host/desktop/scrolled_text.h"
#include "host/desktop/trouble_bar.h"

namespace ferrowind::host {

/// What the host has to say at the bottom of a window: the bar of a trouble, and below it a note.
class FooterPanel : public QWidget {
  Q_OBJECT

 public:
  explicit FooterPanel(QWidget* parent);

  /// Each may be empty, and then takes no room.
  void Tell(const QString& trouble, const QString& note);
  /// Has long texts scroll in the part of a window of that size that is for the host.
  void FitInto(const QSize& window);
  /// Whether that part has room for the panel at that width.
  [[nodiscard]] bool HasRoomIn(const QSize& window) const;

 signals:
  void Dismissed();

 private:
  TroubleBar* trouble_;
  /// The note with its margins.
  QWidget* note_line_;
  ScrolledText* note_;
};

}  // namespace ferrowind::host
