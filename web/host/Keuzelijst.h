#pragma once

#include <brivane/host/controls/ListBox.h>

namespace brivane::webhost {

/// Lends a list to the host, which knows it by a number, while this stands.
class LentKeuzelijst {
 public:
  explicit LentKeuzelijst(host::ListBox& lijst);
  LentKeuzelijst(const LentKeuzelijst&) = delete;
  LentKeuzelijst& operator=(const LentKeuzelijst&) = delete;
  ~LentKeuzelijst();

  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace brivane::webhost
