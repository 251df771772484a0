#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "dossier/office/Aside.h"
#include "dossier/office/Office.h"

namespace brivane::app {

/// Looks clients up on a session and a thread of its own, so that nobody waits for the server while typing, nor when
/// this goes. Of what is wanted while an answer is under way the last counts.
class ClientSearch final {
 public:
  ClientSearch(const QString& words, const QString& password);
  ClientSearch(const ClientSearch&) = delete;
  ClientSearch& operator=(const ClientSearch&) = delete;
  ~ClientSearch();

  void Want(const QString& typed);
  /// No answer is under way.
  [[nodiscard]] bool IsQuiet() const { return !busy_; }

  /// The clients that answer to what was typed.
  std::function<void(const QString& typed, std::vector<dossier::ClientLine> lines)> found;
  /// The office does not answer; for the adviser.
  std::function<void(const QString& reason)> failed;

 private:
  /// What is used on the thread alone.
  struct Session;
  void Ask(const QString& typed);
  void Done();

  std::shared_ptr<Session> session_;
  dossier::Aside aside_;
  bool busy_ = false;
  std::optional<QString> wanted_;
};

}  // namespace brivane::app
