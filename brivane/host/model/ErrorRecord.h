#pragma once

#include <string>

namespace brivane::host {

/// What a control writes of a failure into its ProcedureTrace before it reports it, as a host keeps it. UTF-8.
struct ErrorRecord {
  std::string ApplicationTitle;   ///< as Desktop::ApplicationTitle answers it
  std::string ObjectName;         ///< "VrijeKolom" or "Toelichting"
  std::string Caption;            ///< title of a box that shows it
  std::string ObjectDescription;  ///< what the control is, in Dutch words
  std::string Message;            ///< what such a box says first, in Dutch
  std::string ErrorNumber;        ///< decimal
  std::string ErrorDescription;   ///< as Error::Description
  std::string ErrorSource;        ///< as Error::Source
};

}  // namespace brivane::host
