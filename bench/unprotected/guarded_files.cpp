#include "ferrowind/adapters/sqlite/guarded_files.h"

namespace ferrowind::sqlite {

/// SQLite's own, with nothing in front.
struct GuardedFiles::Guard {};

GuardedFiles::GuardedFiles() = default;
GuardedFiles::GuardedFiles(GuardedFiles&&) noexcept = default;
GuardedFiles::~GuardedFiles() = default;

const char* GuardedFiles::Name() const { return nullptr; }

}  // namespace ferrowind::sqlite
