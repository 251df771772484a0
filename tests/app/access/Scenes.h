#pragma once

#include <QDir>
#include <functional>
#include <memory>
#include <vector>

#include "app/screen/MainWindow.h"
#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/postgres/SocketProxy.h"

/// The windows of the program as a person meets them, each brought about on one fixed case. A further window is one
/// more entry in AllScenes().
namespace brivane::app {

/// The program's window, and a fixed case on a fixed day.
class Stage {
 public:
  /// Its files go into the folder.
  explicit Stage(const QDir& folder);
  ~Stage();

  [[nodiscard]] MainWindow& Window();
  /// The case, opened.
  [[nodiscard]] DossierScreen& Screen();
  /// Shows a column of the current situation, the focus in its first box.
  void GoTo(std::int16_t Vrij_Id);
  /// Puts the focus in a control of the editor.
  void Focus(const char* control);
  /// An office with two clients, the second of which anna edits since a fixed moment of a past year.
  [[nodiscard]] dossier::TrialOffice& Office();
  /// Her session.
  [[nodiscard]] dossier::OfficeStore& Anna();
  /// Shows that client as an account of the office sees it.
  void OpenClient(const char* account);
  /// Where a server lets everybody in and answers nobody.
  [[nodiscard]] QString NobodyAnswers();
  /// Presses a key, or types a text, in the window that has the focus.
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void Type(const char* text);

 private:
  QString file_;
  EventLog eventLog_;
  std::unique_ptr<dossier::TrialOffice> office_;
  std::unique_ptr<dossier::OfficeStore> anna_;
  std::unique_ptr<test::SocketProxy> nobody_;
  std::unique_ptr<MainWindow> window_;
};

struct Scene {
  const char* name;
  void (*play)(Stage& stage);
  /// How the element that is looked at starts, role and name, where it is not the whole window in front.
  const char* part = "panel \"Vrije kolom\"";
  bool modal = false;  ///< ends in a modal window, which stays open
  bool timed = false;  ///< tells the time of day, so that it never reads the same twice
};

[[nodiscard]] const std::vector<Scene>& AllScenes();
/// Plays a scene, and tells once it stands which window is in front: nothing where it did not come about. Comes back
/// when that window, if it is modal, has been closed.
void Play(const Scene& scene, Stage& stage, const std::function<void(QWidget* front)>& stands);

}  // namespace brivane::app
