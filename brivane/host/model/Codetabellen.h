#pragma once

namespace brivane::host {

/// The source of the host's code tables: handed back to the host, never looked into.
class Codetabellen {
 public:
  virtual ~Codetabellen() = default;
};

}  // namespace brivane::host
