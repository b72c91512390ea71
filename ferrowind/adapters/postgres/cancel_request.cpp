#include "ferrowind/adapters/postgres/cancel_request.h"

#include <array>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

#include "ferrowind/adapters/postgres/without_signals.h"

namespace ferrowind::postgres {
namespace {

struct CancelFree {
  void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
};
using CancelHandle = std::unique_ptr<PGcancel, CancelFree>;

}  // namespace

CancelRequest::CancelRequest(PGconn* connection) {
  CancelHandle cancel(PQgetCancel(connection));
  if (!cancel) return;
  std::packaged_task<void()> task([cancel = std::move(cancel)] {
    std::array<char, 256> error{};
    static_cast<void>(PQcancel(cancel.get(), error.data(), static_cast<int>(error.size())));
  });
  auto passed_on = task.get_future();
  try {
    const WithoutSignals in_the_thread;
    // It owns all that it uses, and so may outlive whoever sent it: libpq offers no end to its waiting.
    std::thread(std::move(task)).detach();
    passed_on_ = std::move(passed_on);
  } catch (const std::system_error&) {
    return;
  }
}

bool CancelRequest::IsOver(std::chrono::steady_clock::time_point until) const {
  return !passed_on_.valid() || passed_on_.wait_until(until) == std::future_status::ready;
}

}  // namespace ferrowind::postgres
