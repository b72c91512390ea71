#pragma once

#include <utility>

#include <unknwn.h>

namespace ferrowind::windows {

/// A counted reference to an interface, or none. MinGW-w64 has a class for that too, whose `Attach` counts
/// the reference once more.
template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  /// One reference more.
  ComPointer(Interface* other) : pointer_(other) {
    if (pointer_ != nullptr) pointer_->AddRef();
  }
  ComPointer(const ComPointer& other) : ComPointer(other.pointer_) {}
  ComPointer(ComPointer&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  template <typename Other>
  ComPointer(const ComPointer<Other>& other) : ComPointer(static_cast<Interface*>(other.Get())) {}
  ~ComPointer() { Reset(); }
  ComPointer& operator=(ComPointer other) noexcept {
    Swap(other);
    return *this;
  }

  [[nodiscard]] Interface* Get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  friend bool operator==(const ComPointer& left, const ComPointer& right) = default;

  /// Takes a reference over.
  void Attach(Interface* other) {
    Reset();
    pointer_ = other;
  }
  /// Gives its reference away.
  [[nodiscard]] Interface* Detach() { return std::exchange(pointer_, nullptr); }
  /// Empty before it releases, since whoever ends may come back here.
  void Reset() {
    if (Interface* const released = Detach()) released->Release();
  }
  void Swap(ComPointer& other) noexcept { std::swap(pointer_, other.pointer_); }
  /// Empties it, for functions that give a reference.
  [[nodiscard]] Interface** Receive() {
    Reset();
    return &pointer_;
  }
  /// The same, for those that give what they are asked for by its identifier.
  [[nodiscard]] void** ReceiveAny() { return reinterpret_cast<void**>(Receive()); }

  /// Another interface of the same object.
  template <typename Other>
  [[nodiscard]] HRESULT As(ComPointer<Other>& other) const {
    return pointer_->QueryInterface(__uuidof(Other), other.ReceiveAny());
  }
  /// One more reference, for the caller.
  template <typename Base>
  HRESULT CopyTo(Base** to) const {
    *to = pointer_;
    if (pointer_ != nullptr) pointer_->AddRef();
    return S_OK;
  }

 private:
  Interface* pointer_ = nullptr;
};

}  // namespace ferrowind::windows
