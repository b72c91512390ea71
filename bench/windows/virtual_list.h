#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <windows.h>
#include <commctrl.h>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::bench {

/// The platform's list view over rows of ours, as programs have it for many rows: it keeps none and asks for
/// the text of each cell, by which the program sorts the rows too.
class VirtualList {
 public:
  /// A column for each field of `like`.
  VirtualList(const platform::RecordSet& like, int width, int height);
  ~VirtualList();
  VirtualList(const VirtualList&) = delete;
  VirtualList& operator=(const VirtualList&) = delete;

  /// Takes the rows, sorts them by the texts of two fields, the second one downwards, and paints.
  void Refill(std::shared_ptr<platform::RecordSet> records, std::size_t first, std::size_t second);

 private:
  static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param);
  [[nodiscard]] std::wstring TextOf(std::uint32_t row, std::size_t field) const;

  HWND parent_;
  HWND list_;
  std::shared_ptr<platform::RecordSet> records_;
  std::vector<std::uint32_t> order_;
};

}  // namespace ferrowind::bench
