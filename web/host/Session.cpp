#include "web/host/Session.h"

#include "web/host/Adapters.h"

namespace brivane::webhost {

Adapter::Adapter(std::shared_ptr<Session> session, webhost::Object object)
    : session_(std::move(session)), object_(std::move(object)) {}

Adapter::~Adapter() {
  if (object_) session_->Forget(object_->Number());
}

const webhost::Object& Adapter::Object() const {
  session_->Life()->Check();
  if (!object_) throw host::Error(host::ErrorNumber::ObjectMissing);
  return object_;
}

void Session::Forget(int number) {
  std::erase_if(known_, [&](const auto& entry) { return entry.first.second == number && entry.second.expired(); });
}

void Session::LetGo() {
  for (const auto& [key, adapter] : std::exchange(known_, {}))
    if (const std::shared_ptr<Adapter> held = adapter.lock()) held->LetGo();
}

host::HostFactories Session::Factories() {
  // The objects that the control made stay its own when the others are let go of.
  const auto made = [this](const char* what, std::string_view control) {
    life_->Check();
    webhost::Object object = Make(page_, what, std::string(control));
    life_->Check();
    return object;
  };
  return {.MaakProcedureTrace = [this, made](std::string_view control) -> std::shared_ptr<host::ProcedureTrace> {
            webhost::Object object = made("ProcedureTrace", control);
            return object ? std::make_shared<TraceAdapter>(shared_from_this(), std::move(object)) : nullptr;
          },
          .MaakDossierControle = [this, made](std::string_view control) -> std::shared_ptr<host::DossierControle> {
            webhost::Object object = made("DossierControle", control);
            return object ? std::make_shared<ControleAdapter>(shared_from_this(), std::move(object)) : nullptr;
          }};
}

}  // namespace brivane::webhost
