#pragma once

#include <string>
#include <vector>

#include <brivane/hostkit/Bench.h>

namespace brivane::hostkit {

/// A check: its name, and what it asks.
struct NamedCheck {
  std::string name;
  std::function<void(Bench&)> run;
};

/// Appends the checks of a file, in their order.
void AddApplicationChecks(std::vector<NamedCheck>& checks);
void AddLoanChecks(std::vector<NamedCheck>& checks);
void AddFieldChecks(std::vector<NamedCheck>& checks);
void AddAmountChecks(std::vector<NamedCheck>& checks);
void AddSessions(std::vector<NamedCheck>& checks);
void AddFailureChecks(std::vector<NamedCheck>& checks);

}  // namespace brivane::hostkit
