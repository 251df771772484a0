#pragma once

#include "component/automation/Module.h"

namespace brivane::component {

/// The counting of references to an object that stands for itself alone: it begins with one, and goes with the last.
template <class... Interfaces> class Counted : public Interfaces..., private module::LiveObject {
 public:
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  STDMETHODIMP_(ULONG) AddRef() override { return ++count_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --count_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  Counted() = default;
  virtual ~Counted() = default;

 private:
  ULONG count_ = 1;
};

}  // namespace brivane::component
