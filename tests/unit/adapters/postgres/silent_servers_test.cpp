// What is known of a silent server when the memory runs out during its try. A program of its own, because it
// replaces the allocation functions.
#include "ferrowind/adapters/postgres/silent_servers.h"

#include <chrono>
#include <cstddef>
#include <new>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/support/replaced_allocation.h"

namespace ferrowind::postgres {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// At no socket, which the system says at once.
constexpr const char* kNowhere = "postgresql://clerk@%2Fno%2Fsuch%2Ffolder/calendars";
constexpr int kMostAllocations = 10'000;

int allocations_left = 0;

/// Why connecting failed; "bad_alloc" for want of memory. There is enough of it again afterwards.
std::string FailureOfConnecting(SilentServers& servers, const ConnectionUri& uri) {
  try {
    static_cast<void>(servers.Connect(kNowhere, uri, std::chrono::seconds(1)));
    return "connected";
  } catch (const platform::Failure& failure) {
    ::ferrowind::testing::before_allocation = nullptr;
    return failure.Description();
  } catch (const std::bad_alloc&) {
    ::ferrowind::testing::before_allocation = nullptr;
    return "bad_alloc";
  }
}

TEST(SilentServers, AreTriedAgainAfterATryThatRanOutOfMemory) {
  const ConnectionUri uri(kNowhere);
  int tries_without_memory = 0;
  for (int most = 0; most < kMostAllocations; ++most) {
    SilentServers servers;
    servers.FellSilent(kNowhere);
    allocations_left = most;
    ::ferrowind::testing::before_allocation = [](std::size_t /*size*/) {
      if (allocations_left-- == 0) throw std::bad_alloc();
    };
    const std::string first = FailureOfConnecting(servers, uri);
    const bool had_enough = allocations_left >= 0;
    if (had_enough) break;
    if (first == "bad_alloc") ++tries_without_memory;
    EXPECT_THAT(FailureOfConnecting(servers, uri), HasSubstr("cannot be connected to")) << most;
  }
  EXPECT_GT(tries_without_memory, 5);
}

}  // namespace
}  // namespace ferrowind::postgres
