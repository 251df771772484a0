#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "tests/support/TestHost.h"
#include <brivane/hostkit/instrument/InstrumentedHost.h>

namespace brivane::test {

/// A host that may let go of a control whenever it has its turn, and sees whether it is touched afterwards.
///
/// Its turns are its moments: each access of a member, and what the test adds by Moment(), such as an event. `strike`
/// runs at one of them.
class MomentsHost {
 public:
  MomentsHost() {
    watched_.Ledger().OnAccess = [this](hostkit::Member member, hostkit::Op op) {
      if (gone) {
        ++touched;
        return;
      }
      const bool outer = std::exchange(inHost, true);
      if (at && at->member == member && at->op == op)
        Strike();
      else
        Moment();
      inHost = outer;
    };
  }
  MomentsHost(const MomentsHost&) = delete;
  MomentsHost& operator=(const MomentsHost&) = delete;

  struct Access {
    hostkit::Member member;
    hostkit::Op op;
  };

  void Moment() {
    if (gone) ++touched;
    if (++moments == nth) Strike();
  }
  void Strike() {
    nth = 0;
    at.reset();
    if (const std::function<void()> now = std::exchange(strike, nullptr)) now();
  }

  [[nodiscard]] const std::shared_ptr<host::Application>& Application() const { return watched_.Application(); }
  [[nodiscard]] const host::HostFactories& Factories() const { return watched_.Factories(); }
  [[nodiscard]] hostkit::AccessLedger& Ledger() { return watched_.Ledger(); }

  TestHost host;
  std::function<void()> strike;
  int nth = 0;               ///< the moment to strike at, from 1
  std::optional<Access> at;  ///< or the first such access
  int moments = 0;
  bool inHost = false;  ///< a member of the host is running
  bool gone = false;    ///< the control was let go of
  int touched = 0;      ///< how often the host had its turn after that

 private:
  hostkit::HostListener nobody_;
  hostkit::InstrumentedHost watched_{host.application, host.Factories(), nobody_};
};

}  // namespace brivane::test
