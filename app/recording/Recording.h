#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "app/recording/Recorder.h"

namespace brivane::qt {
class VrijeKolomWidget;
}

namespace brivane::dossier {

/// A recording of what is done to the editor of a loan file, kept in a file that the adviser named.
///
///     opname.Kies(pad);          // the next editor that is made will be recorded
///     ...                        // open the loan file anew
///     opname.Stop();             // writes it
///     opname.LaatLos();          // before the editor goes
class Opname {
 public:
  /// Records the next editor into this file.
  void Kies(const QString& pad) { gekozen_ = pad; }
  /// No editor was made after all.
  void Vergeet() { gekozen_.clear(); }

  /// An editor was made, and has no control behind it yet.
  void Begin(std::shared_ptr<const Dossier> dossier, qt::VrijeKolomWidget& editor);
  /// Runs what the host does to the editor, as a step where a recording runs.
  void Doe(Hostdaad daad, const std::function<void()>& uitvoering);
  /// What follows cannot be replayed.
  void Breek();
  /// Ends the recording and writes the file, also after it was broken off. Answers whether it was written.
  bool Stop();
  /// The editor is about to go.
  void LaatLos();

  /// There is a recording that Stop has not written yet.
  [[nodiscard]] bool Loopt() const { return !pad_.isEmpty(); }
  [[nodiscard]] const QString& Pad() const { return pad_; }

  /// The recording was broken off: the host should stop it, later.
  std::function<void()> gebroken;

 private:
  QString gekozen_;
  QString pad_;
  qt::VrijeKolomWidget* editor_ = nullptr;
  std::unique_ptr<Opnemer> opnemer_;
};

}  // namespace brivane::dossier
