// Random keys and clicks in the real window: it neither falls over nor stands still, what it accepted is in the file or
// the office, and what it shows is what is stored there.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <vector>

#include "app/desk/UnfinishedText.h"
#include "app/screen/MainWindow.h"
#include "dossier/model/SampleCase.h"
#include "dossier/office/Aside.h"
#include "tests/app/hands/RandomHands.h"
#include "tests/dossier/office/TrialOffice.h"
#include <brivane/frame/Dates.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::app {
namespace {

constexpr unsigned kHang = 60;      ///< seconds after which a session that does nothing more is ended
constexpr int kBetweenLooks = 200;  ///< actions between two looks at the file
constexpr int kOnStartPage = 15;    ///< actions on the page without a file, before one is opened again
constexpr int kShort = 1500;

int Actions() {
  const int asked = qEnvironmentVariableIntValue("BRIVANE_HANDS");
  return asked > 0 ? asked : kShort;
}

/// What was done last, for whoever looks why nothing is done any more.
const RandomHands* hanging = nullptr;

/// The session stands still: the process ends anyhow, and its state tells why.
void TellHang(int) {
  for (const QString& action : hanging->Last()) std::cerr << "  " << action.toStdString() << '\n';
  std::abort();
}

enum class Work { InAFile, InAnOffice };

class Session {
 public:
  Session(unsigned seed, Work work) : hands_(seed, folder_.path()), actions_(Actions()) {
    dossier::DossierFile::Maak(File(), dossier::VoorbeeldDossier());
    if (work == Work::InAnOffice) {
      office_ = std::make_unique<dossier::TrialOffice>();
      client_ = office_->Add();
    }
    QApplication::clipboard()->setText(QStringLiteral("1\n2,5\n300\n"));
    NewWindow();
    OpenAgain();
  }
  ~Session() {
    for (const auto& kept : UnfinishedText::All()) UnfinishedText::Forget(kept.name);
  }

  void Run() {
    hanging = &hands_;
    signal(SIGALRM, TellHang);
    PlanNext();
    while (!Enough()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    over_ = true;
    alarm(0);
    if (testing::Test::HasFailure()) return Tell();
    End();
    Tell();
  }

 private:
  void OpenAgain() {
    if (office_)
      window_->OpenClient({office_->Words("anna"), client_});
    else
      window_->Open(File());
  }
  [[nodiscard]] QString File() const { return folder_.filePath(QStringLiteral("k.dossier")); }

  void NewWindow() {
    window_ = std::make_unique<MainWindow>(eventLog_);
    window_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }

  /// In the event loop of whatever window is in front.
  void PlanNext() {
    QTimer::singleShot(1, qApp, [this] { Next(); });
  }

  void Next() {
    if (Enough()) return LeaveLoops();
    // Before the action: a window that it brings up has an event loop of its own.
    PlanNext();
    QWidget* front = QApplication::activePopupWidget();
    if (front == nullptr) front = QApplication::activeModalWidget();
    // An action on that window has not returned yet; only in what it brought up is there something to do.
    if (std::find(acting_.begin(), acting_.end(), front ? front : window_.get()) != acting_.end()) return;
    alarm(kHang);
    ++done_;
    if (front == nullptr) {
      Quiet();
      front = window_.get();
    }
    acting_.emplace_back(front);
    hands_.Act(*front);
    acting_.pop_back();
  }

  [[nodiscard]] bool Enough() const { return done_ >= actions_ || testing::Test::HasFailure(); }

  /// What stands in front is left, and what a button that was pressed just now brings up, until Run gets its turn.
  void LeaveLoops() {
    if (over_) return;
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->done(QDialog::Rejected);
    QTimer::singleShot(5, qApp, [this] { LeaveLoops(); });
  }

  /// Nothing stands in front.
  void Quiet() {
    if (!window_->isVisible()) {
      ++quits_;
      EXPECT_EQ(window_->Screen(), nullptr) << "closed with a file open";
      window_->show();
    }
    if (window_->Screen() == nullptr) {
      if (++onStartPage_ < kOnStartPage) return;
      onStartPage_ = 0;
      OpenAgain();
      return;
    }
    if (done_ % 10 == 0) TheScreenShowsWhatIsStored();
    if (done_ % kBetweenLooks == 0) TheFileHasWhatWasAccepted();
  }

  void TheScreenShowsWhatIsStored() {
    DossierScreen& screen = *window_->Screen();
    if (!screen.Shown().Vrij_Id) return;
    const auto& editor = screen.Kolom().Editor();
    if (AnyPending(editor) || qt::ChoiceBox::UnderWayWithin(editor) != nullptr) return;
    const auto column = screen.Dossier().FindKolom(screen.Shown().Len_Id, *screen.Shown().Vrij_Id);
    ASSERT_TRUE(column) << "the screen shows a column that is not there";
    const QWidget* description = editor.findChild<QWidget*>(QStringLiteral("TxtOm"));
    ASSERT_NE(description, nullptr);
    const auto* line = qobject_cast<const QLineEdit*>(description);
    if (line == nullptr) line = description->findChild<QLineEdit*>();
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text().toStdString(), column->Omschrijving());
    ++looks_;
  }

  /// Something is being typed in some box, which need not have the focus.
  bool AnyPending(const QWidget& editor) {
    for (QLineEdit* line : editor.findChildren<QLineEdit*>()) {
      auto* box = dynamic_cast<qt::EntryBox*>(line);
      if (box == nullptr || !box->Edit().IsPending()) continue;
      if (qt::EntryBox::PendingWithin(editor) == nullptr) ++withoutFocus_;
      return true;
    }
    return false;
  }

  /// What is on the disk now, should the machine stop.
  void TheFileHasWhatWasAccepted() {
    if (window_->Screen()->Path().isEmpty()) return TheOfficeHas(Client(), window_->Screen()->Dossier());
    const QTemporaryDir aside;
    const QString file = window_->Screen()->Path();
    const QString copy = aside.filePath(QStringLiteral("k.dossier"));
    ASSERT_TRUE(QFile::copy(file, copy));
    if (QFile::exists(file + "-wal")) {
      ASSERT_TRUE(QFile::copy(file + "-wal", copy + "-wal"));
    }
    Compare(copy, window_->Screen()->Dossier());
    ++files_;
  }

  /// The client that is open.
  [[nodiscard]] int Client() const {
    return dynamic_cast<const dossier::OfficeStore&>(window_->Screen()->Store()).Client();
  }
  /// For somebody else who looks at it now.
  void TheOfficeHas(int client, const dossier::Dossier& dossier) {
    const auto reader = office_->Open(client, "rob");
    EXPECT_TRUE(reader->Dossier()->Gegevens() == dossier.Gegevens()) << "the office has not what was accepted";
    ++clients_;
  }

  static void Compare(const QString& file, const dossier::Dossier& dossier) {
    try {
      const auto open = dossier::DossierFile::Open(file);
      EXPECT_TRUE(open->ControleerHeelheid().isEmpty()) << open->ControleerHeelheid().join("; ").toStdString();
      EXPECT_TRUE(open->Dossier()->Gegevens() == dossier.Gegevens()) << "the file has not what was accepted";
    } catch (const dossier::OpeningError& error) {
      ADD_FAILURE() << error.what();
    }
  }

  void End() {
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "a modal window stays";
    std::shared_ptr<const dossier::Dossier> dossier;
    QString file;
    if (window_->Screen() != nullptr) {
      file = window_->Screen()->Path();
      if (file.isEmpty()) client_ = Client();
      dossier = window_->Screen()->Store().Dossier();
    }
    window_->EndInOrder();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window_->Screen() == nullptr; }, 20000));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    if (dossier && file.isEmpty())
      TheOfficeHas(client_, *dossier);
    else if (dossier)
      Compare(file, *dossier);
    window_.reset();
    EXPECT_TRUE(dossier::Aside::AllEnd(std::chrono::seconds(20)));
    if (office_) {
      EXPECT_GT(clients_, 0) << "it was never in the office";
      EXPECT_EQ(office_->Psql("postgres",
                              "SELECT count(*) FROM kantoor.bewerker b JOIN pg_stat_activity a USING (pid) "
                              "WHERE a.datname = current_database() AND a.pid <> pg_backend_pid()"),
                "0")
          << "a client is still held";
    }
    for (const QString& name : QDir(folder_.path()).entryList(QDir::Files)) {
      EXPECT_FALSE(name.contains("-wal") || name.contains("-journal") || name.contains("-shm")) << name.toStdString();
      if (!name.endsWith(QStringLiteral(".dossier"))) continue;
      ++made_;
      try {
        EXPECT_TRUE(dossier::DossierFile::Open(folder_.filePath(name))->ControleerHeelheid().isEmpty());
      } catch (const dossier::OpeningError& error) {
        ADD_FAILURE() << error.what();
      }
    }
  }

  void Tell() const {
    std::cout << done_ << " actions:";
    for (const auto& [kind, times] : hands_.Counts()) std::cout << ' ' << times << ' ' << kind << ',';
    std::cout << " looked " << looks_ << " times at the screen and " << files_ << " times at the file, " << clients_
              << " times at the office; saw a box that is edited without the focus " << withoutFocus_
              << " times; closed the window " << quits_ << " times; " << made_
              << " loan files in the end; error reports: " << eventLog_.Read().count(QStringLiteral("FOUT")) << '\n';
    for (const QString& line : eventLog_.Read().split(u'\n')) {
      if (line.contains(QStringLiteral("FOUT"))) std::cout << "  " << line.toStdString() << '\n';
    }
    if (testing::Test::HasFailure()) {
      for (const QString& action : hands_.Last()) std::cout << "  " << action.toStdString() << '\n';
    }
  }

  std::unique_ptr<dossier::TrialOffice> office_;
  int client_ = 0;
  int clients_ = 0;  ///< looks at what the office has
  QTemporaryDir folder_;
  EventLog eventLog_{folder_.filePath(QStringLiteral("log"))};
  RandomHands hands_;
  int actions_;
  std::unique_ptr<MainWindow> window_;
  int done_ = 0;
  std::vector<QPointer<QWidget>> acting_;  ///< the windows in which an action is under way, the last one in front
  bool over_ = false;
  int onStartPage_ = 0;
  int quits_ = 0;
  int looks_ = 0;
  int withoutFocus_ = 0;  ///< looks at which a box was being edited that has not the focus
  int files_ = 0;
  int made_ = 0;
};

class RandomHandsTest : public testing::TestWithParam<unsigned> {};

TEST_P(RandomHandsTest, LoseNothing) { Session(GetParam(), Work::InAFile).Run(); }
TEST_P(RandomHandsTest, LoseNothingInAnOffice) { Session(GetParam(), Work::InAnOffice).Run(); }

INSTANTIATE_TEST_SUITE_P(Seeds, RandomHandsTest, testing::Values(1u, 2u, 3u));

}  // namespace
}  // namespace brivane::app
