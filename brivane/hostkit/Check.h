#pragma once

#include <string_view>
#include <vector>

#include <brivane/host/Export.h>
#include <brivane/hostkit/Host.h>
#include <brivane/hostkit/Report.h>

/// Tells whether a host answers as the controls need.
///
///     const hostkit::Report report = hostkit::Check([] { return hostkit::Host{MakeMyCase(), MyFactories()}; });
///     std::cout << report.Text();
///     return report.Ok() ? 0 : 1;
///
/// Each check has a host of its own, so that none sees what another did. What the host throws is a finding; what it
/// crashes on is not caught. brivane/hostkit/googletest/HostTests.h makes a test of each check.
namespace brivane::hostkit {

/// The names of the checks, in their order: those of a member bear its name.
[[nodiscard]] BRIVANE_API const std::vector<std::string_view>& Checks();

/// Runs every check.
[[nodiscard]] BRIVANE_API Report Check(const HostFactory& factory, const Options& options = {});
/// Runs the check of that name, spelled exactly; fails with error 9 for another name.
[[nodiscard]] BRIVANE_API Report Check(const HostFactory& factory, const Options& options, std::string_view name);

}  // namespace brivane::hostkit
