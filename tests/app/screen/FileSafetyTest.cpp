#include <signal.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include "app/desk/FileDialogs.h"
#include "app/desk/Settings.h"
#include "app/program/CommandLine.h"
#include "app/program/PrivateFiles.h"
#include "tests/app/screen/WindowTest.h"
#include <brivane/toolkits/qt/widgets/QuestionBox.h>

// What the window and its dialogs do to files.
namespace brivane::app {
namespace {

/// Counts the times that a file is opened, by whomever.
class Openings {
 public:
  explicit Openings(const QString& file) : queue_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    inotify_add_watch(queue_, QFile::encodeName(file).constData(), IN_OPEN);
  }
  Openings(const Openings&) = delete;
  Openings& operator=(const Openings&) = delete;
  ~Openings() { close(queue_); }
  [[nodiscard]] int Count() const {
    char events[4096];
    const ssize_t size = read(queue_, events, sizeof events);
    return size <= 0 ? 0 : static_cast<int>(size / static_cast<ssize_t>(sizeof(inotify_event)));
  }

 private:
  int queue_;
};

class FileSafetyTest : public WindowTest {
 protected:
  [[nodiscard]] QByteArray Bytes(const QString& file) {
    QFile open(file);
    EXPECT_TRUE(open.open(QIODevice::ReadOnly)) << file.toStdString();
    return open.readAll();
  }
};

/// Lets a dialog look around as long as a person would, and leaves it.
Dialogs::Handler LookAround() {
  return [](QWidget& dialog) {
    QTest::qWait(600);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
  };
}

TEST_F(FileSafetyTest, NoFileDialogOpensAFile) {
  Open();
  const QString other = folder_.filePath("ander.dossier");
  dossier::DossierFile::Maak(other, dossier::VoorbeeldDossier());
  Settings::SetLastFile(file_);
  const Openings of(file_);
  const Openings ofOther(other);
  dialogs_.Expect(LookAround());
  PressKey(Qt::Key_O, Qt::ControlModifier);
  dialogs_.Expect(LookAround());
  window_->Actions().record->trigger();
  dialogs_.Expect(LookAround());
  window_->Actions().saveCopy->trigger();
  EXPECT_EQ(of.Count(), 0);
  EXPECT_EQ(ofOther.Count(), 0);
}

TEST_F(FileSafetyTest, NoFileDialogRenamesOrDeletesAFile) {
  Open();
  Settings::SetLastFile(file_);
  for (QAction* action : {window_->Actions().open, window_->Actions().saveCopy}) {
    dialogs_.Expect([&](QWidget& dialog) {
      auto* list = dialog.findChild<QListView*>("listView");
      ASSERT_NE(list, nullptr);
      const auto row = [&] {
        return list->model()->match(list->rootIndex().model()->index(0, 0, list->rootIndex()), Qt::DisplayRole,
                                    "test.dossier");
      };
      ASSERT_TRUE(QTest::qWaitFor([&] { return !row().isEmpty(); }, 5000));
      list->setFocus();
      list->setCurrentIndex(row().front());
      // A question would come up, which is not expected here.
      QTest::keyClick(list, Qt::Key_Delete);
      QTest::keyClick(list, Qt::Key_F2);
      EXPECT_EQ(list->findChild<QLineEdit*>(), nullptr) << "the name can be changed";
      static_cast<QDialog&>(dialog).reject();
    });
    action->trigger();
  }
  EXPECT_TRUE(Screen().Store().InPlace());
}

TEST_F(FileSafetyTest, NothingOfAFolderIsKeptForOtherPrograms) {
  Settings::SetLastFile(file_);
  const QString own = QSettings().fileName();
  dialogs_.Expect(LookAround());
  PressKey(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(QSettings().fileName(), own);
  const QSettings qt(QSettings::UserScope, QStringLiteral("QtProject"));
  EXPECT_FALSE(QFile::exists(qt.fileName())) << Bytes(qt.fileName()).toStdString();
}

TEST_F(FileSafetyTest, ARecordingIsNotWrittenOverTheOpenFileOrAnyOther) {
  Open();
  const QString letter = folder_.filePath("brief.txt");
  QFile file(letter);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Geachte heer,");
  file.close();
  for (const QString& taken : {file_, letter}) {
    dialogs_.ExpectMessage("Er staat al een bestand", Pressing(Qt::Key_Return));
    EXPECT_FALSE(window_->Record(taken));
  }
  EXPECT_EQ(Bytes(letter), "Geachte heer,");
  EXPECT_EQ(ReadAfterClosing()["0/1/bedrag"].toDouble(), 485.5);
}

TEST_F(FileSafetyTest, WhatWasStoredOfADeletedFileIsKeptElsewhere) {
  Open();
  Screen().Dossier().FindKolom(0, 1)->SetOmschrijving("aanvaard");
  ASSERT_TRUE(QFile::remove(file_));
  const QString copy = folder_.filePath("bewaard.dossier");
  dialogs_.Expect([&](QWidget& dialog) {
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText(copy);
    QTest::keyClick(name, Qt::Key_Return);
  });
  window_->Actions().saveCopy->trigger();
  EXPECT_EQ(Screen().Path(), copy);
  EXPECT_EQ(Kolom(0, 1).Omschrijving, "aanvaard");
  Screen().Dossier().FindKolom(0, 1)->SetLooptijd(17);
  ASSERT_TRUE(window_->CloseDossier());
  EXPECT_EQ(ReadInSecondProcess(copy)["0/1/looptijd"].toInt(), 17);
}

TEST_F(FileSafetyTest, AFileThatIsGoneIsNotClosedUnasked) {
  Open();
  ASSERT_TRUE(QFile::remove(file_));
  dialogs_.ExpectMessage("staat niet meer waar het stond", Pressing(Qt::Key_Escape));
  EXPECT_FALSE(window_->CloseDossier());
  dialogs_.ExpectMessage("staat niet meer waar het stond",
                         [](QWidget& box) { box.findChildren<QAbstractButton*>().front()->click(); });
  EXPECT_TRUE(window_->CloseDossier());
}

TEST_F(FileSafetyTest, ANameIsShownAsItIs) {
  const QString marked = folder_.filePath("<b>vet<u> &amp; x.dossier");
  ASSERT_TRUE(QFile::rename(file_, marked));
  ASSERT_TRUE(window_->Open(marked));
  const auto* label = window_->findChild<QLabel*>("bestandsnaam");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), marked);
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(FileSafetyTest, AReadOnlyFileIsShownAsOne) {
  QFile::setPermissions(file_, QFile::ReadOwner);
  Open();
  EXPECT_TRUE(window_->findChild<QLabel*>("bestandsnaam")->text().endsWith("(alleen lezen)"));
  EXPECT_EQ(Kolom(0, 1).Omschrijving, "Kinderopvang");
}

TEST(NewFileDialogTest, ANameThatIsTakenIsToldOnceAndTheDialogStays) {
  const QTemporaryDir folder;
  QFile taken(folder.filePath("bezet.dossier"));
  ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
  int messages = 0;
  const auto enter = [&](const QString& name) {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    // There is no window manager that gives the focus back when the message closes.
    dialog->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    auto* box = dialog->findChild<QLineEdit*>("fileNameEdit");
    box->setFocus();
    box->setText(folder.filePath(name));
    box->selectAll();
    QTest::keyClick(box, Qt::Key_X, Qt::AltModifier);
    EXPECT_EQ(box->text(), folder.filePath(name));
    QTest::keyClick(box, Qt::Key_Return);
  };
  QTimer::singleShot(200, qApp, [&] {
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (message == nullptr) return;
      ++messages;
      // Keys that were under way do not close it.
      EXPECT_NE(dynamic_cast<qt::QuestionBox*>(message), nullptr);
      EXPECT_TRUE(message->text().contains("staat al een bestand \"bezet.dossier\"")) << message->text().toStdString();
      message->accept();
    });
    look.start(20);
    enter("bezet.dossier");
    QTest::qWait(200);
    enter("vrij.dossier");
  });
  const QString chosen = AskNewFile(
      nullptr, {.title = "Opslaan", .folder = folder.path(), .filter = "Dossiers (*.dossier)"}, "dossier", "naam");
  EXPECT_EQ(chosen, folder.filePath("vrij.dossier"));
  EXPECT_EQ(messages, 1);
}

TEST(ArgumentsTest, ThatAreNoUtf8AreRefused) {
  const char* good[] = {"dossier", "--voorbeeld", "caf\xc3\xa9.dossier"};
  EXPECT_EQ(DecodeArguments(3, good), QStringList({"--voorbeeld", "café.dossier"}));
  const char* bad[] = {"dossier", "caf\xe9.dossier"};
  EXPECT_EQ(DecodeArguments(2, bad), std::nullopt);
}

mode_t Rights(const QString& file) {
  struct stat info {};
  EXPECT_EQ(stat(QFile::encodeName(file).constData(), &info), 0) << file.toStdString();
  return info.st_mode & 0777;
}

/// The program itself, under a mask that lets everybody in.
class ProgramRun {
 public:
  explicit ProgramRun(const QStringList& arguments) {
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) environment.insert(name, Home());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setChildProcessModifier([] { umask(0); });
    process_.start(QStringLiteral(DOSSIER), arguments);
    EXPECT_TRUE(process_.waitForStarted());
  }
  [[nodiscard]] QString Home() const { return home_.path(); }
  [[nodiscard]] QProcess& Process() { return process_; }

 private:
  QTemporaryDir home_;
  QProcess process_;
};

TEST(ProgramTest, EndsInOrderBySignalsAndKeepsEverythingItsOwners) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    SCOPED_TRACE(signal);
    const QTemporaryDir folder;
    const QString file = folder.filePath("x.dossier");
    dossier::DossierFile::Maak(file, dossier::VoorbeeldDossier());
    ProgramRun run({file});
    // The file is open once its log stands beside it; the window comes after that.
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(file + "-wal"); }, 20000));
    QTest::qWait(500);
    kill(static_cast<pid_t>(run.Process().processId()), signal);
    ASSERT_TRUE(run.Process().waitForFinished(20000));
    EXPECT_EQ(run.Process().exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(run.Process().exitCode(), 0);
    EXPECT_FALSE(QFile::exists(file + "-wal"));
    EXPECT_EQ(Rights(run.Home() + "/Brivane"), 0700u);
    EXPECT_EQ(Rights(run.Home() + "/Brivane/dossier.conf"), 0600u);
    EXPECT_EQ(Rights(run.Home() + "/Brivane/dossier"), 0700u);
    EXPECT_EQ(Rights(run.Home() + "/Brivane/dossier/logboek.txt"), 0600u);
  }
}

TEST(ProgramTest, ItsSessionIsNotPlayedOverALoanFile) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("transcript.jsonl");
  dossier::DossierFile::Maak(file, dossier::VoorbeeldDossier());
  QFile before(file);
  ASSERT_TRUE(before.open(QIODevice::ReadOnly));
  const QByteArray bytes = before.readAll();
  ProgramRun run({"--sessie", folder.path(), file});
  ASSERT_TRUE(run.Process().waitForFinished(60000));
  EXPECT_EQ(run.Process().exitCode(), 1);
  before.seek(0);
  EXPECT_EQ(before.readAll(), bytes);
}

TEST(PrivateFolderTest, OfAnEarlierVersionIsTakenFromOthers) {
  const QTemporaryDir folder;
  QFile log(folder.filePath("logboek.txt"));
  ASSERT_TRUE(log.open(QIODevice::WriteOnly));
  chmod(QFile::encodeName(folder.path()).constData(), 0755);
  chmod(QFile::encodeName(log.fileName()).constData(), 0644);
  MakePrivate(folder.path());
  EXPECT_EQ(Rights(folder.path()), 0700u);
  EXPECT_EQ(Rights(log.fileName()), 0600u);
}

}  // namespace
}  // namespace brivane::app
