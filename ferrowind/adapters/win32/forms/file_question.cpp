#include "ferrowind/adapters/win32/forms/file_question.h"

#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include <objbase.h>
#include <shobjidl.h>

#include "ferrowind/adapters/win32/base/modal_show.h"
#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/windows/com_object.h"
#include "ferrowind/adapters/windows/com_pointer.h"
#include "ferrowind/adapters/windows/counted_object.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

using windows::ComPointer;

/// The thread in an apartment, as the platform's dialogs need it.
class ComApartment {
 public:
  ComApartment() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ~ComApartment() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;

 private:
  HRESULT result_;
};

struct TaskMemoryFreer {
  void operator()(wchar_t* text) const noexcept { CoTaskMemFree(text); }
};

/// The kinds of a question, with their texts.
struct Kinds {
  std::vector<std::pair<std::wstring, std::wstring>> texts;

  [[nodiscard]] std::vector<COMDLG_FILTERSPEC> Specs() const {
    std::vector<COMDLG_FILTERSPEC> specs;
    for (const auto& [caption, pattern] : texts) specs.push_back({caption.c_str(), pattern.c_str()});
    return specs;
  }
};

platform::Failure NoQuestion(HRESULT result) {
  return {platform::failure_number::kCannotCreateObject,
          "The platform does not ask for a file; its error is " + std::to_string(result)};
}

ComPointer<IFileDialog> MakeDialog(REFCLSID kind) {
  ComPointer<IFileDialog> dialog;
  const HRESULT result =
      CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.ReceiveAny());
  if (FAILED(result)) throw NoQuestion(result);
  return dialog;
}

std::optional<std::filesystem::path> ChosenIn(IFileDialog& dialog) {
  ComPointer<IShellItem> item;
  if (FAILED(dialog.GetResult(item.Receive()))) return std::nullopt;
  wchar_t* path = nullptr;
  if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &path))) return std::nullopt;
  const std::unique_ptr<wchar_t, TaskMemoryFreer> text(path);
  return std::filesystem::path(path);
}

std::filesystem::path TypedIn(IFileDialog& dialog) {
  wchar_t* typed = nullptr;
  if (FAILED(dialog.GetFileName(&typed))) return {};
  const std::unique_ptr<wchar_t, TaskMemoryFreer> text(typed);
  return typed;
}

HWND WindowOf(IFileDialog& dialog) {
  ComPointer<IOleWindow> window;
  HWND handle = nullptr;
  if (SUCCEEDED(dialog.QueryInterface(IID_IOleWindow, window.ReceiveAny()))) window->GetWindow(&handle);
  return handle;
}

/// Looks at the name that the operator has chosen while the question is still on show: the platform would ask
/// about replacing a file of the name without the suffix that the name gets.
class NameToSave final : public windows::ComObject<windows::CountedObject, IFileDialogEvents> {
 public:
  /// Both outlive the question.
  NameToSave(const WindowThread& thread, const std::vector<platform::FileKind>& kinds)
      : thread_(thread), kinds_(kinds) {}

  /// The file, once the operator has agreed to it.
  [[nodiscard]] const std::optional<std::filesystem::path>& Chosen() const { return chosen_; }

  HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) override {
    bool is_agreed = false;
    RunGuarded("file question", [&] { is_agreed = Take(*dialog); });
    return is_agreed ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog* /*dialog*/, IShellItem* /*folder*/) override {
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog* /*dialog*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* /*dialog*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog* /*dialog*/, IShellItem* /*item*/,
                                             FDE_SHAREVIOLATION_RESPONSE* /*response*/) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog* /*dialog*/) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog* /*dialog*/, IShellItem* /*item*/,
                                        FDE_OVERWRITE_RESPONSE* /*response*/) override {
    return E_NOTIMPL;
  }

 private:
  bool Take(IFileDialog& dialog) {
    chosen_ = ChosenIn(dialog);
    if (!chosen_) return false;
    // The platform may have put the suffix of the kind on show behind another one that was typed.
    const std::filesystem::path typed = TypedIn(dialog).filename();
    if (typed.has_extension() && chosen_->stem() == typed) chosen_->replace_filename(typed);
    if (!chosen_->has_extension()) *chosen_ += L"." + ToWide(ChosenKind(dialog).suffix);
    std::error_code error;
    if (!std::filesystem::exists(*chosen_, error) || MayReplace(WindowOf(dialog))) return true;
    chosen_.reset();
    return false;
  }
  [[nodiscard]] const platform::FileKind& ChosenKind(IFileDialog& dialog) const {
    UINT place = 1;
    dialog.GetFileTypeIndex(&place);
    return place >= 1 && place <= kinds_.size() ? kinds_[place - 1] : kinds_.front();
  }
  [[nodiscard]] bool MayReplace(HWND question) const {
    const std::wstring text = thread_.Words().Translated("%1 is there already. Is it to be replaced?",
                                                         chosen_->filename().wstring());
    return MessageBoxW(question, text.c_str(), chosen_->filename().c_str(),
                       MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) == IDYES;
  }

  const WindowThread& thread_;
  const std::vector<platform::FileKind>& kinds_;
  std::optional<std::filesystem::path> chosen_;
};

/// Whether the operator has chosen a file.
bool Ask(WindowThread& thread, IFileDialog& dialog, const std::string& title) {
  dialog.SetTitle(ToWide(title).c_str());
  const auto site = std::make_shared<FormSite>(FormSite{"file question"});
  const ModalShow show(thread, site, [&] {
    site->is_shown = false;
    dialog.Close(HRESULT_FROM_WIN32(ERROR_CANCELLED));
  });
  site->is_shown = true;
  const HRESULT result = dialog.Show(show.Owner());
  site->is_shown = false;
  if (show.IsInterrupted())
    throw platform::Interruption("The window that the question for a file belongs to has closed");
  return SUCCEEDED(result);
}

std::optional<std::string> Utf8Of(const std::optional<std::filesystem::path>& path) {
  if (!path) return std::nullopt;
  return FromWide(path->wstring());
}

}  // namespace

std::optional<std::string> AskForFileToSave(WindowThread& thread, const std::string& title,
                                            const std::string& suggested_name,
                                            const std::vector<platform::FileKind>& kinds) {
  const ComApartment apartment;
  const auto dialog = MakeDialog(CLSID_FileSaveDialog);
  Kinds shown;
  for (const platform::FileKind& kind : kinds)
    shown.texts.emplace_back(ToWide(kind.caption), L"*." + ToWide(kind.suffix));
  const auto specs = shown.Specs();
  dialog->SetFileTypes(static_cast<UINT>(specs.size()), specs.data());
  dialog->SetFileName(ToWide(suggested_name).c_str());
  FILEOPENDIALOGOPTIONS options = 0;
  dialog->GetOptions(&options);
  dialog->SetOptions(options & ~static_cast<DWORD>(FOS_OVERWRITEPROMPT));
  ComPointer<NameToSave> name;
  name.Attach(new NameToSave(thread, kinds));
  DWORD listening = 0;
  const HRESULT result = dialog->Advise(name.Get(), &listening);
  if (FAILED(result)) throw NoQuestion(result);
  const bool is_chosen = Ask(thread, *dialog.Get(), title);
  dialog->Unadvise(listening);
  return is_chosen ? Utf8Of(name->Chosen()) : std::nullopt;
}

std::optional<std::string> AskForFileToOpen(WindowThread& thread, const std::string& title,
                                            const std::string& caption,
                                            const std::vector<std::string>& suffixes) {
  const ComApartment apartment;
  const auto dialog = MakeDialog(CLSID_FileOpenDialog);
  std::wstring pattern;
  for (const std::string& suffix : suffixes) {
    if (!pattern.empty()) pattern += L";";
    pattern += L"*." + ToWide(suffix);
  }
  const Kinds shown{{{ToWide(caption), pattern}, {thread.Words().Translated("All Files"), L"*.*"}}};
  const auto specs = shown.Specs();
  dialog->SetFileTypes(static_cast<UINT>(specs.size()), specs.data());
  return Ask(thread, *dialog.Get(), title) ? Utf8Of(ChosenIn(*dialog.Get())) : std::nullopt;
}

}  // namespace ferrowind::win32
