#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include <brivane/frame/ErrorReport.h>
#include <brivane/host/Export.h>
#include <brivane/host/model/HostFactories.h>

namespace brivane::frame {

/// The frame of every procedure of a control: entry, exit and the one error report, so that a body
/// holds the rule and nothing else.
///
///     void VrijeKolom::TxtOm_Validation() {
///       tracing_.Handled("TxtOm_Validation", [this] { ... });
///     }
///
/// `Handled` is a traced procedure with the error handler; `Unhandled` is traced too, but its failure
/// belongs to its caller. A procedure that uses neither is untraced.
///
/// The tracer is made by the first procedure that needs it and lives as long as the control. Entering
/// is not guarded (a tracer that refuses fails the caller); leaving is.
class BRIVANE_API Tracing {
 public:
  /// `identity` and `factories` are kept; `reporter` is asked at each report.
  Tracing(ControlIdentity identity, const host::HostFactories& factories, ErrorReporter reporter)
      : identity_(identity), factories_(factories), reporter_(std::move(reporter)) {}

  /// Runs a procedure and reports its failure, of which the caller does not hear. The name is lent for the call.
  template <class Body> void Handled(std::string_view procedure, Body&& body) {
    Trace().EnterProcedure(procedure);
    Guarded(procedure, [&] {
      body();
      Trace().LeaveProcedure();
    });
  }

  /// Runs a procedure; its failure goes to the caller, who reports it.
  template <class Body> void Unhandled(std::string_view procedure, Body&& body) {
    Trace().EnterProcedure(procedure);
    body();
    Trace().LeaveProcedure();
  }

  /// The error handler alone, for what a procedure does before it knows whether it is traced.
  /// Answers whether the body came to its end.
  template <class Body> bool Guarded(std::string_view procedure, Body&& body) {
    try {
      body();
      return true;
    } catch (...) {
      const host::Error error = CurrentError();
      Trace().ErrorInProcedure(procedure);
      Report(error);
      return false;
    }
  }

  /// The tracer, made on first use.
  [[nodiscard]] host::ProcedureTrace& Trace();
  /// Lets go of the tracer: the next use makes another one.
  void LetGo() { trace_.reset(); }

 private:
  /// Fills the error record in its order and hands it to the host; untraced, without a handler.
  void Report(const host::Error& error);

  ControlIdentity identity_;
  host::HostFactories factories_;
  ErrorReporter reporter_;
  std::shared_ptr<host::ProcedureTrace> trace_;
};

}  // namespace brivane::frame
