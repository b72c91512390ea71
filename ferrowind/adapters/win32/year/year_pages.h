#pragma once

#include <functional>
#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::win32 {

/// A year on paper: a heading, the months, what their looks mean, and the notes in two columns.
class YearPages {
 public:
  /// `days` must outlive the pages.
  YearPages(const year_engine::YearDays& days, std::wstring heading);

  [[nodiscard]] const std::wstring& Heading() const { return heading_; }
  /// Whether a page that lies suits it best: for several calendars.
  [[nodiscard]] bool IsAcross() const { return days_.CalendarCount() > 1; }

  /// A page to paint on: its top left corner and size, of which `dots_per_inch` make an inch.
  struct Sheet {
    HDC context = nullptr;
    POINT corner{};
    SIZE size{};
    double dots_per_inch = 96;
  };
  /// Paints onto such pages. `new_page` is called between two pages, and gives the next.
  void PaintOnPages(const Sheet& first, const std::function<Sheet()>& new_page) const;
  /// Paints all below one another, the months as on such a page. Returns the height that it takes.
  LONG PaintOnRoll(const Sheet& sheet) const;

 private:
  class Flow;

  void Paint(Flow& flow) const;
  void PaintMonths(Flow& flow) const;
  void PaintNotes(Flow& flow) const;

  const year_engine::YearDays& days_;
  std::wstring heading_;
};

}  // namespace ferrowind::win32
