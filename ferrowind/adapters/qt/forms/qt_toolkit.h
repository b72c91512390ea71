#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/qt/forms/form_layouts.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::qt {

class QtForm;
class UpdateHold;

/// The toolkit over Qt Widgets. Needs the QApplication, on whose thread it is used.
///
/// When the application is asked to quit, the modal forms and messages on show are interrupted, also where
/// another window then refuses to close. At the end of the desktop's session its forms on show are closed by
/// `CloseForms`; one that stays open holds the end back where the desktop allows that.
class FERROWIND_EXPORT QtToolkit : public platform::Toolkit {
 public:
  /// `layouts` may have more forms than the component's own.
  explicit QtToolkit(FormLayouts layouts = ComponentLayouts());
  ~QtToolkit() override;

  [[nodiscard]] std::shared_ptr<platform::Form> CreateForm(const platform::FormDesign& design) override;
  [[nodiscard]] platform::ScreenSize Screen() const override;
  [[nodiscard]] float TwipsPerPixelX() const override;
  bool LockUpdates(platform::Element& element) override;
  void UnlockUpdates() override;
  /// Whether a lock is on, of an element that is still there.
  [[nodiscard]] bool UpdatesAreLocked() const;
  [[nodiscard]] platform::Subscription After(std::int32_t milliseconds,
                                             std::function<void()> handler) override;
  [[nodiscard]] std::optional<std::string> ChooseFileToSave(
      const std::string& title, const std::string& suggested_name,
      const std::vector<platform::FileKind>& kinds) override;
  [[nodiscard]] std::optional<std::string> ChooseFileToOpen(
      const std::string& title, const std::string& caption,
      const std::vector<std::string>& suffixes) override;
  void SetClipboardText(const std::string& text) override;
  void ProcessPendingEvents() override;
  void Beep() override;

  /// Makes the next form of that name a part of `place`, and of its layout where it has one, instead of a
  /// window. `place` must outlive the form. Showing such a form does not show the window around it, and that
  /// window alone decides when it closes.
  void PlaceForm(const std::string& form_name, QWidget& place);

  /// Asks the windows on show to close, the newest first, until one refuses. Closes none while a dialog
  /// without a close box is open: what waits for the operator's answer would take the closing for one. True
  /// when all are closed.
  [[nodiscard]] bool CloseForms();

 private:
  /// The answer to a question for a file, whose folder is where the next question begins.
  [[nodiscard]] std::optional<std::string> Kept(const std::optional<QString>& chosen);

  FormLayouts layouts_;
  std::map<std::string, QPointer<QWidget>> places_;
  std::vector<std::weak_ptr<QtForm>> forms_;
  QPointer<QWidget> locked_;
  std::unique_ptr<UpdateHold> hold_;
  std::unique_ptr<QObject> quit_watch_;
  /// Where the operator chose a file last; empty before that.
  QString last_folder_;
  QObject context_;
};

}  // namespace ferrowind::qt
