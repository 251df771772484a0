#include "app/screen/DossierScreen.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "app/desk/Settings.h"
#include "app/desk/Today.h"
#include "app/recording/Recording.h"
#include "app/screen/BoxAtWork.h"
#include "app/screen/CaseCheck.h"
#include "app/screen/ListRoom.h"
#include <brivane/frame/ErrorReport.h>

namespace brivane::app {
namespace {

constexpr int kTreeCharacters = 72;  ///< width of the list at first, in characters
constexpr int kUnderBox = 50;        ///< milliseconds until it is looked again whether a box still stands in front
constexpr char kObjectName[] = "Dossier";
constexpr char kObjectDescription[] = "Dossier";

host::ErrorRecord RecordOf(const host::Error& error) {
  return {.ApplicationTitle = QGuiApplication::applicationDisplayName().toStdString(),
          .ObjectName = kObjectName,
          .Caption = std::string(frame::kReportCaption),
          .ObjectDescription = kObjectDescription,
          .Message = std::string(frame::kReportMessage),
          .ErrorNumber = std::to_string(error.Number()),
          .ErrorDescription = error.Description(),
          .ErrorSource = error.Source()};
}

}  // namespace

DossierScreen::DossierScreen(std::unique_ptr<dossier::DossierStore> store,
                             std::shared_ptr<host::Hoofdvenster> hoofdvenster, EventLog& eventLog, Recording& recording,
                             const Instrument& instrument, QWidget* parent)
    : QSplitter(parent),
      eventLog_(eventLog),
      recording_(recording),
      traceLog_(std::make_shared<TraceLog>(eventLog)),
      store_(std::move(store)),
      application_(std::make_shared<dossier::Application>(store_->Dossier(), std::move(hoofdvenster))),
      list_(new ListPanel(store_->Dossier())),
      tree_(&list_->Tree()),
      kolom_(new KolomScreen(store_->Dossier(), MakeEditorHost(instrument), recording)) {
  addWidget(list_);
  addWidget(kolom_);
  kolom_->raise();  // a screen reader goes through the list first
  setStretchFactor(0, 0);
  setStretchFactor(1, 1);
  setCollapsible(1, false);
  wantedWidth_ = kTreeCharacters * tree_->fontMetrics().averageCharWidth();
  connect(this, &QSplitter::splitterMoved, this, [this] { wantedWidth_ = sizes().front(); });
  connect(qApp, &QApplication::focusChanged, this, &DossierScreen::GiveWay);
  FollowRights();

  store_->SetAuthor(Settings::Author().toStdString());
  scenario_ = std::make_unique<dossier::ScenarioTransaction>(*kolom_->Editor().Control(), store_->Bewerkingen());
  Connect(recording);
  const std::vector<Place> kolommen = tree_->Kolommen();
  Show(kolommen.empty() ? Place{} : kolommen.front());
}

DossierScreen::~DossierScreen() {
  // The focus goes from widget to widget while they are taken down.
  disconnect(qApp, nullptr, this, nullptr);
  subscriptions_.Reset();
  scenario_.reset();
  // The editor holds records of the file, which goes before its widgets otherwise.
  delete kolom_;
}

EditorHost DossierScreen::MakeEditorHost(const Instrument& instrument) {
  EditorHost host{application_, Factories()};
  return instrument ? instrument(std::move(host)) : host;
}

host::HostFactories DossierScreen::Factories() {
  return {.MaakProcedureTrace = [this](std::string_view control) { return store_->MakeTrace(control, traceLog_); },
          .MaakDossierControle =
              [this](std::string_view) {
                auto check = std::make_shared<dossier::DossierControle>([] { return Today(); });
                subscriptions_ += check->Gecontroleerd.Connect(
                    [this](const std::vector<dossier::Finding>& findings) { emit findingsCounted(findings.size()); });
                return check;
              }};
}

void DossierScreen::Connect(Recording& recording) {
  tree_->chosen = [this](const Place& place) {
    if (!leaving_) GoTo(place);
  };
  tree_->clickEnded = [this](const Place& place) {
    // Only once the column was left.
    if (place == Shown()) tree_->setFocus(Qt::MouseFocusReason);
  };
  list_->shown = [this] { return Shown(); };
  list_->opened = [this](const Place& place) {
    if (GoTo(place)) kolom_->FocusFirst();
  };
  kolom_->removeAsked = [this] {
    if (leaving_ || !Shown().Vrij_Id || !Remove(tree_->Neighbour(Shown()))) return;
    tree_->setFocus(Qt::OtherFocusReason);
  };
  tree_->dragged = [this](const Place& kolom, std::int16_t toLen_Id) { MoveKolom(kolom, toLen_Id); };

  kolom_->Editor().SetFailureListener([this](const std::exception& error) {
    const auto* own = dynamic_cast<const host::Error*>(&error);
    TellFailure(
        RecordOf(own ? *own : host::Error(static_cast<int>(host::ErrorNumber::Foreign), error.what(), kObjectName)));
  });
  subscriptions_ += application_->FoutGemeld.Connect([this](const host::ErrorRecord& error) { TellFailure(error); });
  subscriptions_ += store_->Bewerkingen().Failed.Connect([this, &recording](const dossier::StoreFailure& failed) {
    // The edit is undone, as no replay would do.
    recording.Break();
    PlanRebind();
    if (failed.told == dossier::Told::Yes) return;
    QMetaObject::invokeMethod(
        this, [this, record = RecordOf(failed.error)] { TellFailure(record); }, Qt::QueuedConnection);
  });
  subscriptions_ += store_->Bewerkingen().Stored.Connect([this] {
    // The memory follows the file: only then do the texts show the change.
    QMetaObject::invokeMethod(
        this,
        [this] {
          // The answer to a check may have taken columns out of the new situation.
          Refresh();
          kolom_->RefreshHeader();
          tree_->RedrawText(Shown());
          emit stored();
        },
        Qt::QueuedConnection);
  });
}

QString DossierScreen::Path() const {
  const auto* file = dynamic_cast<const dossier::DossierFile*>(store_.get());
  return file != nullptr ? file->Pad() : QString();
}

bool DossierScreen::MayLeave() {
  if (leaving_) return false;
  // Nothing can be mended in a file that is only read.
  if (store_->IsReadOnly()) return true;
  leaving_ = true;
  const Leaving leaving = kolom_->Leave();
  leaving_ = false;
  // The check may have taken columns out of the new situation.
  Refresh();
  if (leaving == Leaving::Remove) return Remove({Shown().Len_Id, std::nullopt});
  if (leaving == Leaving::Stays) tree_->Select(Shown());
  return leaving == Leaving::May;
}

bool DossierScreen::Exists(const Place& place) {
  if (!place.Vrij_Id) return Dossier().FindLening(place.Len_Id) != nullptr;
  return Dossier().FindKolom(place.Len_Id, *place.Vrij_Id) != nullptr;
}

bool DossierScreen::Remove(const Place& next) {
  const Place place = Shown();
  if (!Try([&] { Dossier().Verwijder(place.Len_Id, *place.Vrij_Id); })) return false;
  Show(next);
  return true;
}

bool DossierScreen::GoTo(const Place& place) {
  if (place == Shown()) return true;
  if (!MayLeave()) return false;
  const bool exists = Exists(place);
  Show(exists ? place : Place{place.Len_Id, std::nullopt});
  return exists;
}

bool DossierScreen::GoOn(int step) {
  const std::vector<Place> kolommen = tree_->Kolommen();
  const auto here = std::find(kolommen.begin(), kolommen.end(), Shown());
  // From a loan itself the way goes to its first column, or back to the last one before it.
  std::ptrdiff_t to = here - kolommen.begin() + step;
  if (here == kolommen.end()) {
    to = std::find_if(kolommen.begin(), kolommen.end(),
                      [&](const Place& place) { return place.Len_Id >= Shown().Len_Id; }) -
         kolommen.begin() - (step < 0 ? 1 : 0);
  }
  if (to < 0 || to >= std::ssize(kolommen)) return false;
  return GoTo(kolommen[static_cast<std::size_t>(to)]);
}

void DossierScreen::SetWantedListWidth(int pixels) {
  wantedWidth_ = pixels;
  GiveWay();
}

void DossierScreen::resizeEvent(QResizeEvent* event) {
  QSplitter::resizeEvent(event);
  GiveWay();
}

void DossierScreen::GiveWay() {
  const QWidget* focus = QApplication::focusWidget();
  const int room = width() - handleWidth();
  const int list = ListWidth({.width = room,
                              .wanted = wantedWidth_,
                              .least = tree_->LeastWidth(),
                              .editor = kolom_->EditingWidth(),
                              .listHasFocus = focus != nullptr && list_->isAncestorOf(focus)});
  if (list != sizes().front()) setSizes({list, room - list});
}

void DossierScreen::SwitchFocus() {
  if (kolom_->HasFocus() || !Shown().Vrij_Id) {
    tree_->setFocus(Qt::ShortcutFocusReason);
  } else {
    kolom_->FocusFirst();
  }
}

bool DossierScreen::AddKolom(dossier::Invoer invoer) {
  if (!MayLeave()) return false;
  const std::int16_t Len_Id = Shown().Len_Id;
  std::shared_ptr<dossier::VrijeKolom> kolom;
  if (!Try([&] { kolom = Dossier().NewKolom(Len_Id, invoer); })) return false;
  Show({Len_Id, kolom->Id()});
  kolom_->FocusOmschrijving();
  return true;
}

bool DossierScreen::DuplicateKolom(std::int16_t toLen_Id) {
  const Place place = Shown();
  if (!place.Vrij_Id || !MayLeave() || !Exists(place)) return false;
  std::shared_ptr<dossier::VrijeKolom> kolom;
  if (!Try([&] { kolom = Dossier().Dupliceer(place.Len_Id, *place.Vrij_Id, toLen_Id); })) return false;
  Show({toLen_Id, kolom->Id()});
  kolom_->FocusOmschrijving();
  return true;
}

bool DossierScreen::MoveKolom(const Place& kolom, std::int16_t toLen_Id) {
  if (!kolom.Vrij_Id || kolom.Len_Id == toLen_Id || !MayLeave() || !Exists(kolom)) return false;
  std::int16_t Vrij_Id = 0;
  if (!Try([&] { Vrij_Id = Dossier().Verplaats(kolom.Len_Id, *kolom.Vrij_Id, toLen_Id); })) return false;
  Show({toLen_Id, Vrij_Id});
  return true;
}

bool DossierScreen::MakeAfwijking(std::int16_t Len_Id) {
  const Place place = Shown();
  if (!place.Vrij_Id || place.Len_Id != dossier::Dossier::kHuidig || !MayLeave() || !Exists(place)) return false;
  if (!Try([&] { Dossier().MakeAfwijking(*place.Vrij_Id, Len_Id); })) return false;
  Show({Len_Id, place.Vrij_Id});
  return true;
}

bool DossierScreen::RemoveKolom() {
  const Place place = Shown();
  if (!place.Vrij_Id) return false;
  if (!Exists(place)) return false;
  if (!Remove(tree_->Neighbour(place))) return false;
  tree_->setFocus(Qt::OtherFocusReason);
  return true;
}

bool DossierScreen::AddLening(const QString& name) {
  if (!MayLeave()) return false;
  std::int16_t Len_Id = 0;
  if (!Try([&] { Len_Id = Dossier().NieuweLening(name.toStdString()); })) return false;
  Show({Len_Id, std::nullopt});
  return true;
}

bool DossierScreen::SetClient(const std::vector<dossier::PersoonGegevens>& personen, std::int16_t leeftijd) {
  if (!Try([&] { Dossier().SetClient(personen, leeftijd); })) return false;
  // The editor shows the names and asks the age limit.
  kolom_->Rebind();
  return true;
}

std::optional<std::vector<dossier::Finding>> DossierScreen::Check() {
  if (!kolom_->Editor().CommitPending()) return std::nullopt;
  return CheckAll(Dossier(), Today());
}

void DossierScreen::Show(const Place& place) {
  Refresh();
  kolom_->Show(place);
  tree_->Select(Shown());
  emit placeChanged();
}

void DossierScreen::Refresh() {
  if (tree_->Refresh(Shown())) emit placeChanged();
}

bool DossierScreen::Try(const std::function<void()>& change) {
  try {
    change();
    return true;
  } catch (const host::Error& error) {
    // A dialog in front stays with what was filled in.
    TellFailure(RecordOf(error), QApplication::activeModalWidget() ? Consequence::Kept : Consequence::Reloaded);
  }
  return false;
}

void DossierScreen::TellFailure(const host::ErrorRecord& error, Consequence ofReloading) {
  WriteError(eventLog_, error);
  ShowFailure(window(), error, rebind_ ? ofReloading : Consequence::None);
}

void DossierScreen::FollowRights() { kolom_->SetRemovable(!store_->IsReadOnly()); }

void DossierScreen::Reread() {
  // Not under an open box or form: the procedure that opened it has not ended.
  if (QApplication::activeModalWidget()) {
    QTimer::singleShot(kUnderBox, this, &DossierScreen::Reread);
    return;
  }
  Refresh();
  const Place place = Shown();
  if (Exists(place)) {
    const BoxAtWork work(kolom_->Editor());
    kolom_->Rebind();
    work.GoOn();
  } else {
    kolom_->Show({place.Len_Id, std::nullopt});
  }
  tree_->RedrawText(Shown());
  emit reread();
}

void DossierScreen::PlanRebind() {
  if (std::exchange(rebind_, true)) return;
  QTimer::singleShot(0, this, &DossierScreen::Rebind);
}

void DossierScreen::Rebind() {
  // Not under an open box or form: the procedure that opened it has not ended.
  if (QApplication::activeModalWidget()) {
    QTimer::singleShot(kUnderBox, this, &DossierScreen::Rebind);
    return;
  }
  Refresh();
  const Place place = Shown();
  kolom_->Show(Exists(place) ? place : Place{place.Len_Id, std::nullopt});
  // What fails while binding is not followed by another binding.
  rebind_ = false;
}

}  // namespace brivane::app
