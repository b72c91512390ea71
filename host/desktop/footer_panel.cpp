#include "host/desktop/footer_panel.h"

#include <QVBoxLayout>

namespace ferrowind::host {
namespace {

/// A window keeps at least three quarters of its height to itself.
constexpr int kShareOfHeight = 4;
constexpr QMargins kNoteMargins(10, 3, 10, 4);

}  // namespace

FooterPanel::FooterPanel(QWidget* parent)
    : QWidget(parent),
      trouble_(new TroubleBar),
      note_line_(new QWidget),
      note_(new ScrolledText(QStringLiteral("noteText"))) {
  setObjectName(QStringLiteral("footer"));
  setAutoFillBackground(true);
  auto* const line = new QVBoxLayout(note_line_);
  line->setContentsMargins(kNoteMargins);
  line->addWidget(note_);
  note_line_->hide();
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  layout->addWidget(trouble_);
  layout->addWidget(note_line_);
  connect(trouble_, &TroubleBar::Dismissed, this, &FooterPanel::Dismissed);
}

void FooterPanel::Tell(const QString& trouble, const QString& note) {
  trouble_->Tell(trouble);
  note_->SetText(note);
  note_line_->setVisible(!note.isEmpty());
}

void FooterPanel::FitInto(const QSize& window) {
  int room = window.height() / kShareOfHeight;
  const int room_of_note = trouble_->isHidden() ? room : room / 2;
  note_->SetMostHeight(room_of_note - kNoteMargins.top() - kNoteMargins.bottom());
  if (!note_line_->isHidden()) room -= note_line_->layout()->totalHeightForWidth(window.width());
  trouble_->SetMostHeight(room);
}

bool FooterPanel::HasRoomIn(const QSize& window) const {
  return heightForWidth(window.width()) * kShareOfHeight <= window.height();
}

}  // namespace ferrowind::host
