// The way back and forth through what was stored, on the screen.
#include <algorithm>

#include "app/history/FieldWords.h"
#include "app/recording/Recording.h"
#include "app/screen/DossierScreen.h"

namespace brivane::app {

std::vector<dossier::Entry> DossierScreen::Next(dossier::StepKind kind) {
  try {
    return store_->Next(kind);
  } catch (const host::Error&) {
    // Take says so.
    return {};
  }
}

QString DossierScreen::NextStep(dossier::StepKind kind) {
  try {
    return StepText(store_->Next(kind));
  } catch (const host::Error&) {
    return QStringLiteral("de geschiedenis is niet te lezen");
  }
}

std::optional<Place> DossierScreen::PlaceOf(const dossier::Entry& entry) {
  std::optional<Place> loan;
  for (std::int16_t Len_Id = 0; Len_Id <= Dossier().AantalLeningen(); ++Len_Id) {
    const auto lening = Dossier().FindLening(Len_Id);
    if (lening->Sleutel() == entry.lening) loan = Place{Len_Id, std::nullopt};
    if (entry.kolom == 0) continue;
    for (const auto& kolom : lening->Kolommen()) {
      if (kolom->Sleutel() == entry.kolom) return Place{Len_Id, kolom->Id()};
    }
  }
  return loan;
}

bool DossierScreen::Take(dossier::StepKind kind) {
  if (leaving_ || store_->IsReadOnly() || !kolom_->Editor().CommitPending()) return false;
  const std::vector<dossier::Entry> step = Next(kind);
  if (!step.empty() && PlaceOf(step.front()) != Shown() && Exists(Shown())) {
    // A new column is not complete yet, and goes again with the step that made it.
    const bool ofShown = std::any_of(step.begin(), step.end(), [&](const dossier::Entry& entry) {
      return entry.kolom != 0 && PlaceOf(entry) == Shown();
    });
    if (!ofShown && !MayLeave()) return false;
    // What was asked there may have been stored: that is not what was to be undone.
    const std::vector<dossier::Entry> now = Next(kind);
    if (now.empty() || now.front().step != step.front().step) return false;
  }
  // The case is changed as no step of a document does.
  recording_.Break();
  std::optional<dossier::Done> done;
  if (!Try([&] { done = store_->Take(kind); }) || !done) return false;
  ShowStep(*done);
  return true;
}

void DossierScreen::ShowStep(const dossier::Done& done) {
  const dossier::Entry& reason = done.entries.front();
  const std::optional<Place> place = PlaceOf(reason);
  Show(place ? *place : Exists(Shown()) ? Shown() : Place{});
  if (!Shown().Vrij_Id || !place) {
    tree_->setFocus(Qt::OtherFocusReason);
    return;
  }
  // Of options, the one that stands there now.
  kolom_->FocusControl(ControlOf(reason, done.kind == dossier::StepKind::Undo ? reason.before : reason.after));
}

bool DossierScreen::RenameLening(const QString& name) {
  if (!kolom_->Editor().CommitPending()) return false;
  const bool done = Try([&] { Dossier().HernoemLening(Shown().Len_Id, name.toStdString()); });
  if (done) tree_->RedrawText({Shown().Len_Id, std::nullopt});
  if (done) emit placeChanged();
  return done;
}

bool DossierScreen::RemoveLening() {
  const std::int16_t Len_Id = Shown().Len_Id;
  if (Len_Id == dossier::Dossier::kHuidig) return false;
  if (!Try([&] { Dossier().VerwijderLening(Len_Id); })) return false;
  Show({static_cast<std::int16_t>(std::min(Len_Id, Dossier().AantalLeningen())), std::nullopt});
  tree_->setFocus(Qt::OtherFocusReason);
  return true;
}

}  // namespace brivane::app
