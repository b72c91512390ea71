#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"

#include "tests/support/component_world.h"

namespace ferrowind::testing {

/// A form with nothing but a grid "gex" on it. Make one on a fresh thread.
class GridWorld : public ComponentWorld {
 public:
  GridWorld() { world.log.Clear(); }

  /// Adds columns of these keys, each bound to the field of its own name.
  void AddColumns(const std::vector<std::string>& keys) {
    for (const auto& key : keys) grid.AddColumn(key, 0, 1, key).SetBoundField(key);
    world.log.Clear();
  }

  std::shared_ptr<platform::Form> form = world.toolkit.CreateForm(
      {.name = "fmGrid", .caption = "", .controls = {{platform::ControlKind::kGrid, "gex"}}});
  headless::HeadlessGrid& grid = platform::ControlOf<headless::HeadlessGrid>(*form, "gex");
};

}  // namespace ferrowind::testing
