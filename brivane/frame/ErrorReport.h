#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include <brivane/host/Error.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Desktop.h>
#include <brivane/host/model/Application.h>

namespace brivane::frame {

/// Title of every box that reports an unexpected failure.
inline constexpr std::string_view kReportCaption = "Kwandero";
/// What it says first.
inline constexpr std::string_view kReportMessage = "Er is een fout opgetreden.";

/// How a control presents itself in an error report and to the host's factories.
struct ControlIdentity {
  std::string_view name;         ///< "VrijeKolom", "Toelichting"
  std::string_view description;  ///< what the control is, in words
};

/// Where a control's reports go: the desktop that knows the application's title and pointer, and the
/// application bound at the moment of the report (nothing before the first binding).
struct ErrorReporter {
  host::Desktop* desktop;                                           ///< never nothing; outlives the control
  std::function<std::shared_ptr<host::Application>()> application;  ///< asked at each report
};

/// The exception being handled as an Error: one that is not an Error becomes number 440 with its text.
/// To be called from a catch clause.
[[nodiscard]] BRIVANE_API host::Error CurrentError();

}  // namespace brivane::frame
