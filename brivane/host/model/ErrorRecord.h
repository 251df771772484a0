#pragma once

#include <string>

namespace brivane::host {

/// What a control writes of a failure into its ProcedureTrace before it reports it, as a host keeps it.
struct ErrorRecord {
  std::string ApplicationTitle;
  std::string ObjectName;
  std::string Caption;
  std::string ObjectDescription;
  std::string Message;
  std::string ErrorNumber;
  std::string ErrorDescription;
  std::string ErrorSource;
};

}  // namespace brivane::host
