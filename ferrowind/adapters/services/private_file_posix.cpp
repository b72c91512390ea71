#include <cerrno>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/services/private_file.h"

namespace ferrowind {

class PrivateFile::Handle {
 public:
  explicit Handle(const std::string& path)
      : number_(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                       S_IRUSR | S_IWUSR)) {
    if (number_ < 0) throw std::runtime_error(errno == ELOOP ? "it is a link" : std::strerror(errno));
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { ::close(number_); }

  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

namespace {

/// Why the open file is not one that this user made for themselves; nothing when it is.
const char* Refusal(const struct stat& file) {
  if (!S_ISREG(file.st_mode)) return "it is no file";
  if (file.st_nlink != 1) return "it has another name as well";
  if (file.st_uid != geteuid()) return "it belongs to somebody else";
  return nullptr;
}

}  // namespace

PrivateFile::PrivateFile(const std::string& path) : handle_(std::make_unique<Handle>(path)) {
  struct stat status {};
  if (::fstat(handle_->Number(), &status) != 0) throw std::runtime_error(std::strerror(errno));
  if (const char* const refusal = Refusal(status)) throw std::runtime_error(refusal);
  // An older one may be readable for others.
  if (::fchmod(handle_->Number(), S_IRUSR | S_IWUSR) != 0) throw std::runtime_error(std::strerror(errno));
}

PrivateFile::~PrivateFile() = default;

void PrivateFile::Append(std::string_view bytes) noexcept {
  const ssize_t ignored = ::write(handle_->Number(), bytes.data(), bytes.size());
  static_cast<void>(ignored);
}

}  // namespace ferrowind
