#pragma once

#include <utility>

#include <oaidl.h>
#include <oleauto.h>

namespace ferrowind::automation {

/// Owns what a VARIANT holds; empty at first.
class OwnedVariant {
 public:
  OwnedVariant() { VariantInit(&variant_); }
  ~OwnedVariant() { VariantClear(&variant_); }
  OwnedVariant(OwnedVariant&& other) noexcept : OwnedVariant() { std::swap(variant_, other.variant_); }
  OwnedVariant& operator=(OwnedVariant&& other) noexcept {
    std::swap(variant_, other.variant_);
    return *this;
  }

  [[nodiscard]] const VARIANT& Get() const { return variant_; }
  [[nodiscard]] VARTYPE Type() const { return V_VT(&variant_); }
  /// For functions that fill or read it.
  [[nodiscard]] VARIANT* Address() { return &variant_; }
  /// Gives it away and is empty afterwards.
  [[nodiscard]] VARIANT Release() {
    VARIANT released;
    VariantInit(&released);
    std::swap(released, variant_);
    return released;
  }

 private:
  VARIANT variant_;
};

}  // namespace ferrowind::automation
