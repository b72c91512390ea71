#pragma once

namespace ferrowind::year_engine {

// In the units of the device.

struct Spot {
  double x = 0;
  double y = 0;
};

struct Size {
  double width = 0;
  double height = 0;
};

struct Area {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  [[nodiscard]] double Right() const { return left + width; }
  [[nodiscard]] double Bottom() const { return top + height; }
  [[nodiscard]] Spot Middle() const { return {left + width / 2, top + height / 2}; }
  [[nodiscard]] bool Contains(const Spot& spot) const {
    return spot.x >= left && spot.x <= Right() && spot.y >= top && spot.y <= Bottom();
  }
};

}  // namespace ferrowind::year_engine
