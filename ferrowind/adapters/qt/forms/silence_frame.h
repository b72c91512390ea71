#pragma once

#include <QFrame>

namespace ferrowind::qt {

/// The bar of a server that does not answer, as the layouts of forms have it: the same in all of them. Its
/// labels and its button are controls of the form by their names.
class SilenceFrame : public QFrame {
 public:
  explicit SilenceFrame(QWidget* parent = nullptr);
};

}  // namespace ferrowind::qt
