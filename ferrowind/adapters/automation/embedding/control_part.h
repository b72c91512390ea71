#pragma once

#include <utility>

#include <unknwn.h>

#include "ferrowind/adapters/automation/call_guard.h"
#include "ferrowind/adapters/windows/com_object.h"

namespace ferrowind::automation {

// Interfaces of the platform cannot have a virtual destructor: it would be a slot of theirs.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Some interfaces of a control, in a class of their own. References to them are references to the control,
/// which is asked for its other interfaces; the part has none itself.
template <typename... Interfaces>
class ControlPart : public Interfaces... {
 public:
  /// `control` holds this part.
  explicit ControlPart(IUnknown& control) : control_(control) {}
  ControlPart(const ControlPart&) = delete;
  ControlPart& operator=(const ControlPart&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    return control_.QueryInterface(iid, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return control_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return control_.Release(); }

  /// The interface of that identifier, not counted; null when it is none of this part's.
  [[nodiscard]] void* Find(REFIID iid) {
    void* found = nullptr;
    const auto serves = [&]<typename Interface>(Interface* as) {
      if (!windows::ServesAs<Interface>(iid)) return false;
      found = as;
      return true;
    };
    static_cast<void>((serves(static_cast<Interfaces*>(this)) || ...));
    return found;
  }

 protected:
  virtual ~ControlPart() = default;

  /// Runs what a container called and returns its result. Nothing is thrown; the control stays until the call
  /// is over, whatever the container releases meanwhile.
  template <typename Body>
  [[nodiscard]] HRESULT Guard(Body&& body) noexcept {
    HRESULT result = S_OK;
    const HRESULT guarded = Guarded(&control_, GUID_NULL, [&] { result = std::forward<Body>(body)(); });
    return FAILED(guarded) ? guarded : result;
  }

 private:
  IUnknown& control_;
};

#pragma GCC diagnostic pop

}  // namespace ferrowind::automation
