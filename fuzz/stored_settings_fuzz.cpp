// Reads the input as what a user's settings hold: a layout of columns, a value, and the whole file. Whatever
// it is, a layout and a value are none or stay the same when they are stored again, and places are within
// reach.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "ferrowind/adapters/grid_content/grid_layout.h"
#include "ferrowind/adapters/operator_services/setting_text.h"
#include "ferrowind/adapters/qt/services/settings_store.h"
#include "ferrowind/adapters/qt/values/twips.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/value.h"

#include "fuzz/expectation.h"
#include "fuzz/scratch_folder.h"

namespace {

using ferrowind::fuzz::Expect;
using ferrowind::platform::Failure;
using ferrowind::platform::Value;

constexpr int kFarthestPixel = 32767;

void TryLayout(const std::string& text) {
  const auto layout = ferrowind::grid_content::DecodeLayout(text);
  if (!layout) return;
  for (const auto& column : layout->columns) Expect(column.width > 0, "a column has a width");
  const std::string written = ferrowind::grid_content::EncodeLayout(*layout);
  const auto again = ferrowind::grid_content::DecodeLayout(written);
  Expect(again.has_value(), "a layout that is written is read");
  Expect(again->columns.size() == layout->columns.size(), "a layout keeps its columns");
  Expect(ferrowind::grid_content::EncodeLayout(*again) == written, "a layout stays the same");
}

/// As windows take it for a place.
void TryPlace(const Value& value) {
  try {
    const float twips = ferrowind::platform::ToSingle(value);
    for (const int pixels : {ferrowind::qt::PixelsX(twips), ferrowind::qt::PixelsY(twips)}) {
      Expect(pixels >= -kFarthestPixel && pixels <= kFarthestPixel, "a place is within reach of a screen");
    }
  } catch (const Failure&) {
    // It is no number, and the window stays where it is.
  }
}

void TryValue(const std::string& text) {
  const Value value = ferrowind::SettingValue(text);
  const std::string written = ferrowind::SettingText(value);
  Expect(ferrowind::SettingText(ferrowind::SettingValue(written)) == written, "a value stays the same");
  TryPlace(value);
}

void TryFile(const std::string& bytes) {
  static const ferrowind::fuzz::ScratchFolder folder;
  const std::string path = folder.File("settings.ini");
  ferrowind::fuzz::WriteFile(path, bytes);
  const ferrowind::qt::SettingsStore store(path);
  for (const char* const name : {"Left", "Top", "Width", "Height"}) {
    if (const auto value = store.Read("\\Window", name)) TryPlace(*value);
  }
  if (const auto layout = store.Read("\\Window", "Layout")) {
    const auto* const text = layout->If<std::string>();
    if (text != nullptr) TryLayout(*text);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  TryLayout(text);
  TryValue(text);
  TryFile(text);
  return 0;
}
