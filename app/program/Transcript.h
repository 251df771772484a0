#pragma once

#include <QFile>
#include <QJsonObject>
#include <QString>

#include "controls/Action.h"
#include "controls/Control.h"
#include "dossier/model/Dossier.h"

namespace brivane::app {

/// Writes what happens in a session as JSON, one object a line: actions, messages, events, and after every
/// change what is in the file now and was not before.
class Transcript final : public controls::ActionListener {
 public:
  /// Replaces the file. `dossier` is the case whose changes are told.
  Transcript(const QString& file, const dossier::Dossier& dossier);
  [[nodiscard]] bool IsOpen() const { return file_.isOpen(); }

  void Write(const QJsonObject& line);
  /// The case was stored: tells the fields that differ from the last time.
  void Stored();

  void Before(controls::AnyControl&, const controls::Action&) override {}
  void After(controls::AnyControl& control, const controls::Action& action,
             std::optional<controls::Outcome> outcome) override;

 private:
  QFile file_;
  const dossier::Dossier& dossier_;
  QJsonObject fields_;
};

}  // namespace brivane::app
