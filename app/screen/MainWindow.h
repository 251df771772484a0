#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QStringList>
#include <memory>

#include "app/office/ClientAddress.h"
#include "app/office/Entrance.h"
#include "app/recording/Recording.h"
#include "app/screen/Actions.h"
#include "app/screen/ClientOnScreen.h"
#include "app/screen/DossierScreen.h"
#include "app/screen/HelpDesk.h"
#include "app/screen/OverviewWindows.h"

class QLabel;
class QStackedWidget;

namespace brivane::app {

class FindingsList;
class StartPage;
struct UnfinishedText;

/// The program's window: one loan file or client of an office at a time, or the page that offers to open one.
///
/// Closing it, or the file, asks the open column first; refused, everything stays.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  /// Size at the very first start: with its frame it stands on a screen of 1280 by 720 with a panel, and the editor
  /// fits without scrolling.
  static constexpr QSize kFirstSize{1240, 640};

  /// `eventLog` outlives the window.
  explicit MainWindow(EventLog& eventLog);
  ~MainWindow() override;

  /// Opens a loan file in place of the open one. Where that cannot be it says why, and all stays as it was.
  bool Open(const QString& file);
  /// Shows a loan file that is open already, in place of the page that offers to open one.
  void Show(std::unique_ptr<dossier::DossierFile> file);
  /// Makes a loan file and opens it; the same holds.
  bool Make(const QString& file, const dossier::DossierGegevens& gegevens);
  /// Enters an office and offers its clients.
  void OpenOffice(const QString& words);
  /// Opens a client in place of what is open; where that cannot be it says why, and all stays as it was.
  bool OpenClient(const ClientAddress& address);
  /// Closes the open file. False when its column must be mended first.
  bool CloseDossier();

  /// The open file's screen, or nothing.
  [[nodiscard]] DossierScreen* Screen() const { return screen_; }
  [[nodiscard]] const app::Actions& Actions() const { return actions_; }
  [[nodiscard]] const OverviewWindows& Overviews() const { return overviews_; }

  /// Writes all that is stored to a new file, and goes on in that one. Where the open file was moved or deleted this is
  /// how nothing of it is lost.
  void SaveCopy();

  /// A log-out is coming, which may yet be called off: hands over what is being typed, keeps for the next start what is
  /// refused or stands unconfirmed in a window in front, and works the file's log off. Asks nothing and closes nothing.
  void PrepareForLogOut();
  /// Ends the program as soon as what stands in front has been closed, with all of it kept for the next start: hands
  /// over what is being typed, and closes the file. Shows nothing and asks nothing.
  void EndInOrder();
  /// Offers what the last time could not be stored.
  void OfferUnfinished();
  /// The next start shows the window as it is now.
  void RememberPlace();

  /// Put between the next file's editor and its host, when set.
  Instrument instrument;

  /// Opens the file anew and records what is done in its columns, until it is closed or the recording stopped.
  bool Record(const QString& file);
  /// Ends the recording, if any, and writes it.
  void StopRecording();

 protected:
  void closeEvent(QCloseEvent* event) override;
  /// A box that is being typed in keeps its own keys for undo and redo; the others leave them to the menu.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Connect();
  void Put(std::unique_ptr<dossier::DossierStore> store);
  void ShowName();
  void AskNew();
  void AskOpen();
  void OpenRecent(const QString& file);
  void ClearRecent();
  void OpenSample();
  void AskClient();
  void AskLening();
  void Check();
  void ShowAbout();
  void AskRecording();
  void Take(dossier::StepKind kind);
  void ShowHistory();
  void AskAuthor();
  void AskLeningName();
  void NameSteps();
  void RecordingBroken();
  // Of an office.
  void ConnectOffice();
  /// Is in an office, this one where words are given; false where it cannot be or was put away.
  [[nodiscard]] bool IsInOffice(const QString& words);
  void AskClientOfOffice();
  void BringToOffice();
  void SaveAsFile();
  /// What is open is given what a client has beyond a file, where it is one.
  void FollowClient();
  void UpdateOffice(const QString& noFile);
  [[nodiscard]] bool MayLoseConnection();
  /// Where what is open is, to be kept and opened again; and the same to be shown.
  [[nodiscard]] QString Address() const;
  [[nodiscard]] QString Whereabouts() const;
  bool OpenAt(const QString& address);
  [[nodiscard]] QString AskNewFile(const QString& title, const QString& name);
  /// The file stands where it was, or the person gives it up.
  [[nodiscard]] bool MayLoseFile();
  void LetGoOfFile();
  void FinishEnd();
  void HandOverTyped();
  /// What was filled in in a window in front is kept for the next start.
  void KeepFilledIn(const QWidget* window);
  /// What this window kept is no longer unfinished.
  void ForgetKept();
  /// The place of what is on the screen, without a text.
  [[nodiscard]] UnfinishedText Here() const;
  /// Brings a text back to where it stood. False where its file could not be opened.
  [[nodiscard]] bool GoOnWith(const UnfinishedText& unfinished);
  void ShowAttention(std::size_t count);
  void UpdateActions();
  /// `noKolom`: why nothing can be done with a column now; empty where it can.
  void FillLeningMenus(const QString& noKolom);

  EventLog& eventLog_;
  app::Actions actions_;
  HelpDesk help_;
  std::shared_ptr<host::Hoofdvenster> owner_;
  QStackedWidget* stack_;
  StartPage* start_;
  FindingsList* findings_;
  QLabel* attention_;
  QLabel* fileName_;
  Recording recording_;
  OverviewWindows overviews_{*this};
  QPointer<DossierScreen> screen_;
  std::optional<Entrance> entrance_;
  ClientAddress address_;   ///< of the open client
  QPointer<QWidget> page_;  ///< of the open client: its bar above its screen
  std::unique_ptr<ClientOnScreen> client_;
  bool ending_ = false;
  bool finishing_ = false;
  QStringList kept_;  ///< names of what this window kept for the next start
};

}  // namespace brivane::app
