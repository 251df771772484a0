#include "tests/app/access/Scenes.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "app/desk/Today.h"
#include "app/office/ClientListDialog.h"
#include "app/office/PasswordDialog.h"
#include "app/office/Reach.h"
#include "app/office/TeamDialog.h"
#include "dossier/model/Gegevens.h"
#include "dossier/office/Aside.h"
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>

namespace brivane::app {
namespace {

constexpr char kWhole[] = "";
constexpr int kPatience = 20000;  ///< milliseconds

// The columns of the case, all of the current situation.
constexpr std::int16_t kAmount = 1;
constexpr std::int16_t kOneOff = 2;
constexpr std::int16_t kContract = 3;
constexpr std::int16_t kTransition = 4;
constexpr std::int16_t kGrowth = 5;

host::Date Day(int year, int month, int day) { return frame::MakeDate({.year = year, .month = month, .day = day}); }

const host::Date kDay = Day(2026, 11, 21);

dossier::KolomGegevens Kolom(std::int16_t Vrij_Id, const char* omschrijving, double bedrag) {
  dossier::KolomGegevens kolom;
  kolom.Id = Vrij_Id;
  kolom.Omschrijving = omschrijving;
  kolom.Bedrag.Naam = omschrijving;
  kolom.Bedrag.Bedrag = bedrag;
  kolom.DatumAanvang = Day(2026, 1, 1);
  kolom.Looptijd = 48;
  return kolom;
}

dossier::DossierGegevens Case() {
  dossier::DossierGegevens gegevens;
  gegevens.Personen = {{{"A.", "de", "Boer"}, Day(1980, 5, 17)}, {{"C.", "", "Visser"}, Day(1982, 11, 3)}};
  gegevens.Leeftijd = 50;  // until then the years of the form run
  gegevens.MaatschappijType = {{"DM", "Dagblad De Maasbode"}, {"ZZ", "Anders"}};
  dossier::KolomGegevens eenmalig = Kolom(kOneOff, "Gift", 1500);
  eenmalig.Termijn = 99;
  eenmalig.Looptijd = 0;
  dossier::KolomGegevens contract = Kolom(kContract, "Krant", 32.5);
  contract.IsProduct = true;
  contract.Productsoort = 44;
  contract.Maatschappij = "DM";
  contract.MaatschappijNaam = "Dagblad De Maasbode";
  contract.UwBemiddeling = true;
  contract.Contractvervaldatum = Day(2027, 12, 31);
  dossier::KolomGegevens overgang = Kolom(kTransition, "Lijfrente", 350);
  overgang.CorrectieLast = 2;
  overgang.CorrectieFiscaal = 2;
  overgang.ScenarioOverlijden = true;
  overgang.PercentageOvergang = 70;
  overgang.EinddatumOvergang = Day(2047, 5, 17);
  overgang.EindleeftijdOvergang = 67;
  dossier::KolomGegevens groei = Kolom(kGrowth, "Onderhoud", 900);
  groei.Termijn = 12;
  groei.Bedrag.Invoersoort = 3;
  groei.Bedrag.Perioden = {{{.Maand = 1, .Percentage = 2}}};
  gegevens.HuidigeLening.VrijeKolommen = {Kolom(kAmount, "Kinderopvang", 485.5), eenmalig, contract, overgang, groei};
  gegevens.Leningen.resize(1);
  return gegevens;
}

/// There is no window manager that gives a window the focus.
bool Activate(QWidget& window) {
  window.activateWindow();
  return QTest::qWaitForWindowActive(&window, kPatience);
}

/// A window that was opened beside the program's own, or that one.
QWidget* InFront(QWidget& window) {
  for (QWidget* const other : QApplication::topLevelWidgets())
    if (other->isVisible() && (other->windowType() == Qt::Window || other->windowType() == Qt::Dialog) &&
        other->parentWidget() == &window)
      return other;
  return &window;
}

/// Opens a window on the case by its key.
void OpenBeside(Stage& stage, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  stage.GoTo(kAmount);
  Stage::Press(key, modifiers);
}

/// The list of clients, once the office has answered.
void ShowClients(Stage& stage) {
  ClientListDialog list({stage.Office().Words("bert"), {}, nullptr}, &stage.Window());
  const auto* lines = list.findChild<QTreeWidget*>("clienten");
  if (!QTest::qWaitFor([&] { return lines->topLevelItemCount() == 2; }, kPatience)) qFatal("there are no clients");
  list.exec();
}

/// Somebody reads a client along, and asks for it.
void BeAsked(Stage& stage) {
  const int client = stage.Anna().Client();
  stage.Anna().LetGo();
  stage.OpenClient("bert");
  const auto reader = stage.Office().Open(client);
  reader->Ask();
  const auto* state = stage.Window().findChild<QLabel*>("stand");
  if (!QTest::qWaitFor([&] { return !state->text().isEmpty(); }, kPatience)) qFatal("nobody asks");
}

}  // namespace

Stage::Stage(const QDir& folder)
    : file_(folder.filePath(QStringLiteral("boer.dossier"))), eventLog_(folder.filePath(QStringLiteral("log"))) {
  PinToday(kDay);
  dossier::DossierFile::Maak(file_, Case());
  window_ = std::make_unique<MainWindow>(eventLog_);
}

Stage::~Stage() {
  window_.reset();
  nobody_.reset();
  static_cast<void>(dossier::Aside::AllEnd(std::chrono::seconds(20)));
}

MainWindow& Stage::Window() { return *window_; }

DossierScreen& Stage::Screen() {
  if (window_->Screen() == nullptr) {
    if (!window_->Open(file_)) qFatal("the case cannot be opened");
    window_->Screen()->Kolom().Editor().Toolkit().Desktop().clock = [] { return kDay; };
  }
  return *window_->Screen();
}

dossier::TrialOffice& Stage::Office() {
  if (office_) return *office_;
  office_ = std::make_unique<dossier::TrialOffice>();
  dossier::DossierGegevens other = Case();
  other.Personen.resize(1);
  other.Personen.front().Naam = {"F.", "", "Öztürk"};
  static_cast<void>(office_->Add(other));
  anna_ = office_->Open(office_->Add(Case()));
  // By the clock of the machine that shows it, of a year that is past.
  const QString moment = QDateTime(QDate(2025, 11, 21), QTime(10, 32)).toUTC().toString(Qt::ISODate);
  office_->Psql("postgres", QString("UPDATE kantoor.bewerker SET sinds = '%1'; UPDATE kantoor.client SET gewijzigd = "
                                    "timestamptz '%1' + nummer * interval '1 hour'")
                                .arg(moment));
  return *office_;
}

dossier::OfficeStore& Stage::Anna() {
  static_cast<void>(Office());
  return *anna_;
}

void Stage::OpenClient(const char* account) {
  if (!window_->OpenClient({Office().Words(account), Anna().Client()})) qFatal("the client cannot be opened");
  window_->Screen()->Kolom().Editor().Toolkit().Desktop().clock = [] { return kDay; };
  GoTo(kAmount);
}

QString Stage::NobodyAnswers() {
  // Who shows a scene and ends at once leaves nothing but its own folder.
  nobody_ = std::make_unique<test::SocketProxy>(QString(), std::chrono::milliseconds(0), QFileInfo(file_).path());
  nobody_->FallSilent();
  return "dbname=kantoor user=anna host=" + nobody_->Folder();
}

void Stage::GoTo(std::int16_t Vrij_Id) {
  Screen().GoTo({dossier::Dossier::kHuidig, Vrij_Id});
  Screen().Kolom().FocusFirst();
}

void Stage::Focus(const char* control) {
  controls::Surface::Of(Screen().Kolom().Editor().Surface()).Find(control)->GetPeer()->TakeFocus();
}

void Stage::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
}

void Stage::Type(const char* text) {
  for (; *text != '\0'; ++text) QTest::keyClick(QGuiApplication::focusWindow(), *text);
}

const std::vector<Scene>& AllScenes() {
  static const std::vector<Scene> scenes = {
      {"start", [](Stage&) {}, kWhole},
      {"window", [](Stage& stage) { stage.GoTo(kAmount); }, kWhole},
      {"amount", [](Stage& stage) { stage.GoTo(kAmount); }},
      {"one-off", [](Stage& stage) { stage.GoTo(kOneOff); }},
      {"contract", [](Stage& stage) { stage.GoTo(kContract); }},
      {"transition", [](Stage& stage) { stage.GoTo(kTransition); }},
      {"no-partner",
       [](Stage& stage) {
         dossier::Dossier& dossier = stage.Screen().Dossier();
         (void)stage.Screen().SetClient({dossier.Personen().front()}, dossier.Leeftijd());
         stage.GoTo(kTransition);
       }},
      {"refused",
       [](Stage& stage) {
         stage.GoTo(kAmount);
         stage.Focus("TxtBd");
         Stage::Type("12.50");
         Stage::Press(Qt::Key_Tab);
       }},
      {"year-form",
       [](Stage& stage) {
         stage.GoTo(kAmount);
         Stage::Press(Qt::Key_S, Qt::AltModifier);
       },
       kWhole, true},
      {"year-form-growth",
       [](Stage& stage) {
         stage.GoTo(kGrowth);
         Stage::Press(Qt::Key_S, Qt::AltModifier);
       },
       kWhole, true},
      {"overview", [](Stage& stage) { OpenBeside(stage, Qt::Key_F9); }, "filler \"Overzicht\""},
      {"course", [](Stage& stage) { OpenBeside(stage, Qt::Key_F9, Qt::ShiftModifier); }, "filler \"Verloop\""},
      {"history", [](Stage& stage) { OpenBeside(stage, Qt::Key_F8); }, kWhole, true},
      {"changes",
       [](Stage& stage) {
         stage.GoTo(kAmount);
         stage.Focus("TxtOm");
         Stage::Type("Opvang");
         Stage::Press(Qt::Key_Tab);
         Stage::Type("512,75");
         Stage::Press(Qt::Key_Tab);
         Stage::Press(Qt::Key_F8);
       },
       kWhole, true, true},
      {"found",
       [](Stage& stage) {
         stage.GoTo(kAmount);
         Stage::Press(Qt::Key_F, Qt::ControlModifier);
         Stage::Type("on");
         Stage::Press(Qt::Key_Down);
       },
       "tree \"Leningen"},
      {"client", [](Stage& stage) { OpenBeside(stage, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier); }, kWhole,
       true},
      {"help", [](Stage& stage) { OpenBeside(stage, Qt::Key_F1); }, "dialog"},
      {"missing",
       [](Stage& stage) {
         stage.GoTo(kAmount);
         Stage::Press(Qt::Key_Delete);
         Stage::Press(Qt::Key_Tab);
       },
       kWhole, true},
      {"office-connecting", [](Stage& stage) { (void)Reach(&stage.Window(), stage.NobodyAnswers(), {}); }, kWhole,
       true},
      {"office-password",
       [](Stage& stage) {
         PasswordDialog(QStringLiteral("host=db.noord dbname=kantoor user=anna"), PasswordDialog::Because::Wrong,
                        &stage.Window())
             .exec();
       },
       kWhole, true},
      {"office-team",
       [](Stage& stage) {
         const std::vector<dossier::Team> teams = {{.nummer = 1, .naam = QStringLiteral("Noord"), .eigen = true},
                                                   {.nummer = 2, .naam = QStringLiteral("Oost"), .eigen = true},
                                                   {.nummer = 3, .naam = QStringLiteral("Zuid"), .eigen = false}};
         (void)AskTeam(&stage.Window(), QStringLiteral("noord"), teams, QStringLiteral("A. de Boer"));
       },
       kWhole, true},
      {"office-clients", ShowClients, kWhole, true},
      {"office-read", [](Stage& stage) { stage.OpenClient("bert"); }, kWhole},
      {"office-asked", BeAsked, "frame"},
      {"print-preview", [](Stage& stage) { OpenBeside(stage, Qt::Key_P, Qt::ControlModifier); }, kWhole, true},
  };
  return scenes;
}

void Play(const Scene& scene, Stage& stage, const std::function<void(QWidget* front)>& stands) {
  stage.Window().show();
  if (!Activate(stage.Window())) return stands(nullptr);
  bool played = false;
  // What opens a modal window comes back when that closes; this looks on from the event loop of whatever stands in
  // front.
  QTimer look;
  const QElapsedTimer since = [] {
    QElapsedTimer clock;
    clock.start();
    return clock;
  }();
  QEventLoop all;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* const modal = QApplication::activeModalWidget();
    const bool late = since.elapsed() > kPatience;
    if (!late && !(scene.modal ? modal != nullptr && modal->isVisible() : played)) return;
    look.stop();
    if (late) return stands(nullptr);
    QWidget* const front = scene.modal ? modal : InFront(stage.Window());
    stands(Activate(*front) ? front : nullptr);
    all.quit();
  });
  look.start(20);
  QTimer::singleShot(0, &stage.Window(), [&] {
    scene.play(stage);
    played = true;
  });
  all.exec();
}

}  // namespace brivane::app
