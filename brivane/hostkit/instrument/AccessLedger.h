#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include <brivane/host/Error.h>
#include <brivane/host/Export.h>
#include <brivane/hostkit/instrument/Members.h>

namespace brivane::hostkit {

/// Counts every access of a host member and makes chosen ones fail.
///
///     AccessLedger ledger;
///     ledger.FailAt(Member::VrijeKolomItem_Termijn, Op::Get, 2, host::Error(13, "...", "..."));
///     ledger.FailAtPosition(417, error);  // the 417th access of all, whatever it is
class BRIVANE_API AccessLedger {
 public:
  /// The nth access (from 1) of a member in that way fails with the error.
  void FailAt(Member member, Op op, std::uint32_t nth, host::Error error);
  /// The nth access of all (from 1) fails with the error.
  void FailAtPosition(std::uint64_t position, host::Error error);

  /// Counts an access; fails when its turn has come.
  void Pass(Member member, Op op);
  /// Counts the access of a getter that hands out an object: a get and a call alike.
  void PassObject(Member member);

  /// Accesses so far, the failed ones included.
  [[nodiscard]] std::uint64_t Accesses() const { return accesses_; }
  /// How often a member was accessed in that way.
  [[nodiscard]] std::uint32_t Count(Member member, Op op) const;
  /// Faults that have struck so far.
  [[nodiscard]] std::uint32_t Struck() const { return struck_; }

  /// Told of each access before it can fail; a getter that hands out an object tells Op::Get.
  std::function<void(Member, Op)> OnAccess;

 private:
  struct Fault {
    Member member;
    Op op;
    std::uint32_t nth;
    host::Error error;
  };
  struct PositionFault {
    std::uint64_t position;
    host::Error error;
  };
  static constexpr std::size_t kOps = 3;

  [[nodiscard]] std::uint32_t& Counter(Member member, Op op);
  void Begin(Member member, Op op);
  void Strike(const host::Error& error);

  std::uint64_t accesses_ = 0;
  std::uint32_t struck_ = 0;
  std::array<std::uint32_t, kMemberCount * kOps> counts_{};
  std::vector<Fault> faults_;
  std::vector<PositionFault> positions_;
};

}  // namespace brivane::hostkit
