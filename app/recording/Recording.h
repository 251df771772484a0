#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "app/recording/Recorder.h"

namespace brivane::qt {
class VrijeKolomWidget;
}

namespace brivane::app {

/// A recording of what is done to the editor of a loan file, kept in a file that the adviser named.
///
///     recording.Choose(path);          // the next editor that is made will be recorded
///     ...                        // open the loan file anew
///     recording.Stop();             // writes it
///     recording.LetGo();          // before the editor goes
class Recording {
 public:
  /// Records the next editor into this file.
  void Choose(const QString& path) { chosen_ = path; }
  /// No editor was made after all.
  void Forget() { chosen_.clear(); }

  /// An editor was made, and has no control behind it yet.
  void Begin(std::shared_ptr<const dossier::Dossier> dossier, qt::VrijeKolomWidget& editor);
  /// Runs what the host does to the editor, as a step where a recording runs.
  void Do(HostAct act, const std::function<void()>& body);
  /// What follows cannot be replayed.
  void Break();
  /// Ends the recording and writes the file, also after it was broken off. Answers whether it was written.
  bool Stop();
  /// The editor is about to go.
  void LetGo();

  /// There is a recording that Stop has not written yet.
  [[nodiscard]] bool IsRunning() const { return !path_.isEmpty(); }
  [[nodiscard]] const QString& Path() const { return path_; }

  /// The recording was broken off: the host should stop it, later.
  std::function<void()> broken;

 private:
  QString chosen_;
  QString path_;
  qt::VrijeKolomWidget* editor_ = nullptr;
  std::unique_ptr<Recorder> recorder_;
};

}  // namespace brivane::app
