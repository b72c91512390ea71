#include "host/desktop/window_memory.h"

#include <QByteArray>
#include <utility>

#include "ferrowind/adapters/qt/services/settings_store.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {
namespace {

constexpr const char* kGeometry = "Geometry";

}  // namespace

WindowMemory::WindowMemory(QWidget& window, std::string name) : window_(window), name_(std::move(name)) {}

std::string WindowMemory::Section() const { return "\\Tessaro\\Host\\" + name_; }

void WindowMemory::Restore() const {
  const auto stored = qt::SettingsStore().Read(Section(), kGeometry);
  if (!stored) return;
  const std::string text = platform::ToText(*stored);
  // A text that is none of its own leaves the window as it is.
  (void)window_.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(text)));
}

void WindowMemory::Save() const {
  try {
    qt::SettingsStore().Write(Section(), kGeometry, window_.saveGeometry().toBase64().toStdString());
  } catch (const platform::Failure&) {
    // The window closes all the same.
  }
}

}  // namespace ferrowind::host
