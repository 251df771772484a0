#include "app/screen/KolomScreen.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

#include "app/recording/Recording.h"
#include "app/screen/CarryOver.h"
#include "app/screen/KopregelLabel.h"
#include "frame/Handle.h"
#include "toolkits/qt/widgets/ChoiceBox.h"
#include "toolkits/qt/widgets/EntryBox.h"
#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/Teksten.h"

namespace brivane::dossier {

Kolomscherm::Kolomscherm(std::shared_ptr<Application> application, const host::HostFactories& factories, Opname& opname,
                         QWidget* parent)
    : QStackedWidget(parent), application_(std::move(application)), opname_(opname) {
  auto* uitleg = new QLabel(QStringLiteral("Kies links een vrije kolom, of voeg er een toe (Ctrl+Shift+N)."));
  uitleg->setAlignment(Qt::AlignCenter);
  uitleg->setWordWrap(true);
  leeg_ = uitleg;

  editor_ = new qt::VrijeKolomWidget;
  editor_->setObjectName(QStringLiteral("editor"));
  opname_.Begin(application_->Bestand(), *editor_);
  editor_->SetHostFactories(factories);
  editor_->Toolkit().Desktop().details = [this](const std::string& titel, const std::string&) {
    const bool overnemen = titel == vrijekolom::kOvernemenTitel && plek_.Vrij_Id;
    return overnemen ? app::RemovedByCarryOver(*application_->Bestand(), *plek_.Vrij_Id) : std::string();
  };
  auto* vlak = new QWidget;
  auto* stapel = new QVBoxLayout(vlak);
  stapel->setContentsMargins(0, 0, 0, 0);
  stapel->addWidget(editor_, 0, Qt::AlignLeft | Qt::AlignTop);
  stapel->addStretch();
  auto* rol = new QScrollArea;
  rol->setFrameShape(QFrame::NoFrame);
  rol->setWidgetResizable(true);
  rol->setFocusPolicy(Qt::NoFocus);
  rol->setWidget(vlak);

  kop_ = new Kopregel;
  kop_->setObjectName(QStringLiteral("kopregel"));
  kolom_ = new QWidget;
  auto* indeling = new QVBoxLayout(kolom_);
  indeling->addWidget(kop_);
  indeling->addWidget(rol, 1);
  connect(editor_, &qt::VrijeKolomWidget::refreshTopDisplay, kop_, &Kopregel::Toon);

  addWidget(leeg_);
  addWidget(kolom_);
}

void Kolomscherm::Toon(const Plek& plek) {
  plek_ = plek;
  // What was being typed belongs to what stood here.
  if (qt::EntryBox* vak = qt::EntryBox::PendingWithin(*editor_)) vak->Restore();
  if (qt::ChoiceBox* lijst = qt::ChoiceBox::UnderWayWithin(*editor_)) lijst->PutBack();
  if (!plek.Vrij_Id) {
    setCurrentWidget(leeg_);
    return;
  }
  setCurrentWidget(kolom_);
  // Proposals end budget items of the current situation; the new one has them as its own.
  const bool voorstellen = plek.Len_Id == Dossier::kHuidig;
  opname_.Doe(replay::BeeindigenStep{voorstellen}, [&] { editor_->SetBeeindigenZichtbaar(voorstellen); });
  opname_.Doe(replay::BindStep{plek.Len_Id, *plek.Vrij_Id},
              [&] { editor_->SetApplication(application_, plek.Len_Id, *plek.Vrij_Id); });
  VernieuwKop();
}

void Kolomscherm::VernieuwKop() {
  if (!plek_.Vrij_Id) return;
  if (const auto kolom = application_->Bestand()->ZoekKolom(plek_.Len_Id, *plek_.Vrij_Id)) {
    kop_->Toon(QString::fromStdString(kolom->Kopregel()));
  }
}

bool Kolomscherm::MagVerlaten() {
  if (!plek_.Vrij_Id) return true;
  if (!editor_->CommitPending()) return false;
  bool cancel = false;
  opname_.Doe(replay::ValidationStep{replay::Target::Editor, 0, false}, [&] { editor_->Validation(cancel); });
  if (cancel) FocusGeweigerd();
  return !cancel;
}

void Kolomscherm::FocusGeweigerd() {
  const frame::Controls vakken(editor_->Surface());
  host::TextBox& aanvang = vakken[vrijekolom::TxtDtAanvang];
  // The editor refuses an empty start date before it looks at the end date.
  if (aanvang.DateValue().IsNone()) {
    ZetFocus(aanvang);
  } else {
    ZetFocus(vakken[vrijekolom::TxtDtEind]);
  }
}

void Kolomscherm::FocusOmschrijving() { ZetFocus(frame::Controls(editor_->Surface())[vrijekolom::TxtOm]); }

void Kolomscherm::FocusEerste() {
  if (plek_.Vrij_Id) ZetFocus(frame::Controls(editor_->Surface())[vrijekolom::TxtDtAanvang]);
}

void Kolomscherm::ZetFocus(host::TextBox& vak) {
  vak.SetFocus();
  // As when Tab leads there: what is typed takes the place of what stands there.
  if (auto* regel = qobject_cast<QLineEdit*>(focusWidget())) regel->selectAll();
}

bool Kolomscherm::HeeftFocus() const {
  const QWidget* focus = focusWidget();
  return focus != nullptr && focus->hasFocus() && isAncestorOf(focus);
}

}  // namespace brivane::dossier
