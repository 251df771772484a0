#pragma once

#include "component/idl/Windows.h"

#include "component/control/Subject.h"

namespace brivane::component {

/// Interfaces of the control, whose identity and count of references are those of the object around it.
template <class... Interfaces> class Delegating : public Interfaces... {
 public:
  explicit Delegating(Subject& subject) : subject_(subject) {}
  Delegating(const Delegating&) = delete;
  Delegating& operator=(const Delegating&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) final { return subject_.Outer().QueryInterface(iid, out); }
  STDMETHODIMP_(ULONG) AddRef() final { return subject_.Outer().AddRef(); }
  STDMETHODIMP_(ULONG) Release() final { return subject_.Outer().Release(); }

 protected:
  ~Delegating() = default;
  [[nodiscard]] Subject& TheSubject() const { return subject_; }

 private:
  Subject& subject_;
};

}  // namespace brivane::component
