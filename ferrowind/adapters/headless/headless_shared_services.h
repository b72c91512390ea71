#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::headless {

/// A message that the component showed.
struct ShownMessage {
  std::string text;
  std::int32_t style = 0;
  std::int32_t buttons = 0;
  std::int32_t default_button = 0;
  /// The name of the owner, "" for none.
  std::string owner;
  std::string title;
  bool modal = false;
  bool on_top = false;
};

/// A failure that the component reported.
struct ReportedError {
  std::int32_t number = 0;
  std::string description;
  friend bool operator==(const ReportedError&, const ReportedError&) = default;
};

/// Shared services that keep everything in memory. Its grid services use the grid's port; only
/// what layouts a grid has loaded they keep with the grids of this toolkit.
class HeadlessSharedServices : public platform::SharedServices {
 public:
  /// `log` must outlive the services.
  explicit HeadlessSharedServices(CallLog& log) : log_(log) {}

  [[nodiscard]] std::string SettingsRoot() override;
  [[nodiscard]] platform::Value ReadSetting(const std::string& section, const std::string& name,
                                            const platform::Value& user,
                                            const platform::Value& default_value) override;
  void WriteSetting(const std::string& section, const std::string& name,
                    const platform::Value& value) override;
  void TraceMessage(const std::string& text) override;
  std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                           std::int32_t default_button, platform::Form* owner, const std::string& title,
                           bool modal, bool on_top) override;
  void ReportError(std::int32_t number, const std::string& description) override;
  void SortGridByColumn(std::int32_t sort_order, platform::Grid& grid, platform::GridColumn& column) override;
  /// Keeps visibility, sort keys and group keys by column key.
  void SaveGridLayout(platform::Grid& grid, const std::string& section) override;
  void LoadGridLayout(platform::Grid& grid, const std::string& section) override;
  void CopyGridRows(platform::Grid& grid, bool with_headers) override;

  /// "\Tessaro".
  static constexpr const char* kSettingsRoot = "\\Tessaro";

  [[nodiscard]] const std::vector<std::string>& Traces() const { return traces_; }
  [[nodiscard]] const std::vector<ShownMessage>& Messages() const { return messages_; }
  [[nodiscard]] const std::vector<ReportedError>& Reports() const { return reports_; }
  /// The setting, without a call to record; nothing when there is none.
  [[nodiscard]] std::optional<platform::Value> Setting(const std::string& section,
                                                       const std::string& name) const;
  /// Stores a setting without a call to record.
  void PutSetting(const std::string& section, const std::string& name, const platform::Value& value);
  /// Makes the layout stored in the section unreadable.
  void DamageLayout(const std::string& section);
  /// Rows end with a line feed, their cells are separated by tabs.
  [[nodiscard]] const std::string& Clipboard() const { return clipboard_; }

 private:
  struct LayoutKey {
    std::string column;
    std::int32_t sort_order;
  };
  struct Layout {
    std::map<std::string, bool> visible;
    std::vector<LayoutKey> sorts;
    std::vector<LayoutKey> groups;
    bool is_damaged = false;
  };

  CallLog& log_;
  std::map<std::pair<std::string, std::string>, platform::Value> settings_;
  std::map<std::string, Layout> layouts_;
  std::vector<std::string> traces_;
  std::vector<ShownMessage> messages_;
  std::vector<ReportedError> reports_;
  std::string clipboard_;
};

}  // namespace ferrowind::headless
