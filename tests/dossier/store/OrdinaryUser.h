#pragma once

#include <unistd.h>

namespace brivane::dossier {

/// While it lives, the process has the rights of an ordinary user: an administrator may read and write anything.
class OrdinaryUser {
 public:
  OrdinaryUser() : own_(geteuid()) {
    if (own_ == 0) succeeded_ = seteuid(kNobody) == 0;
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (own_ == 0 && succeeded_) succeeded_ = seteuid(0) == 0;
  }
  [[nodiscard]] bool Succeeded() const { return succeeded_; }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t own_;
  bool succeeded_ = true;
};

}  // namespace brivane::dossier
