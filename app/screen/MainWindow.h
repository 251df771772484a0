#pragma once

#include <QMainWindow>
#include <QPointer>
#include <memory>

#include "app/recording/Recording.h"
#include "app/screen/Actions.h"
#include "app/screen/DossierScreen.h"

class QLabel;
class QStackedWidget;

namespace brivane::app {

class FindingsList;
class StartPage;

/// The program's window: one loan file at a time, or the page that offers to open one.
///
/// Closing it, or the file, asks the open column first; refused, everything stays.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  /// Size at the very first start, where the screen is large enough: the editor fits without scrolling.
  static constexpr QSize kFirstSize{1220, 760};

  /// `eventLog` outlives the window.
  explicit MainWindow(EventLog& eventLog);
  ~MainWindow() override;

  /// Opens a loan file in place of the open one. Where that cannot be it says why, and all stays as it was.
  bool Open(const QString& file);
  /// Shows a loan file that is open already, in place of the page that offers to open one.
  void Show(std::unique_ptr<dossier::DossierFile> file);
  /// Makes a loan file and opens it; the same holds.
  bool Make(const QString& file, const dossier::DossierGegevens& gegevens);
  /// Closes the open file. False when its column must be mended first.
  bool CloseDossier();

  /// The open file's screen, or nothing.
  [[nodiscard]] DossierScreen* Screen() const { return screen_; }
  [[nodiscard]] const app::Actions& Actions() const { return actions_; }

  /// Put between the next file's editor and its host, when set.
  Instrument instrument;

  /// Opens the file anew and records what is done in its columns, until it is closed or the recording stopped.
  bool Record(const QString& file);
  /// Ends the recording, if any, and writes it.
  void StopRecording();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Connect();
  void AskNew();
  void AskOpen();
  void OpenSample();
  void AskClient();
  void AskLening();
  void Check();
  void ShowAbout();
  void AskRecording();
  void RecordingBroken();
  [[nodiscard]] QString AskNewFile(const QString& title, const QString& name);
  void ShowAttention(std::size_t count);
  void UpdateActions();
  void FillLeningMenus();

  EventLog& eventLog_;
  app::Actions actions_;
  std::shared_ptr<host::Hoofdvenster> owner_;
  QStackedWidget* stack_;
  StartPage* start_;
  FindingsList* findings_;
  QLabel* attention_;
  QLabel* fileName_;
  Recording recording_;
  QPointer<DossierScreen> screen_;
};

}  // namespace brivane::app
