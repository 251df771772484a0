#include <utility>

#include <brivane/hostkit/instrument/AccessLedger.h>

namespace brivane::hostkit {

void AccessLedger::FailAt(Member member, Op op, std::uint32_t nth, host::Error error) {
  faults_.push_back({member, op, nth, std::move(error)});
}

void AccessLedger::FailAtPosition(std::uint64_t position, host::Error error) {
  positions_.push_back({position, std::move(error)});
}

void AccessLedger::Pass(Member member, Op op) {
  ++Counter(member, op);
  Begin(member, op);
  for (const Fault& fault : faults_)
    if (fault.member == member && fault.op == op && fault.nth == Count(member, op)) Strike(fault.error);
}

void AccessLedger::PassObject(Member member) {
  ++Counter(member, Op::Get);
  ++Counter(member, Op::Call);
  Begin(member, Op::Get);
  // Of two faults that are due at one access, the one that was planned first strikes.
  for (const Fault& fault : faults_)
    if (fault.member == member && fault.op != Op::Set && fault.nth == Count(member, fault.op)) Strike(fault.error);
}

std::uint32_t AccessLedger::Count(Member member, Op op) const {
  return counts_[static_cast<std::size_t>(member) * kOps + static_cast<std::size_t>(op)];
}

std::uint32_t& AccessLedger::Counter(Member member, Op op) {
  return counts_[static_cast<std::size_t>(member) * kOps + static_cast<std::size_t>(op)];
}

void AccessLedger::Begin(Member member, Op op) {
  ++accesses_;
  if (OnAccess) OnAccess(member, op);
  for (const PositionFault& fault : positions_)
    if (fault.position == accesses_) Strike(fault.error);
}

void AccessLedger::Strike(const host::Error& error) {
  ++struck_;
  throw error;
}

}  // namespace brivane::hostkit
