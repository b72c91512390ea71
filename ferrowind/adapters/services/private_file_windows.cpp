#include <stdexcept>
#include <vector>

#include <windows.h>
#include <aclapi.h>

#include "ferrowind/adapters/services/private_file.h"
#include "ferrowind/adapters/windows/system_message.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind {
namespace {

[[noreturn]] void Refuse(DWORD error) { throw std::runtime_error(windows::SystemMessage(error)); }

/// What the process's token says of this class.
std::vector<unsigned char> TokenInformation(TOKEN_INFORMATION_CLASS of) {
  HANDLE token = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == 0) Refuse(GetLastError());
  DWORD size = 0;
  GetTokenInformation(token, of, nullptr, 0, &size);
  std::vector<unsigned char> information(size);
  const bool done = GetTokenInformation(token, of, information.data(), size, &size) != 0;
  const DWORD error = GetLastError();
  CloseHandle(token);
  if (!done) Refuse(error);
  return information;
}

}  // namespace

class PrivateFile::Handle {
 public:
  explicit Handle(const std::string& path)
      : file_(CreateFileW(platform::FilePath(path).c_str(),
                          FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | READ_CONTROL | WRITE_DAC,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr)) {
    if (file_ == INVALID_HANDLE_VALUE) Refuse(GetLastError());
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { CloseHandle(file_); }

  [[nodiscard]] HANDLE Get() const { return file_; }

  /// Why the file is not one that this user made for themselves; nothing when it is.
  [[nodiscard]] const char* Refusal() const {
    BY_HANDLE_FILE_INFORMATION status{};
    if (GetFileType(file_) != FILE_TYPE_DISK) return "it is no file";
    if (GetFileInformationByHandle(file_, &status) == 0) Refuse(GetLastError());
    if ((status.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return "it is a link";
    if (status.nNumberOfLinks != 1) return "it has another name as well";
    if (!IsOwn()) return "it belongs to somebody else";
    return nullptr;
  }

  /// Leaves the rights of this process's user only, and none that the folder hands down.
  void TakeFromOthers() const {
    auto user = TokenInformation(TokenUser);
    const PSID own = reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid;
    std::vector<DWORD> room((sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE) + GetLengthSid(own)) / sizeof(DWORD));
    auto* const list = reinterpret_cast<ACL*>(room.data());
    if (InitializeAcl(list, static_cast<DWORD>(room.size() * sizeof(DWORD)), ACL_REVISION) == 0 ||
        AddAccessAllowedAce(list, ACL_REVISION, FILE_ALL_ACCESS, own) == 0) {
      Refuse(GetLastError());
    }
    SECURITY_DESCRIPTOR rights{};
    if (InitializeSecurityDescriptor(&rights, SECURITY_DESCRIPTOR_REVISION) == 0 ||
        SetSecurityDescriptorDacl(&rights, TRUE, list, FALSE) == 0 ||
        SetSecurityDescriptorControl(&rights, SE_DACL_PROTECTED, SE_DACL_PROTECTED) == 0 ||
        SetKernelObjectSecurity(file_, DACL_SECURITY_INFORMATION, &rights) == 0) {
      Refuse(GetLastError());
    }
  }

 private:
  /// Whether this process's user would own what it makes: an administrator's files belong to the group.
  [[nodiscard]] bool IsOwn() const {
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (const DWORD error = GetSecurityInfo(file_, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                                            nullptr, nullptr, nullptr, &descriptor)) {
      Refuse(error);
    }
    auto user = TokenInformation(TokenUser);
    auto own = TokenInformation(TokenOwner);
    const bool is_own = EqualSid(owner, reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid) != 0 ||
                        EqualSid(owner, reinterpret_cast<TOKEN_OWNER*>(own.data())->Owner) != 0;
    LocalFree(descriptor);
    return is_own;
  }

  HANDLE file_;
};

PrivateFile::PrivateFile(const std::string& path) : handle_(std::make_unique<Handle>(path)) {
  if (const char* const refusal = handle_->Refusal()) throw std::runtime_error(refusal);
  handle_->TakeFromOthers();
}

PrivateFile::~PrivateFile() = default;

void PrivateFile::Append(std::string_view bytes) noexcept {
  DWORD ignored = 0;
  WriteFile(handle_->Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &ignored, nullptr);
}

}  // namespace ferrowind
