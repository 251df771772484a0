#include <algorithm>

#include <brivane/host/Error.h>
#include <brivane/hostkit/Check.h>
#include <brivane/hostkit/Suite.h>

namespace brivane::hostkit {

namespace {

const std::vector<NamedCheck>& Suite() {
  static const std::vector<NamedCheck> suite = [] {
    std::vector<NamedCheck> checks;
    AddApplicationChecks(checks);
    AddLoanChecks(checks);
    AddFieldChecks(checks);
    AddAmountChecks(checks);
    AddSessions(checks);
    AddFailureChecks(checks);
    return checks;
  }();
  return suite;
}

void Run(const NamedCheck& check, const HostFactory& factory, const Options& options, Report& report) {
  for (const Exception& exception : options.cannot)
    if (exception.what == check.name) {
      report.leftOut.push_back(exception);
      return;
    }
  const std::size_t found = report.findings.size();
  const std::size_t leftOut = report.leftOut.size();
  Bench bench(check.name, factory, options, report);
  try {
    bench.Done({check.name, "", "none of its members fails"}, [&] { check.run(bench); });
  } catch (const Stop&) {
    // What it stopped on was found.
  }
  const bool whollyLeftOut = report.leftOut.size() > leftOut && report.leftOut.back().what == check.name;
  if (report.findings.size() == found && !whollyLeftOut) report.passed.push_back(check.name);
}

}  // namespace

const std::vector<std::string_view>& Checks() {
  static const std::vector<std::string_view> names = [] {
    std::vector<std::string_view> made;
    for (const NamedCheck& check : Suite()) made.push_back(check.name);
    return made;
  }();
  return names;
}

Report Check(const HostFactory& factory, const Options& options) {
  Report report;
  for (const NamedCheck& check : Suite()) Run(check, factory, options, report);
  return report;
}

Report Check(const HostFactory& factory, const Options& options, std::string_view name) {
  const auto check =
      std::find_if(Suite().begin(), Suite().end(), [&](const NamedCheck& known) { return known.name == name; });
  if (check == Suite().end()) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  Report report;
  Run(*check, factory, options, report);
  return report;
}

}  // namespace brivane::hostkit
