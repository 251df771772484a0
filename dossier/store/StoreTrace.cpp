#include "dossier/store/StoreTrace.h"

#include <utility>

namespace brivane::dossier {

StoreTrace::StoreTrace(std::string_view control, std::shared_ptr<Edits> edits, std::shared_ptr<TraceListener> listener)
    : control_(control), edits_(std::move(edits)), listener_(std::move(listener)) {}

void StoreTrace::EnterProcedure(std::string_view procedure) {
  if (listener_) listener_->Entered(control_, procedure);
  edits_->Enter(procedure);
}

void StoreTrace::LeaveProcedure() {
  edits_->Leave();
  if (listener_) listener_->Left(control_);
}

void StoreTrace::ErrorInProcedure(std::string_view procedure) {
  if (listener_) listener_->Failed(control_, procedure);
  edits_->Fail(procedure);
}

}  // namespace brivane::dossier
