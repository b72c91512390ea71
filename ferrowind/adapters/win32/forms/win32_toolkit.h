#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/win32/forms/form_layout.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/services/words.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::win32 {

class WindowThread;

/// The toolkit on the platform's own windows. Used on one thread, whose host runs a message loop; it asks
/// nothing of that loop but that it dispatches messages.
class FERROWIND_EXPORT Win32Toolkit final : public platform::Toolkit {
 public:
  /// `layouts` may have more forms than the component's own. `words` has the adapter's texts in the
  /// operator's language, null for English; it must outlive the toolkit.
  explicit Win32Toolkit(FormLayouts layouts = ComponentLayouts(), const platform::Words* words = nullptr);
  ~Win32Toolkit() override;

  [[nodiscard]] std::shared_ptr<platform::Form> CreateForm(const platform::FormDesign& design) override;
  [[nodiscard]] platform::ScreenSize Screen() const override;
  [[nodiscard]] float TwipsPerPixelX() const override;
  bool LockUpdates(platform::Element& element) override;
  void UnlockUpdates() override;
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

  /// Ends the modal forms on show by an `Interruption`: the host is ending.
  void InterruptModalForms();

 private:
  class UpdateLock;

  FormLayouts layouts_;
  std::shared_ptr<WindowThread> thread_;
  std::unique_ptr<UpdateLock> lock_;
};

}  // namespace ferrowind::win32
