#pragma once

#include <signal.h>
#include <initializer_list>

namespace xsec {

/// Keeps signals waiting while it lives.
class HeldSignals {
 public:
  HeldSignals(std::initializer_list<int> aSignals) {
    ::sigemptyset(&fSignals);
    for (const int signal : aSignals) ::sigaddset(&fSignals, signal);
    ::pthread_sigmask(SIG_BLOCK, &fSignals, &fBefore);
  }
  ~HeldSignals() { Release(); }
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;

  /// Lets come what waits.
  void Release() { ::pthread_sigmask(SIG_SETMASK, &fBefore, nullptr); }

  const sigset_t& Signals() const { return fSignals; }

 private:
  sigset_t fSignals;
  sigset_t fBefore;
};

}  // namespace xsec
