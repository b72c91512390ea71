#include "ferrowind/adapters/win32/base/present_controls.h"

#include "ferrowind/adapters/win32/base/this_module.h"

namespace ferrowind::win32 {
namespace {

/// What the manifest of this file says, for as long as the file is loaded.
class ManifestContext {
 public:
  ManifestContext() {
    // The number that libraries have theirs under.
    constexpr WORD kManifest = 2;
    ACTCTXW context{};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.hModule = ThisModule();
    context.lpResourceName = MAKEINTRESOURCEW(kManifest);
    handle_ = CreateActCtxW(&context);
  }
  ~ManifestContext() {
    if (IsThere()) ReleaseActCtx(handle_);
  }
  ManifestContext(const ManifestContext&) = delete;
  ManifestContext& operator=(const ManifestContext&) = delete;

  [[nodiscard]] bool IsThere() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

PresentControls::PresentControls() {
  static const ManifestContext context;
  is_active_ = context.IsThere() && ActivateActCtx(context.Get(), &cookie_) != FALSE;
}

PresentControls::~PresentControls() {
  if (is_active_) DeactivateActCtx(0, cookie_);
}

}  // namespace ferrowind::win32
