#include "ferrowind/adapters/automation/embedding/design_picture.h"

#include <memory>
#include <type_traits>

#include "ferrowind/adapters/automation/embedding/control_size.h"

namespace ferrowind::automation {
namespace {

struct BrushFreer {
  void operator()(HBRUSH brush) const noexcept { DeleteObject(brush); }
};
using UniqueBrush = std::unique_ptr<std::remove_pointer_t<HBRUSH>, BrushFreer>;

/// A filled rectangle, in pixels of the control's own size.
struct Spot {
  RECT where;
  COLORREF colour;
};

constexpr COLORREF kEdge = RGB(64, 64, 64);
constexpr COLORREF kLeaf = RGB(255, 255, 255);
constexpr COLORREF kHead = RGB(192, 48, 48);
constexpr COLORREF kDay = RGB(128, 128, 128);

// From back to front.
constexpr Spot kSpots[] = {
    {{1, 2, 15, 15}, kEdge}, {{2, 6, 14, 14}, kLeaf}, {{2, 3, 14, 5}, kHead},    {{4, 1, 5, 4}, kEdge},
    {{11, 1, 12, 4}, kEdge}, {{4, 7, 6, 9}, kDay},    {{7, 7, 9, 9}, kDay},      {{10, 7, 12, 9}, kHead},
    {{4, 11, 6, 13}, kDay},  {{7, 11, 9, 13}, kDay},  {{10, 11, 12, 13}, kHead},
};

}  // namespace

void DrawDesignPicture(HDC context, const RECT& bounds) {
  const auto across = [&bounds](LONG pixel) {
    return bounds.left + MulDiv(pixel, bounds.right - bounds.left, kControlPixels);
  };
  const auto down = [&bounds](LONG pixel) {
    return bounds.top + MulDiv(pixel, bounds.bottom - bounds.top, kControlPixels);
  };
  for (const auto& [where, colour] : kSpots) {
    const RECT filled{across(where.left), down(where.top), across(where.right), down(where.bottom)};
    // A brush of each spot: the one whose colour a device context changes is not kept in metafiles.
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(context, &filled, brush.get());
  }
}

}  // namespace ferrowind::automation
