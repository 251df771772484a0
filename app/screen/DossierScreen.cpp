#include "app/screen/DossierScreen.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "app/program/Today.h"
#include "app/recording/Recording.h"
#include "app/screen/CaseCheck.h"
#include "app/screen/Messages.h"
#include "frame/ErrorReport.h"

namespace brivane::dossier {
namespace {

constexpr int kBoomTekens = 58;  ///< width of the tree at first, in characters
constexpr char kObjectNaam[] = "Dossier";
constexpr char kObjectOmschrijving[] = "Dossier";

host::ErrorRecord RecordVan(const host::Error& fout) {
  return {.ApplicationTitle = QGuiApplication::applicationDisplayName().toStdString(),
          .ObjectName = kObjectNaam,
          .Caption = std::string(frame::kReportCaption),
          .ObjectDescription = kObjectOmschrijving,
          .Message = std::string(frame::kReportMessage),
          .ErrorNumber = std::to_string(fout.Number()),
          .ErrorDescription = fout.Description(),
          .ErrorSource = fout.Source()};
}

/// Every column of a case in the order of the tree.
std::vector<Plek> AlleKolommen(const Dossier& dossier) {
  std::vector<Plek> plekken;
  for (std::int16_t Len_Id = 0; Len_Id <= dossier.AantalLeningen(); ++Len_Id) {
    for (const auto& kolom : dossier.ZoekLening(Len_Id)->Kolommen()) plekken.push_back({Len_Id, kolom->Id()});
  }
  return plekken;
}

}  // namespace

Dossierscherm::Dossierscherm(std::unique_ptr<DossierBestand> bestand, std::shared_ptr<host::Hoofdvenster> hoofdvenster,
                             Logboek& logboek, Opname& opname, QWidget* parent)
    : QSplitter(parent),
      logboek_(logboek),
      traceerlog_(std::make_shared<Traceerlog>(logboek)),
      bestand_(std::move(bestand)),
      application_(std::make_shared<Application>(bestand_->Dossier(), std::move(hoofdvenster))),
      boom_(new Kolommenboom(bestand_->Dossier())),
      kolom_(new Kolomscherm(application_, Fabrieken(), opname)) {
  addWidget(boom_);
  addWidget(kolom_);
  setStretchFactor(0, 0);
  setStretchFactor(1, 1);
  setChildrenCollapsible(false);
  const int boomBreed = kBoomTekens * boom_->fontMetrics().averageCharWidth();
  resize(boomBreed + kolom_->sizeHint().width(), height());
  setSizes({boomBreed, width() - boomBreed});

  scenarioopslag_ = std::make_unique<Scenarioopslag>(*kolom_->Editor().Control(), kolom_->Editor().Toolkit(),
                                                     bestand_->Bewerkingen());
  Verbind(opname);
  const std::vector<Plek> kolommen = AlleKolommen(Gegevens());
  Toon(kolommen.empty() ? Plek{} : kolommen.front());
}

Dossierscherm::~Dossierscherm() {
  application_->FoutGemeld.Disconnect();
  bestand_->Bewerkingen().Failed.Disconnect();
  bestand_->Bewerkingen().Stored.Disconnect();
  scenarioopslag_.reset();
  // The editor holds records of the file, which goes before its widgets otherwise.
  delete kolom_;
}

host::HostFactories Dossierscherm::Fabrieken() {
  return {.MaakProcedureTrace = [this](std::string_view control) { return bestand_->MaakTrace(control, traceerlog_); },
          .MaakDossierControle =
              [this](std::string_view) {
                auto controle = std::make_shared<DossierControle>([] { return Vandaag(); });
                controle->Gecontroleerd.Connect(
                    [this](const std::vector<Bevinding>& bevindingen) { emit aandachtspunten(bevindingen.size()); });
                return controle;
              }};
}

void Dossierscherm::Verbind(Opname& opname) {
  boom_->gekozen = [this](const Plek& plek) {
    if (!verlaat_) GaNaar(plek);
  };
  boom_->aangeklikt = [this](const Plek& plek) {
    // Only once the column was left.
    if (plek == Getoond()) boom_->setFocus(Qt::MouseFocusReason);
  };
  boom_->gesleept = [this](const Plek& kolom, std::int16_t naarLen_Id) { Verplaats(kolom, naarLen_Id); };

  kolom_->Editor().SetFailureListener([this](const std::exception& fout) {
    const auto* eigen = dynamic_cast<const host::Error*>(&fout);
    MeldFout(RecordVan(eigen ? *eigen
                             : host::Error(static_cast<int>(host::ErrorNumber::Foreign), fout.what(), kObjectNaam)));
  });
  application_->FoutGemeld.Connect([this](const host::ErrorRecord& fout) { MeldFout(fout); });
  bestand_->Bewerkingen().Failed.Connect([this, &opname](const StoreFailure& mislukt) {
    // The edit is undone, as no replay would do.
    opname.Breek();
    PlanHerbinden();
    if (mislukt.told == Told::Yes) return;
    QMetaObject::invokeMethod(
        this, [this, record = RecordVan(mislukt.error)] { MeldFout(record); }, Qt::QueuedConnection);
  });
  bestand_->Bewerkingen().Stored.Connect([this] {
    // The memory follows the file: only then do the texts show the change.
    QMetaObject::invokeMethod(
        this,
        [this] {
          // The answer to a check may have taken columns out of the new situation.
          Vernieuw();
          kolom_->VernieuwKop();
          boom_->HertekenTekst(Getoond());
          emit opgeslagen();
        },
        Qt::QueuedConnection);
  });
}

bool Dossierscherm::MagVerlaten() {
  if (verlaat_) return false;
  verlaat_ = true;
  const bool mag = kolom_->MagVerlaten();
  verlaat_ = false;
  // The check may have taken columns out of the new situation.
  Vernieuw();
  if (!mag) boom_->Selecteer(Getoond());
  return mag;
}

bool Dossierscherm::GaNaar(const Plek& plek) {
  if (plek == Getoond()) return true;
  if (!MagVerlaten()) return false;
  const bool bestaat = !plek.Vrij_Id || Gegevens().ZoekKolom(plek.Len_Id, *plek.Vrij_Id);
  Toon(bestaat ? plek : Plek{plek.Len_Id, std::nullopt});
  return bestaat;
}

bool Dossierscherm::GaVerder(int stap) {
  const std::vector<Plek> kolommen = AlleKolommen(Gegevens());
  const auto hier = std::find(kolommen.begin(), kolommen.end(), Getoond());
  // From a loan itself the way goes to its first column, or back to the last one before it.
  std::ptrdiff_t naar = hier - kolommen.begin() + stap;
  if (hier == kolommen.end()) {
    naar = std::find_if(kolommen.begin(), kolommen.end(),
                        [&](const Plek& plek) { return plek.Len_Id >= Getoond().Len_Id; }) -
           kolommen.begin() - (stap < 0 ? 1 : 0);
  }
  if (naar < 0 || naar >= std::ssize(kolommen)) return false;
  return GaNaar(kolommen[static_cast<std::size_t>(naar)]);
}

void Dossierscherm::WisselFocus() {
  if (kolom_->HeeftFocus() || !Getoond().Vrij_Id) {
    boom_->setFocus(Qt::ShortcutFocusReason);
  } else {
    kolom_->FocusEerste();
  }
}

bool Dossierscherm::VoegToe() {
  if (!MagVerlaten()) return false;
  const std::int16_t Len_Id = Getoond().Len_Id;
  std::shared_ptr<VrijeKolom> kolom;
  if (!Probeer([&] { kolom = Gegevens().NieuweKolom(Len_Id); })) return false;
  Toon({Len_Id, kolom->Id()});
  kolom_->FocusOmschrijving();
  return true;
}

bool Dossierscherm::Dupliceer() {
  const Plek plek = Getoond();
  if (!plek.Vrij_Id || !MagVerlaten()) return false;
  std::shared_ptr<VrijeKolom> kolom;
  if (!Probeer([&] { kolom = Gegevens().Dupliceer(plek.Len_Id, *plek.Vrij_Id); })) return false;
  Toon({plek.Len_Id, kolom->Id()});
  kolom_->FocusOmschrijving();
  return true;
}

bool Dossierscherm::Verplaats(const Plek& kolom, std::int16_t naarLen_Id) {
  if (!kolom.Vrij_Id || kolom.Len_Id == naarLen_Id || !MagVerlaten()) return false;
  std::int16_t Vrij_Id = 0;
  if (!Probeer([&] { Vrij_Id = Gegevens().Verplaats(kolom.Len_Id, *kolom.Vrij_Id, naarLen_Id); })) return false;
  Toon({naarLen_Id, Vrij_Id});
  return true;
}

bool Dossierscherm::MaakAfwijking(std::int16_t Len_Id) {
  const Plek plek = Getoond();
  if (!plek.Vrij_Id || plek.Len_Id != Dossier::kHuidig || !MagVerlaten()) return false;
  if (!Probeer([&] { Gegevens().MaakAfwijking(*plek.Vrij_Id, Len_Id); })) return false;
  Toon({Len_Id, plek.Vrij_Id});
  return true;
}

bool Dossierscherm::Verwijder() {
  const Plek plek = Getoond();
  if (!plek.Vrij_Id) return false;
  const auto kolom = Gegevens().ZoekKolom(plek.Len_Id, *plek.Vrij_Id);
  if (!kolom) return false;
  const QString vraag =
      QStringLiteral("Wilt u deze vrije kolom verwijderen?\n\n%1\n\nDit kan niet ongedaan worden gemaakt.")
          .arg(QString::fromStdString(kolom->Kopregel()));
  if (Vraag(window(), QStringLiteral("Kolom verwijderen"), vraag, QStringLiteral("&Verwijderen")) == Antwoord::Nee) {
    return false;
  }
  const Plek naar = boom_->Buur(plek);
  if (!Probeer([&] { Gegevens().Verwijder(plek.Len_Id, *plek.Vrij_Id); })) return false;
  Toon(naar);
  boom_->setFocus(Qt::OtherFocusReason);
  return true;
}

bool Dossierscherm::NieuweLening(const QString& naam) {
  if (!MagVerlaten()) return false;
  std::int16_t Len_Id = 0;
  if (!Probeer([&] { Len_Id = Gegevens().NieuweLening(naam.toStdString()); })) return false;
  Toon({Len_Id, std::nullopt});
  return true;
}

bool Dossierscherm::SetClient(const std::vector<PersoonGegevens>& personen, std::int16_t leeftijd) {
  if (!Probeer([&] { Gegevens().SetClient(personen, leeftijd); })) return false;
  // The editor shows the names and asks the age limit.
  kolom_->Herbind();
  return true;
}

std::optional<std::vector<Bevinding>> Dossierscherm::Controleer() {
  if (!kolom_->Editor().CommitPending()) return std::nullopt;
  return ControleerAlles(Gegevens(), Vandaag());
}

void Dossierscherm::Toon(const Plek& plek) {
  Vernieuw();
  kolom_->Toon(plek);
  boom_->Selecteer(Getoond());
  emit plekGewijzigd();
}

void Dossierscherm::Vernieuw() {
  if (boom_->Vernieuw(Getoond())) emit plekGewijzigd();
}

bool Dossierscherm::Probeer(const std::function<void()>& wijziging) {
  try {
    wijziging();
    return true;
  } catch (const host::Error& fout) {
    MeldFout(RecordVan(fout));
  }
  return false;
}

void Dossierscherm::MeldFout(const host::ErrorRecord& fout) {
  SchrijfFout(logboek_, fout);
  ToonFout(window(), fout, herbinden_ ? Gevolg::Herladen : Gevolg::Geen);
}

void Dossierscherm::PlanHerbinden() {
  if (std::exchange(herbinden_, true)) return;
  QTimer::singleShot(0, this, &Dossierscherm::Herbind);
}

void Dossierscherm::Herbind() {
  // Not under an open box or form: the procedure that opened it has not ended.
  if (QApplication::activeModalWidget()) {
    QTimer::singleShot(50, this, &Dossierscherm::Herbind);
    return;
  }
  Vernieuw();
  const Plek plek = Getoond();
  const bool bestaat = plek.Vrij_Id && Gegevens().ZoekKolom(plek.Len_Id, *plek.Vrij_Id);
  kolom_->Toon(bestaat ? plek : Plek{plek.Len_Id, std::nullopt});
  // What fails while binding is not followed by another binding.
  herbinden_ = false;
}

}  // namespace brivane::dossier
