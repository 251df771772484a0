#include "app/program/SampleSession.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <stdexcept>

#include "app/program/DarkPalette.h"
#include "app/program/Transcript.h"
#include "app/screen/MainWindow.h"
#include "controls/Surface.h"
#include "frame/Calendar.h"
#include "scenario/frmScenario.h"

namespace brivane::dossier {
namespace {

using controls::Enter;

host::Date Datum(int dag, int maand, int jaar) { return frame::MakeDate({.year = jaar, .month = maand, .day = dag}); }

/// Closes each box that the window itself shows, and keeps what the first one said: nobody is there to read it.
class Berichten final : public QObject {
 public:
  Berichten() { QApplication::instance()->installEventFilter(this); }
  [[nodiscard]] const QString& Eerste() const { return eerste_; }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* bericht = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
    if (bericht != nullptr) {
      if (eerste_.isEmpty()) eerste_ = (bericht->text() + u' ' + bericht->informativeText()).simplified();
      QTimer::singleShot(0, bericht, &QDialog::reject);
    }
    return QObject::eventFilter(object, event);
  }

 private:
  QString eerste_;
};

/// One session on an open file. A step that is not done as it should ends it with an exception.
class Sessie {
 public:
  Sessie(Hoofdvenster& venster, const QDir& map, const Berichten& berichten)
      : berichten_(berichten),
        venster_(venster),
        map_(map),
        scherm_(*venster.Scherm()),
        editor_(scherm_.Kolom().Editor()),
        transcript_(map.filePath(QStringLiteral("transcript.jsonl")), scherm_.Gegevens()) {
    if (!transcript_.IsOpen()) throw std::runtime_error("cannot write the transcript");
    editor_.Toolkit().AddListener(transcript_);
    editor_.Toolkit().Desktop().answer = [this](const std::string& titel, const std::string& tekst,
                                                host::MessageStyle stijl) { return Antwoord(titel, tekst, stijl); };
    QObject::connect(&editor_, &qt::VrijeKolomWidget::refreshTopDisplay, &venster_, [this](const QString& tekst) {
      transcript_.Schrijf({{u"refreshTopDisplay"_qs, tekst}});
    });
    QObject::connect(&editor_, &qt::VrijeKolomWidget::heightChanged, &venster_, [this] {
      transcript_.Schrijf({{u"heightChanged"_qs, editor_.sizeHint().height()}});
    });
    QObject::connect(&scherm_, &Dossierscherm::opgeslagen, &venster_, [this] { transcript_.Opgeslagen(); });
  }
  ~Sessie() {
    // A session that came to its end has closed the file, and the editor with it.
    if (venster_.Scherm() == nullptr) return;
    editor_.Toolkit().RemoveListener(transcript_);
    editor_.Toolkit().Desktop().answer = nullptr;
    editor_.disconnect(&venster_);
    scherm_.disconnect(&venster_);
  }
  Sessie(const Sessie&) = delete;
  Sessie& operator=(const Sessie&) = delete;

  void Speel() {
    TerugkerendeLast();
    Krant();
    Overlijden();
    NieuweKolom();
    Scenario();
    ZonderPartner();
  }

 private:
  static void Moet(bool gedaan, const std::string& wat) {
    if (!gedaan) throw std::runtime_error("not done: " + wat);
  }

  void TerugkerendeLast() {
    GaNaar({0, 1});
    Doe("TxtDtAanvang", Enter{Datum(1, 9, 2025)});
    Doe("TxtAnJaar", Enter{9.0});
    Doe("TxtAnMaand", Enter{14.0});
    Doe("TxtBd", Enter{512.75});
    Beeld("recurring-cost");
  }

  void Krant() {
    GaNaar({0, 2});
    Doe("txtProductnaam", Enter{std::string("De Maasbode, dagelijks")});
    Doe("txtVervaldatum", Enter{Datum(30, 6, 2029)});
    Beeld("newspaper");
  }

  void Overlijden() {
    GaNaar({0, 3});
    Doe("Toelichting.jnOverlijden", controls::Toggle{host::kJa});
    Doe("Toelichting.TxtPcOvergang", Enter{62.5});
    Doe("Toelichting.txtEinddatum", Enter{Datum(1, 3, 2049)});
    Beeld("death-transition");
  }

  /// Left too early it is refused: a column needs a start date.
  void NieuweKolom() {
    Moet(scherm_.VoegToe(), "adding a column");
    QApplication::processEvents();
    const Plek nieuw = scherm_.Getoond();
    Doe("TxtOm", Enter{std::string("Contributie fotoclub")});
    Doe("TxtBd", Enter{27.5});
    Moet(!scherm_.GaNaar({0, 1}), "refusing to leave a column without a start date");
    Doe("TxtDtAanvang", Enter{Datum(1, 1, 2027)});
    Moet(scherm_.Getoond() == nieuw, "staying in the column");
  }

  void Scenario() {
    GaNaar({0, 5});
    // The form runs an event loop of its own, in which the timer goes off.
    QTimer straks;
    straks.setSingleShot(true);
    bool gevuld = false;
    const host::Subscription geopend = scherm_.Scenario().Geopend.Connect([&](frmScenario& formulier) {
      QObject::connect(&straks, &QTimer::timeout, &venster_, [&] {
        VulScenario(formulier);
        gevuld = true;
      });
      straks.start(100);
    });
    Doe("cmdScenario", controls::Press{});
    if (!fout_.empty()) throw std::runtime_error(fout_);
    Moet(gevuld, "showing the year-by-year form");
  }

  /// The partner taken out of the case, on the column that goes over to a partner on death.
  void ZonderPartner() {
    const std::vector<PersoonGegevens> aanvrager = {scherm_.Gegevens().Personen().front()};
    Moet(scherm_.SetClient(aanvrager, scherm_.Gegevens().Leeftijd()), "taking the partner out of the case");
    GaNaar({0, 3});
    Beeld("without-partner");
  }

  void VulScenario(frmScenario& formulier) {
    controls::Surface& vlak = controls::Surface::Of(formulier.Form());
    try {
      Doe(vlak, "txtBedrag", 1, Enter{6250.0});
      Doe(vlak, "txtBedrag", 4, Enter{7000.0});
      Doe(vlak, "chkAanvullen", frame::kNoIndex, controls::Tick{host::kTicked});
      Doe(vlak, "txtBedrag", 8, Enter{8250.0});
      Beeld("scenario", QApplication::activeModalWidget());
      Doe(vlak, "cmdOK", frame::kNoIndex, controls::Press{});
    } catch (const std::runtime_error& fout) {
      fout_ = fout.what();
      static_cast<void>(vlak.Perform(controls::Close{}));
    }
  }

  void GaNaar(const Plek& plek) {
    Moet(scherm_.GaNaar(plek), "going to column " + std::to_string(*plek.Vrij_Id));
    transcript_.Schrijf({{u"column"_qs, *plek.Vrij_Id}, {u"loan"_qs, plek.Len_Id}});
  }

  void Doe(const char* naam, const controls::Action& actie) {
    Doe(controls::Surface::Of(editor_.Surface()), naam, frame::kNoIndex, actie);
  }

  void Doe(controls::Surface& vlak, const char* naam, int index, const controls::Action& actie) {
    controls::AnyControl* control = vlak.Find(naam, index);
    Moet(control != nullptr && control->Perform(actie) == controls::Outcome::Done, naam);
    QApplication::processEvents();
    if (!berichten_.Eerste().isEmpty())
      throw std::runtime_error(std::string(naam) + " was answered: " + berichten_.Eerste().toStdString());
  }

  host::MessageAnswer Antwoord(const std::string& titel, const std::string& tekst, host::MessageStyle stijl) {
    const bool vraag = stijl == host::MessageStyle::YesNoQuestion;
    transcript_.Schrijf({{u"message"_qs, QString::fromStdString(tekst)},
                         {u"title"_qs, QString::fromStdString(titel)},
                         {u"answer"_qs, vraag ? u"Nee"_qs : u"OK"_qs}});
    return vraag ? host::MessageAnswer::No : host::MessageAnswer::Ok;
  }

  void Beeld(const char* naam) { Beeld(naam, &venster_); }
  void Beeld(const char* naam, QWidget* wat) {
    Moet(wat != nullptr, naam);
    const QPalette licht = QApplication::palette();
    Leg(wat, QLatin1String(naam) + QStringLiteral("-light.png"));
    QApplication::setPalette(DonkerPalet());
    Leg(wat, QLatin1String(naam) + QStringLiteral("-dark.png"));
    QApplication::setPalette(licht);
  }

  void Leg(QWidget* wat, const QString& naam) {
    QApplication::processEvents();
    Moet(wat->grab().save(map_.filePath(naam)), "writing " + naam.toStdString());
    transcript_.Schrijf({{u"picture"_qs, naam}});
  }

  const Berichten& berichten_;
  Hoofdvenster& venster_;
  QDir map_;
  Dossierscherm& scherm_;
  qt::VrijeKolomWidget& editor_;
  Transcript transcript_;
  std::string fout_;
};

}  // namespace

QString SpeelSessie(const QString& uitvoermap, const QString& bestand) {
  const QTemporaryDir terzijde;
  if (!QDir().mkpath(uitvoermap)) return QStringLiteral("cannot make the folder '%1'").arg(uitvoermap);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, terzijde.path());
  Logboek logboek(terzijde.filePath(QStringLiteral("logboek")));
  const Berichten berichten;
  Hoofdvenster venster(logboek);
  // Pictures are alike on every machine, whatever its screen.
  venster.resize(Hoofdvenster::kEersteMaat);
  venster.show();
  try {
    venster.Toon(DossierBestand::Open(bestand));
    Sessie(venster, QDir(uitvoermap), berichten).Speel();
    if (!venster.SluitDossier()) return QStringLiteral("not done: closing the file");
  } catch (const std::exception& fout) {
    return QString::fromUtf8(fout.what());
  }
  return {};
}

}  // namespace brivane::dossier
