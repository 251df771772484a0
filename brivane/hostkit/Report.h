#pragma once

#include <string>
#include <vector>

#include <brivane/host/Export.h>
#include <brivane/hostkit/Host.h>

namespace brivane::hostkit {

/// A host does not answer as the controls need.
struct Finding {
  std::string check;     ///< the check that found it
  std::string member;    ///< "VrijeKolomItem.Looptijd"
  std::string written;   ///< what was written, asked or done
  std::string cameBack;  ///< what the host answered
  std::string wanted;    ///< what it was to answer
  std::string contract;  ///< what the contract says
  std::string hint;      ///< where to look; may be empty
  int alike = 0;         ///< how often more the same was found: with other values, or looked up anew
};

/// What became of the checks of a host.
struct Report {
  std::vector<std::string> passed;  ///< checks that found nothing, by name
  std::vector<Finding> findings;    ///< what was found, in the order of the checks
  std::vector<Exception> leftOut;   ///< what was not looked at: not given, or said to be beyond the host

  /// Whether nothing was found; what was left out does not count.
  [[nodiscard]] bool Ok() const { return findings.empty(); }
  /// For a reader: a line with the counts, then each finding, then what was left out and why. Ends with a line end.
  [[nodiscard]] BRIVANE_API std::string Text() const;
};

/// One finding for a reader, in lines.
[[nodiscard]] BRIVANE_API std::string Text(const Finding& finding);

}  // namespace brivane::hostkit
