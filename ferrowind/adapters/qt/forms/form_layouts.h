#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <string>

#include "ferrowind/export.h"

namespace ferrowind::qt {

/// The layouts that a toolkit makes its forms from, by form name.
///
/// A layout fills a window with widgets that bear the form's control names as object names and fit the
/// controls' kinds; its texts are only there for the designer.
class FERROWIND_EXPORT FormLayouts {
 public:
  /// Fills an empty window.
  using Builder = std::function<void(QDialog& window)>;

  /// A layout of the same name is replaced.
  void Add(const std::string& form_name, Builder builder) { builders_[form_name] = std::move(builder); }
  /// The layout that uic made from a .ui file whose root is a QDialog.
  template <typename Generated>
  void AddGenerated(const std::string& form_name) {
    // Nothing of the generated object is needed afterwards: controls are found by their names.
    Add(form_name, [](QDialog& window) { Generated().setupUi(&window); });
  }
  /// False when there is no layout of that name.
  [[nodiscard]] bool Build(const std::string& form_name, QDialog& window) const;

 private:
  std::map<std::string, Builder> builders_;
};

/// The layouts of the component's own forms.
[[nodiscard]] FERROWIND_EXPORT FormLayouts ComponentLayouts();

}  // namespace ferrowind::qt
