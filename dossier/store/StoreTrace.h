#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "dossier/model/Tracer.h"
#include "dossier/store/Edits.h"

namespace brivane::dossier {

/// Follows the procedures of the controls, for a log.
class TraceListener {
 public:
  virtual ~TraceListener() = default;
  virtual void Entered(std::string_view control, std::string_view procedure) = 0;
  virtual void Left(std::string_view control) = 0;
  virtual void Failed(std::string_view control, std::string_view procedure) = 0;
};

/// The tracer of one control on a loan file: what a procedure changes is stored when it ends. The tracers of
/// the editor and of its explanation share one Edits, as their procedures call each other.
class StoreTrace : public Tracer {
 public:
  /// `listener` may be nothing.
  StoreTrace(std::string_view control, std::shared_ptr<Edits> edits, std::shared_ptr<TraceListener> listener);

  void EnterProcedure(std::string_view procedure) override;
  void LeaveProcedure() override;
  void ErrorInProcedure(std::string_view procedure) override;

 private:
  std::string control_;
  std::shared_ptr<Edits> edits_;
  std::shared_ptr<TraceListener> listener_;
};

}  // namespace brivane::dossier
