#include "ferrowind/adapters/sqlite/call_memory.h"

#include <string>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {

CallMemory::CallMemory(const DatabaseHandle& database, std::size_t most_megabytes)
    : database_(database), most_megabytes_(most_megabytes), left_(most_megabytes * 1024 * 1024) {}

void CallMemory::Take(std::size_t bytes) {
  if (bytes > left_) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The database " + database_.Path() + " gives more than " +
                                std::to_string(most_megabytes_) +
                                " MB at once, which no calendar database does");
  }
  left_ -= bytes;
}

}  // namespace ferrowind::sqlite
