#include "ferrowind/adapters/qt/forms/silence_frame.h"

#include "ui_silence_bar.h"

namespace ferrowind::qt {

SilenceFrame::SilenceFrame(QWidget* parent) : QFrame(parent) {
  // Nothing of the generated object is needed afterwards: controls are found by their names.
  Ui::SilenceBar().setupUi(this);
}

}  // namespace ferrowind::qt
