#include "component/automation/HostSession.h"

#include <vector>

#include <brivane/host/Error.h>

namespace brivane::component {

void HostSession::LetGo() {
  // Releasing an object may come back here.
  std::vector<std::shared_ptr<Adapter>> held;
  for (const auto& [key, adapter] : std::exchange(known_, {}))
    if (auto alive = adapter.lock()) held.push_back(std::move(alive));
  for (const auto& adapter : std::exchange(makers_, {}))
    if (auto alive = adapter.lock()) {
      makers_.push_back(adapter);
      held.push_back(std::move(alive));
    }
  for (const auto& adapter : held) adapter->LetGo();
}

void HostSession::RenewMade() {
  for (const auto& adapter : std::vector(makers_))
    if (const auto alive = adapter.lock()) alive->LetGo();
}

void HostSession::Forget(const Adapter& adapter) {
  std::erase_if(known_, [&](const auto& entry) {
    return entry.first.second == adapter.identity_.Get() && entry.second.expired();
  });
}

Adapter::Adapter(std::shared_ptr<HostSession> session, ComPtr<IDispatch> object)
    : session_(std::move(session)), target_(std::move(object), session_->Life()) {
  if (target_) target_.Object()->QueryInterface(IID_PPV_ARGS(identity_.Put()));
}

Adapter::~Adapter() { session_->Forget(*this); }

IDispatch* Adapter::Object() const { return Target().Object(); }

void Adapter::Replace(ComPtr<IDispatch> object) {
  const ComPtr<IUnknown> identity = std::exchange(identity_, object.As<IUnknown>());
  const LateBound target = std::exchange(target_, LateBound(std::move(object), session_->Life()));
}

LateBound& Adapter::Target() const {
  session_->Life()->Check();
  if (!target_ && maker_) {
    ComPtr<IDispatch> made = maker_();
    session_->Life()->Check();
    target_ = LateBound(std::move(made), session_->Life());
  }
  if (!target_) throw host::Error(host::ErrorNumber::ObjectMissing);
  return target_;
}

}  // namespace brivane::component
