#include "ferrowind/platform/toolkit/table.h"

namespace ferrowind::platform {

//: said
const char* WordOf(CellMark mark) {
  switch (mark) {
    case CellMark::kNone:
      return "";
    case CellMark::kPrepared:
      return "Prepared";
    case CellMark::kDiffers:
      return "Differs";
    case CellMark::kPartly:
      return "Partly";
    case CellMark::kMissing:
      return "Missing";
    case CellMark::kNote:
      return "Note";
    case CellMark::kWarning:
      return "Warning";
    case CellMark::kError:
      return "Error";
    case CellMark::kAdded:
      return "Added";
    case CellMark::kRemoved:
      return "Removed";
    case CellMark::kReplaced:
      return "Replaced";
    case CellMark::kKept:
      return "Kept";
    case CellMark::kException:
      return "Exception";
    case CellMark::kToday:
      return "Today";
  }
  return "";
}

}  // namespace ferrowind::platform
