#pragma once

#include <atomic>
#include <type_traits>

#include <oaidl.h>
#include <ocidl.h>
#include <oleidl.h>

namespace ferrowind::windows {

/// Whether a pointer to `Interface` serves those who ask for `iid`: its own identifier, or that of an
/// interface that it extends.
template <typename Interface>
[[nodiscard]] bool ServesAs(REFIID iid) {
  const auto serves = [&iid]<typename Base>(std::type_identity<Base>) {
    if constexpr (std::is_base_of_v<Base, Interface>) {
      return IsEqualIID(iid, __uuidof(Base)) != FALSE;
    } else {
      return false;
    }
  };
  return serves(std::type_identity<Interface>()) || serves(std::type_identity<IDispatch>()) ||
         serves(std::type_identity<IPersist>()) || serves(std::type_identity<IOleWindow>()) ||
         serves(std::type_identity<IViewObject>()) || serves(std::type_identity<IProvideClassInfo>());
}

// Interfaces of the platform cannot have a virtual destructor: it would be a slot of theirs.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// An object that others hold by counted references to some of its interfaces. Made by `new` it has one
/// reference, its maker's, and deletes itself with the last one. `Keeper` is a part of it, for what is to
/// be kept as long as it lives.
template <typename Keeper, typename First, typename... Others>
class ComObject : public First, public Others... {
 public:
  ComObject() = default;
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (IsEqualIID(iid, __uuidof(IUnknown))) {
      *object = static_cast<First*>(this);
    } else if (!Find<First>(iid, object) && !(Find<Others>(iid, object) || ...)) {
      return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) {
      // Whoever is told by the end of the object may still count references to it.
      references_ = kEnding;
      delete this;
    }
    return left;
  }

 protected:
  virtual ~ComObject() = default;

 private:
  static constexpr ULONG kEnding = 0x40000000;

  template <typename Interface>
  bool Find(REFIID iid, void** object) {
    if (!ServesAs<Interface>(iid)) return false;
    *object = static_cast<Interface*>(this);
    return true;
  }

  [[no_unique_address]] Keeper keeper_;
  std::atomic<ULONG> references_{1};
};

#pragma GCC diagnostic pop

}  // namespace ferrowind::windows
