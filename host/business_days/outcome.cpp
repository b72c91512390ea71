#include "host/business_days/outcome.h"

#include <exception>
#include <new>
#include <string>

#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {
namespace {

thread_local std::string t_message;

ferrowind_bd_status Say(ferrowind_bd_status status, const char* message) noexcept {
  try {
    t_message = message;
    return status;
  } catch (const std::bad_alloc&) {
    t_message.clear();
    return FERROWIND_BD_OUT_OF_MEMORY;
  }
}

ferrowind_bd_status StatusOf(const platform::Failure& failure) {
  switch (failure.Number()) {
    case business_days::failure_number::kNotPrepared:
      return FERROWIND_BD_NOT_PREPARED;
    case business_days::failure_number::kNoBusinessDay:
      return FERROWIND_BD_NO_BUSINESS_DAY;
    case platform::failure_number::kInvalidArgument:
      return FERROWIND_BD_INVALID_ARGUMENT;
    case platform::failure_number::kElementNotFound:
      return FERROWIND_BD_UNKNOWN_CURRENCY;
    default:
      return FERROWIND_BD_DATABASE;
  }
}

}  // namespace

const char* LastMessage() noexcept { return t_message.c_str(); }

ferrowind_bd_status StatusOfException() noexcept {
  try {
    throw;
  } catch (const platform::Failure& failure) {
    return Say(StatusOf(failure), failure.what());
  } catch (const std::bad_alloc&) {
    return Say(FERROWIND_BD_OUT_OF_MEMORY, "out of memory");
  } catch (const std::exception& error) {
    return Say(FERROWIND_BD_INTERNAL, error.what());
  } catch (...) {
    return Say(FERROWIND_BD_INTERNAL, "an unknown failure");
  }
}

void FailInvalid(std::string_view description) {
  throw platform::Failure(platform::failure_number::kInvalidArgument, std::string(description));
}

void FailNull(std::string_view name) { FailInvalid(std::string(name) + " is NULL"); }

}  // namespace ferrowind::host
