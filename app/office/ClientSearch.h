#pragma once

#include <QObject>
#include <QString>
#include <QThread>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "dossier/office/Office.h"

namespace brivane::app {

/// Looks clients up on a session and a thread of its own, so that nobody waits for the server while typing. Of what is
/// wanted while an answer is under way the last counts. Lives as long as a question is under way at least.
class ClientSearch final : public QObject {
 public:
  ClientSearch(const QString& words, const QString& password, QObject* parent = nullptr);
  ~ClientSearch() override;

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

  QThread thread_;
  QObject* there_;  ///< an object of the thread
  std::shared_ptr<Session> session_;
  bool busy_ = false;
  std::optional<QString> wanted_;
};

}  // namespace brivane::app
