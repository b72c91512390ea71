#include "ferrowind/adapters/win32/forms/file_question.h"

#include <memory>
#include <utility>

#include <objbase.h>
#include <shobjidl.h>

#include "ferrowind/adapters/win32/base/modal_show.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

/// COM on this thread for as long as this lives, where the host has not made it ready already.
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

struct Releaser {
  void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, Releaser>;

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
  void* made = nullptr;
  const HRESULT result = CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, &made);
  if (FAILED(result)) throw NoQuestion(result);
  return ComPointer<IFileDialog>(static_cast<IFileDialog*>(made));
}

std::optional<std::string> Answer(IFileDialog& dialog) {
  IShellItem* item = nullptr;
  if (FAILED(dialog.GetResult(&item))) return std::nullopt;
  const ComPointer<IShellItem> owned(item);
  wchar_t* path = nullptr;
  if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &path))) return std::nullopt;
  const std::unique_ptr<wchar_t, TaskMemoryFreer> text(path);
  return FromWide(path);
}

std::optional<std::string> Ask(WindowThread& thread, IFileDialog& dialog, const std::string& title) {
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
  return SUCCEEDED(result) ? Answer(dialog) : std::nullopt;
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
  dialog->SetDefaultExtension(ToWide(kinds.front().suffix).c_str());
  dialog->SetFileName(ToWide(suggested_name).c_str());
  return Ask(thread, *dialog, title);
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
  const Kinds shown{{{ToWide(caption), pattern}, {L"*.*", L"*.*"}}};
  const auto specs = shown.Specs();
  dialog->SetFileTypes(static_cast<UINT>(specs.size()), specs.data());
  return Ask(thread, *dialog, title);
}

}  // namespace ferrowind::win32
