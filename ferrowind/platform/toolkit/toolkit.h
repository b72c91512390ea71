#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/animation.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/platform/toolkit/control.h"
#include "ferrowind/platform/toolkit/control_site.h"
#include "ferrowind/platform/toolkit/date_picker.h"
#include "ferrowind/platform/toolkit/drop_down_list.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/form_design.h"
#include "ferrowind/platform/toolkit/grid.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/status_bar.h"
#include "ferrowind/platform/toolkit/table.h"
#include "ferrowind/platform/toolkit/text_box.h"
#include "ferrowind/platform/toolkit/text_view.h"
#include "ferrowind/platform/toolkit/tool_bar.h"
#include "ferrowind/platform/toolkit/tree.h"
#include "ferrowind/platform/toolkit/up_down.h"
#include "ferrowind/platform/toolkit/year_view.h"

namespace ferrowind::platform {

/// A size on the screen, in twips.
struct FERROWIND_EXPORT ScreenSize {
  ///@{
  /// Greater than 0.
  float width = 0;
  float height = 0;
  ///@}
};

/// A kind of file that the operator can choose.
struct FERROWIND_EXPORT FileKind {
  /// "PDF document".
  std::string caption;
  /// Without a dot: "pdf".
  std::string suffix;
};

/// The user-interface toolkit of the host's thread.
class FERROWIND_EXPORT Toolkit {
 public:
  virtual ~Toolkit() = default;

  /// Makes the form of that name with the controls of the design, not loaded and not shown; never null. A
  /// form that the toolkit has no layout for, or a layout that lacks a control of the design, is a failure
  /// that names it. Controls of the layout that the design does not have are left out, and take no room.
  [[nodiscard]] virtual std::shared_ptr<Form> CreateForm(const FormDesign& design) = 0;

  /// The whole screen that new windows open on, with the areas that the desktop keeps for itself: half of it
  /// is the middle, wherever those areas are.
  [[nodiscard]] virtual ScreenSize Screen() const = 0;
  /// 1440 divided by the screen's horizontal resolution in dots per inch.
  [[nodiscard]] virtual float TwipsPerPixelX() const = 0;

  /// Stops repainting of `element` and all in it until `UnlockUpdates`; the rest of its form may stand still
  /// as well. Only one element can be locked at a time: true when it is locked now, false when another lock
  /// was on already and this call did nothing.
  virtual bool LockUpdates(Element& element) = 0;
  /// Ends the lock and repaints once what has changed; does nothing without a lock, or when the locked
  /// element is gone.
  virtual void UnlockUpdates() = 0;

  /// Calls `handler` once, that many milliseconds from now or a little later, on the user-interface thread
  /// and never from inside this call; dropping the subscription before calls it off. A negative time is the
  /// failure Invalid argument. Handlers must not throw.
  [[nodiscard]] virtual Subscription After(std::int32_t milliseconds, std::function<void()> handler) = 0;

  /// Asks the operator for a file to write and returns its path in UTF-8, or nothing when they chose none.
  /// `title` says what for; `suggested_name` has neither folder nor suffix; `kinds`, of which there is at
  /// least one, begin with the usual one. A name that is chosen without a suffix gets that of the kind
  /// chosen. The operator has agreed to replace a file that is there already.
  ///
  /// The question belongs to a window as a modal form does (`Form::ShowModal`) and goes with it: then, and at
  /// the end of the application, it fails with an `Interruption`.
  [[nodiscard]] virtual std::optional<std::string> ChooseFileToSave(const std::string& title,
                                                                    const std::string& suggested_name,
                                                                    const std::vector<FileKind>& kinds) = 0;
  /// Asks the operator for a file to read and returns its path in UTF-8, or nothing when they chose none.
  /// `title` says what for. At first the files with one of `suffixes` (without dots, at least one) are on
  /// show, which `caption` names ("Lists of days"); the operator can have all shown. The file was there when
  /// it was chosen. The question belongs to a window as `ChooseFileToSave` does.
  [[nodiscard]] virtual std::optional<std::string> ChooseFileToOpen(
      const std::string& title, const std::string& caption, const std::vector<std::string>& suffixes) = 0;
  /// Puts a text where the operator can paste it from.
  virtual void SetClipboardText(const std::string& text) = 0;

  /// Handles the user-interface messages that wait, and returns.
  virtual void ProcessPendingEvents() = 0;
  /// Sounds the desktop's signal, where it has one.
  virtual void Beep() = 0;
};

}  // namespace ferrowind::platform
