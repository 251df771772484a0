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
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QTimer>

#include "app/program/CommandLine.h"
#include "app/program/FileDialogs.h"
#include "app/program/PrivateFiles.h"
#include "app/program/Settings.h"
#include "app/program/UnfinishedText.h"
#include "tests/app/screen/WindowTest.h"
#include "toolkits/qt/VrijeKolomWidget.h"
#include "toolkits/qt/widgets/EntryBox.h"

// What the window does to files, and what it does when it has to end.
namespace brivane::dossier {
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

class FileSafety : public Venstertest {
 protected:
  [[nodiscard]] QByteArray Bytes(const QString& file) {
    QFile open(file);
    EXPECT_TRUE(open.open(QIODevice::ReadOnly)) << file.toStdString();
    return open.readAll();
  }
  /// Types into the description without leaving it.
  void TypeInDescription(const char* text) {
    Scherm().Kolom().FocusOmschrijving();
    Typ(text);
  }
};

/// Lets a dialog look around as long as a person would, and leaves it.
Dialogen::Behandeling LookAround() {
  return [](QWidget& dialog) {
    QTest::qWait(600);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
  };
}

TEST_F(FileSafety, NoFileDialogOpensAFile) {
  Open();
  const QString other = map_.filePath("ander.dossier");
  DossierBestand::Maak(other, VoorbeeldDossier());
  Instellingen::SetLaatsteBestand(bestand_);
  const Openings of(bestand_);
  const Openings ofOther(other);
  dialogen_.Verwacht(LookAround());
  Toets(Qt::Key_O, Qt::ControlModifier);
  dialogen_.Verwacht(LookAround());
  venster_->Opdrachten().opnemen->trigger();
  dialogen_.Verwacht(LookAround());
  venster_->Opdrachten().kopie->trigger();
  EXPECT_EQ(of.Count(), 0);
  EXPECT_EQ(ofOther.Count(), 0);
}

TEST_F(FileSafety, NothingOfAFolderIsKeptForOtherPrograms) {
  Instellingen::SetLaatsteBestand(bestand_);
  const QString own = QSettings().fileName();
  dialogen_.Verwacht(LookAround());
  Toets(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(QSettings().fileName(), own);
  const QSettings qt(QSettings::UserScope, QStringLiteral("QtProject"));
  EXPECT_FALSE(QFile::exists(qt.fileName())) << Bytes(qt.fileName()).toStdString();
}

TEST_F(FileSafety, ARecordingIsNotWrittenOverTheOpenFileOrAnyOther) {
  Open();
  const QString letter = map_.filePath("brief.txt");
  QFile file(letter);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Geachte heer,");
  file.close();
  for (const QString& taken : {bestand_, letter}) {
    dialogen_.VerwachtMelding("Er staat al een bestand", Druk(Qt::Key_Return));
    EXPECT_FALSE(venster_->NeemOp(taken));
  }
  EXPECT_EQ(Bytes(letter), "Geachte heer,");
  EXPECT_EQ(LeesNaSluiten()["0/1/bedrag"].toDouble(), 485.5);
}

TEST_F(FileSafety, WhatWasStoredOfADeletedFileIsKeptElsewhere) {
  Open();
  Scherm().Gegevens().ZoekKolom(0, 1)->SetOmschrijving("aanvaard");
  ASSERT_TRUE(QFile::remove(bestand_));
  const QString copy = map_.filePath("bewaard.dossier");
  dialogen_.Verwacht([&](QWidget& dialog) {
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setText(copy);
    QTest::keyClick(name, Qt::Key_Return);
  });
  venster_->Opdrachten().kopie->trigger();
  EXPECT_EQ(Scherm().Bestand().Pad(), copy);
  EXPECT_EQ(Kolom(0, 1).Omschrijving, "aanvaard");
  Scherm().Gegevens().ZoekKolom(0, 1)->SetLooptijd(17);
  ASSERT_TRUE(venster_->SluitDossier());
  EXPECT_EQ(LeesInTweedeProces(copy)["0/1/looptijd"].toInt(), 17);
}

TEST_F(FileSafety, AFileThatIsGoneIsNotClosedUnasked) {
  Open();
  ASSERT_TRUE(QFile::remove(bestand_));
  dialogen_.VerwachtMelding("staat niet meer waar het stond", Druk(Qt::Key_Escape));
  EXPECT_FALSE(venster_->SluitDossier());
  dialogen_.VerwachtMelding("staat niet meer waar het stond",
                            [](QWidget& box) { box.findChildren<QAbstractButton*>().front()->click(); });
  EXPECT_TRUE(venster_->SluitDossier());
}

TEST_F(FileSafety, ANameIsShownAsItIs) {
  const QString marked = map_.filePath("<b>vet<u> &amp; x.dossier");
  ASSERT_TRUE(QFile::rename(bestand_, marked));
  ASSERT_TRUE(venster_->Open(marked));
  const auto* label = venster_->findChild<QLabel*>("bestandsnaam");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(label->text(), marked);
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(FileSafety, AReadOnlyFileIsShownAsOne) {
  QFile::setPermissions(bestand_, QFile::ReadOwner);
  Open();
  EXPECT_TRUE(venster_->findChild<QLabel*>("bestandsnaam")->text().endsWith("(alleen lezen)"));
  EXPECT_EQ(Kolom(0, 1).Omschrijving, "Kinderopvang");
}

TEST_F(FileSafety, AtTheEndWhatIsTypedIsHandedOver) {
  Open();
  TypeInDescription("Oppas");
  venster_->EndInOrder();
  ASSERT_TRUE(QTest::qWaitFor([&] { return venster_->Scherm() == nullptr; }));
  EXPECT_EQ(LeesInTweedeProces(bestand_)["0/1/omschrijving"].toString(), "Oppas");
  EXPECT_FALSE(QFile::exists(bestand_ + "-wal"));
  EXPECT_FALSE(app::UnfinishedText::Take());
}

TEST_F(FileSafety, AtTheEndWhatStandsInFrontIsLeftUnanswered) {
  Open();
  TypeInDescription("Oppas");
  dialogen_.Verwacht([&](QWidget&) { venster_->EndInOrder(); });
  venster_->Opdrachten().over->trigger();
  ASSERT_TRUE(QTest::qWaitFor([&] { return venster_->Scherm() == nullptr; }));
  EXPECT_EQ(LeesInTweedeProces(bestand_)["0/1/omschrijving"].toString(), "Oppas");
}

TEST_F(FileSafety, WhatCannotBeStoredAtTheEndIsOfferedAtTheNextStart) {
  Open();
  ASSERT_TRUE(Scherm().GaNaar({0, 2}));
  auto& editor = Scherm().Kolom().Editor();
  qt::EntryBox* amount = nullptr;
  for (QLineEdit* line : editor.findChildren<QLineEdit*>()) {
    auto* box = dynamic_cast<qt::EntryBox*>(line);
    for (const QWidget* named = box; named != nullptr && amount == nullptr; named = named->parentWidget()) {
      if (named->objectName() == QStringLiteral("TxtBd")) amount = box;
    }
  }
  ASSERT_NE(amount, nullptr);
  amount->setFocus();
  amount->selectAll();
  Typ("vijf");
  venster_->EndInOrder();
  ASSERT_TRUE(QTest::qWaitFor([&] { return venster_->Scherm() == nullptr; }));

  NieuwVenster();
  dialogen_.VerwachtMelding("vijf", [](QWidget& box) {
    for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) {
      if (button->text() == "&Verdergaan") return button->click();
    }
    ADD_FAILURE() << "no way to go on";
  });
  venster_->OfferUnfinished();
  ASSERT_NE(venster_->Scherm(), nullptr);
  EXPECT_EQ(Scherm().Getoond(), (Plek{0, 2}));
  const qt::EntryBox* pending = qt::EntryBox::PendingWithin(Scherm().Kolom().Editor());
  ASSERT_NE(pending, nullptr);
  EXPECT_EQ(pending->text(), "vijf");
  EXPECT_FALSE(app::UnfinishedText::Take());
  Toets(Qt::Key_Escape);
}

TEST(NewFileDialog, ANameThatIsTakenIsToldOnceAndTheDialogStays) {
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
    QTest::keyClick(box, Qt::Key_Return);
  };
  QTimer::singleShot(200, qApp, [&] {
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (message == nullptr) return;
      ++messages;
      EXPECT_TRUE(message->text().contains("staat al een bestand \"bezet.dossier\"")) << message->text().toStdString();
      message->accept();
    });
    look.start(20);
    enter("bezet.dossier");
    QTest::qWait(200);
    enter("vrij.dossier");
  });
  const QString chosen = app::AskNewFile(
      nullptr, {.title = "Opslaan", .folder = folder.path(), .filter = "Dossiers (*.dossier)"}, "dossier", "naam");
  EXPECT_EQ(chosen, folder.filePath("vrij.dossier"));
  EXPECT_EQ(messages, 1);
}

TEST(Arguments, ThatAreNoUtf8AreRefused) {
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

TEST(Program, EndsInOrderBySignalsAndKeepsEverythingItsOwners) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    SCOPED_TRACE(signal);
    const QTemporaryDir folder;
    const QString file = folder.filePath("x.dossier");
    DossierBestand::Maak(file, VoorbeeldDossier());
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

TEST(Program, ItsSessionIsNotPlayedOverALoanFile) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("transcript.jsonl");
  DossierBestand::Maak(file, VoorbeeldDossier());
  QFile before(file);
  ASSERT_TRUE(before.open(QIODevice::ReadOnly));
  const QByteArray bytes = before.readAll();
  ProgramRun run({"--sessie", folder.path(), file});
  ASSERT_TRUE(run.Process().waitForFinished(60000));
  EXPECT_EQ(run.Process().exitCode(), 1);
  before.seek(0);
  EXPECT_EQ(before.readAll(), bytes);
}

TEST(PrivateFolder, OfAnEarlierVersionIsTakenFromOthers) {
  const QTemporaryDir folder;
  QFile log(folder.filePath("logboek.txt"));
  ASSERT_TRUE(log.open(QIODevice::WriteOnly));
  chmod(QFile::encodeName(folder.path()).constData(), 0755);
  chmod(QFile::encodeName(log.fileName()).constData(), 0644);
  app::MakePrivate(folder.path());
  EXPECT_EQ(Rights(folder.path()), 0700u);
  EXPECT_EQ(Rights(log.fileName()), 0600u);
}

}  // namespace
}  // namespace brivane::dossier
