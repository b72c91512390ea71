#pragma once

#include <string>
#include <string_view>
#include <utility>

#include <oaidl.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/text.h"

namespace ferrowind::automation {

/// Owns a BSTR.
class OwnedBstr {
 public:
  OwnedBstr() = default;
  explicit OwnedBstr(std::string_view utf8) : text_(NewBstr(utf8)) {}
  ~OwnedBstr() { SysFreeString(text_); }
  OwnedBstr(OwnedBstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  OwnedBstr& operator=(OwnedBstr&& other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }

  [[nodiscard]] BSTR Get() const { return text_; }
  /// For functions that replace the text, as those do which take it by reference.
  [[nodiscard]] BSTR* Address() { return &text_; }
  [[nodiscard]] std::string Utf8() const { return Utf8OfBstr(text_); }

 private:
  BSTR text_ = nullptr;
};

}  // namespace ferrowind::automation
