// A host in C++ that is bound early: it calls the control through the slots of its interfaces, as the header
// that is made of its type library declares them.

#include <cstdio>

#include <windows.h>
#include <comdef.h>

#include "ferrowind.h"

namespace {

_COM_SMARTPTR_TYPEDEF(_Calendar, __uuidof(_Calendar));
_COM_SMARTPTR_TYPEDEF(IErrorInfo, __uuidof(IErrorInfo));
_COM_SMARTPTR_TYPEDEF(_GridFields, __uuidof(_GridFields));
_COM_SMARTPTR_TYPEDEF(_GridField, __uuidof(_GridField));

/// What a call that failed has told, besides its number.
_bstr_t Description() {
  IErrorInfoPtr information;
  BSTR text = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) information->GetDescription(&text);
  return {text, false};
}

void Check(HRESULT result) {
  if (FAILED(result)) throw _com_error(result);
}

void Run() {
  _CalendarPtr calendar;
  Check(calendar.CreateInstance(__uuidof(Calendar)));

  // The columns are changed before the window is shown.
  _GridFieldsPtr headers;
  Check(calendar->get_Headers(&headers));
  _variant_t name = L"FullDate";
  _GridFieldPtr day;
  Check(headers->LocalNames(&name, &day));
  Check(day->put_Caption(_bstr_t(L"Day")));
  _bstr_t caption;
  Check(day->get_Caption(caption.GetAddress()));
  std::printf("FullDate is called %ls\n", static_cast<const wchar_t*>(caption));

  // Only columns that the component relies on can be removed, and then stay among the fields.
  _bstr_t added = L"Note";
  _bstr_t field = L"Comment3";
  VARIANT_BOOL is_visible = VARIANT_TRUE;
  BSTR added_text = added;
  BSTR field_text = field;
  BSTR caption_text = added;
  Check(headers->Add(&added_text, &field_text, &caption_text, &is_visible));
  name = L"Note";
  const HRESULT refused = headers->RemoveByLocalIndex(&name);
  std::printf("0x%08lX: %ls\n", static_cast<unsigned long>(refused),
              static_cast<const wchar_t*>(Description()));

  Check(calendar->Show());
  VARIANT_BOOL is_closed = VARIANT_FALSE;
  Check(calendar->ForceClosing(&is_closed));
  std::printf("%s\n", is_closed != VARIANT_FALSE ? "Closed" : "The operator keeps it open");
}

}  // namespace

int main() {
  Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  int status = 0;
  try {
    Run();
  } catch (const _com_error& error) {
    std::fprintf(stderr, "0x%08lX\n", static_cast<unsigned long>(error.Error()));
    status = 1;
  }
  CoUninitialize();
  return status;
}
