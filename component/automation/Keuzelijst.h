#pragma once

#include "component/automation/ComPtr.h"
#include <brivane/host/controls/ListBox.h>

namespace brivane::component {

/// Lends a list to the host as an object (IKeuzelijst) for the time of one call. What the host keeps of it longer
/// fails with error 91.
class LentKeuzelijst {
 public:
  explicit LentKeuzelijst(host::ListBox& lijst);
  LentKeuzelijst(const LentKeuzelijst&) = delete;
  LentKeuzelijst& operator=(const LentKeuzelijst&) = delete;
  ~LentKeuzelijst();

  [[nodiscard]] IDispatch* Object() const;

 private:
  class Keuzelijst;

  Keuzelijst* object_;
};

}  // namespace brivane::component
