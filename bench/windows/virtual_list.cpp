#include "bench/windows/virtual_list.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/conversion.h"

#include "bench/windows/paint_now.h"

namespace ferrowind::bench {
namespace {

constexpr const wchar_t* kParentClass = L"FerrowindBenchList";
constexpr int kColumnWidth = 100;

}  // namespace

VirtualList::VirtualList(const platform::RecordSet& like, int width, int height) {
  INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  WNDCLASSW parent{};
  parent.lpfnWndProc = &ParentProcedure;
  parent.lpszClassName = kParentClass;
  RegisterClassW(&parent);
  parent_ = CreateWindowExW(0, kParentClass, L"", WS_POPUP | WS_VISIBLE, 0, 0, width, height, nullptr,
                            nullptr, nullptr, nullptr);
  SetWindowLongPtrW(parent_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  list_ = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0, 0,
                          width, height, parent_, nullptr, nullptr, nullptr);
  for (std::size_t field = 0; field < like.FieldCount(); ++field) {
    std::wstring name = win32::ToWide(like.FieldName(field));
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = kColumnWidth;
    column.pszText = name.data();
    SendMessageW(list_, LVM_INSERTCOLUMNW, field, reinterpret_cast<LPARAM>(&column));
  }
}

VirtualList::~VirtualList() { DestroyWindow(parent_); }

void VirtualList::Refill(std::shared_ptr<platform::RecordSet> records, std::size_t first,
                         std::size_t second) {
  records_ = std::move(records);
  order_.resize(records_->RowCount());
  std::iota(order_.begin(), order_.end(), 0U);
  std::stable_sort(order_.begin(), order_.end(), [&](std::uint32_t left, std::uint32_t right) {
    const int compared = lstrcmpiW(TextOf(left, first).c_str(), TextOf(right, first).c_str());
    if (compared != 0) return compared < 0;
    return lstrcmpiW(TextOf(left, second).c_str(), TextOf(right, second).c_str()) > 0;
  });
  ListView_SetItemCountEx(list_, static_cast<int>(order_.size()), 0);
  PaintNow(list_);
}

LRESULT CALLBACK VirtualList::ParentProcedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param) {
  if (message != WM_NOTIFY) return DefWindowProcW(window, message, w_param, l_param);
  const auto& self = *reinterpret_cast<VirtualList*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  auto& asked = *reinterpret_cast<NMLVDISPINFOW*>(l_param);
  if (asked.hdr.code == LVN_GETDISPINFOW && (asked.item.mask & LVIF_TEXT) != 0) {
    const std::wstring text = self.TextOf(self.order_[static_cast<std::size_t>(asked.item.iItem)],
                                          static_cast<std::size_t>(asked.item.iSubItem));
    lstrcpynW(asked.item.pszText, text.c_str(), asked.item.cchTextMax);
  }
  return 0;
}

std::wstring VirtualList::TextOf(std::uint32_t row, std::size_t field) const {
  return win32::ToWide(
      platform::ToTextOrEmpty(records_->Cell(static_cast<platform::RecordSet::Bookmark>(row + 1), field)));
}

}  // namespace ferrowind::bench
