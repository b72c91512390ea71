#pragma once

#include <csignal>

namespace ferrowind::postgres {

/// While it lives, threads that begin get no signals: those are for threads that expect them, and a socket
/// that breaks under libpq ends nothing.
class WithoutSignals {
 public:
  WithoutSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  WithoutSignals(const WithoutSignals&) = delete;
  WithoutSignals& operator=(const WithoutSignals&) = delete;
  ~WithoutSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_ = {};
};

}  // namespace ferrowind::postgres
