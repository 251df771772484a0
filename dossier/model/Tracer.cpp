#include "dossier/model/Tracer.h"

namespace brivane::dossier {

void Tracer::EnterProcedure(std::string_view) {}
void Tracer::LeaveProcedure() {}
void Tracer::ErrorInProcedure(std::string_view) {}

}  // namespace brivane::dossier
