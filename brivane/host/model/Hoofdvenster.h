#pragma once

namespace brivane::host {

/// The host's main window, owner of modal forms: handed to the toolkit, never looked into.
class Hoofdvenster {
 public:
  virtual ~Hoofdvenster() = default;
};

}  // namespace brivane::host
