#pragma once

#include <unistd.h>

namespace brivane::dossier {

/// While it lives, the process has the rights of an ordinary user: an administrator may read and write anything.
class GewoneGebruiker {
 public:
  GewoneGebruiker() : eigen_(geteuid()) {
    if (eigen_ == 0) gelukt_ = seteuid(kNobody) == 0;
  }
  GewoneGebruiker(const GewoneGebruiker&) = delete;
  GewoneGebruiker& operator=(const GewoneGebruiker&) = delete;
  ~GewoneGebruiker() {
    if (eigen_ == 0 && gelukt_) gelukt_ = seteuid(0) == 0;
  }
  [[nodiscard]] bool Gelukt() const { return gelukt_; }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t eigen_;
  bool gelukt_ = true;
};

}  // namespace brivane::dossier
