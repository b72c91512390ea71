#include "ferrowind/adapters/win32/year/year_printing.h"

#include <memory>

#include <commdlg.h>

#include "ferrowind/adapters/win32/base/handles.h"
#include "ferrowind/adapters/win32/base/modal_show.h"
#include "ferrowind/adapters/windows/system_message.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

struct GlobalFreer {
  void operator()(void* memory) const noexcept { GlobalFree(memory); }
};
using UniqueGlobal = std::unique_ptr<void, GlobalFreer>;

platform::Failure NotPrinted(const std::string& reason) {
  return {platform::failure_number::kInvalidArgument, "The printer does not take the pages: " + reason};
}

/// Tells the site of the question its window, by which it can be closed.
UINT_PTR CALLBACK NoteWindow(HWND window, UINT message, WPARAM /*w_param*/, LPARAM l_param) {
  if (message == WM_INITDIALOG) {
    const auto& asked = *reinterpret_cast<const PRINTDLGW*>(l_param);
    reinterpret_cast<FormSite*>(asked.lCustData)->window = window;
  }
  return 0;
}

/// The usual printer's settings, with pages that lie or stand; null where there is no printer.
UniqueGlobal SettingsFor(bool is_across) {
  PRINTDLGW asked{};
  asked.lStructSize = sizeof asked;
  asked.Flags = PD_RETURNDEFAULT;
  if (PrintDlgW(&asked) == 0) return nullptr;
  const UniqueGlobal names(asked.hDevNames);
  UniqueGlobal settings(asked.hDevMode);
  if (auto* mode = static_cast<DEVMODEW*>(GlobalLock(settings.get()))) {
    mode->dmFields |= DM_ORIENTATION;
    mode->dmOrientation = is_across ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    GlobalUnlock(settings.get());
  }
  return settings;
}

/// Null when the operator chose no printer.
UniqueMemoryContext ChoosePrinter(WindowThread& thread, bool is_across) {
  const auto site = std::make_shared<FormSite>(FormSite{"print question"});
  const ModalShow show(thread, site, [&] {
    site->is_shown = false;
    PostMessageW(site->window, WM_COMMAND, IDCANCEL, 0);
  });
  PRINTDLGW asked{};
  asked.lStructSize = sizeof asked;
  asked.hwndOwner = show.Owner();
  asked.Flags =
      PD_RETURNDC | PD_NOPAGENUMS | PD_NOSELECTION | PD_USEDEVMODECOPIESANDCOLLATE | PD_ENABLEPRINTHOOK;
  asked.lpfnPrintHook = &NoteWindow;
  asked.lCustData = reinterpret_cast<LPARAM>(site.get());
  asked.hDevMode = SettingsFor(is_across).release();
  site->is_shown = true;
  const bool is_chosen = PrintDlgW(&asked) != 0;
  site->is_shown = false;
  const UniqueGlobal settings(asked.hDevMode);
  const UniqueGlobal names(asked.hDevNames);
  UniqueMemoryContext printer(asked.hDC);
  if (show.IsInterrupted()) throw platform::Interruption("Nobody has chosen a printer");
  return is_chosen ? std::move(printer) : nullptr;
}

YearPages::Sheet SheetOf(HDC printer) {
  return {printer,
          {0, 0},
          {GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES)},
          static_cast<double>(GetDeviceCaps(printer, LOGPIXELSX))};
}

}  // namespace

bool PrintOnChosenPrinter(WindowThread& thread, const YearPages& pages) {
  const UniqueMemoryContext printer = ChoosePrinter(thread, pages.IsAcross());
  if (printer == nullptr) return false;
  DOCINFOW document{};
  document.cbSize = sizeof document;
  document.lpszDocName = pages.Heading().c_str();
  const auto require = [&](int result) {
    if (result > 0) return;
    const std::string reason = windows::SystemMessage(GetLastError());
    AbortDoc(printer.get());
    throw NotPrinted(reason);
  };
  require(StartDocW(printer.get(), &document));
  require(StartPage(printer.get()));
  pages.PaintOnPages(SheetOf(printer.get()), [&] {
    require(EndPage(printer.get()));
    require(StartPage(printer.get()));
    return SheetOf(printer.get());
  });
  require(EndPage(printer.get()));
  require(EndDoc(printer.get()));
  return true;
}

}  // namespace ferrowind::win32
