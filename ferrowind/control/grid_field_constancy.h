#pragma once

#include "ferrowind/control/grid_field.h"

namespace ferrowind {

/// Marks columns constant. Not installed with the public headers: a host cannot reach it.
class GridFieldConstancy {
 public:
  static void SetConst(GridField& field, bool is_const) { field.is_const_ = is_const; }
};

}  // namespace ferrowind
