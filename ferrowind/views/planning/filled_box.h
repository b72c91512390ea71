#pragma once

#include <string>

#include "ferrowind/platform/toolkit/text_box.h"

namespace ferrowind {

/// Fills the box without a change when it has the text already, so that the cursor stays where it is.
inline void FillBox(platform::TextBox& box, const std::string& text) {
  if (box.Text() != text) box.SetText(text);
}

}  // namespace ferrowind
