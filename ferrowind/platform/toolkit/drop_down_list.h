#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A list of texts to choose one of, each with a number for the program. Nothing is chosen at first.
class FERROWIND_EXPORT DropDownList : public Control {
 public:
  /// Appends an item; texts and numbers may be there more than once.
  virtual void AddItem(const std::string& text, std::int32_t item_data) = 0;
  /// How many items there are.
  [[nodiscard]] virtual std::int32_t Count() const = 0;
  ///@{
  /// Positions count from 0; one outside the list is the failure Subscript out of range.
  [[nodiscard]] virtual std::string ItemText(std::int32_t position) const = 0;
  [[nodiscard]] virtual std::int32_t ItemData(std::int32_t position) const = 0;
  ///@}
  /// The position of the chosen item, -1 when none is chosen.
  [[nodiscard]] virtual std::int32_t Chosen() const = 0;
  /// -1 chooses none; a position outside the list is the failure Subscript out of range.
  virtual void Choose(std::int32_t position) = 0;
  /// An item was chosen, by the operator or the program.
  [[nodiscard]] virtual Subscription OnChoice(std::function<void()> handler) = 0;
};

}  // namespace ferrowind::platform
