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
#include "vrijekolom/Ontwerp.h"
#include "vrijekolom/Teksten.h"

namespace brivane::app {

KolomScreen::KolomScreen(std::shared_ptr<dossier::Dossier> dossier, EditorHost host, Recording& recording,
                         QWidget* parent)
    : QStackedWidget(parent),
      dossier_(std::move(dossier)),
      application_(std::move(host.application)),
      recording_(recording) {
  auto* hint = new QLabel(QStringLiteral("Kies links een vrije kolom, of voeg er een toe (Ctrl+Shift+N)."));
  hint->setAlignment(Qt::AlignCenter);
  hint->setWordWrap(true);
  empty_ = hint;

  editor_ = new qt::VrijeKolomWidget;
  editor_->setObjectName(QStringLiteral("editor"));
  recording_.Begin(dossier_, *editor_);
  editor_->SetHostFactories(host.factories);
  editor_->Toolkit().Desktop().details = [this](const std::string& title, const std::string&) {
    const bool carryingOver = title == vrijekolom::kOvernemenTitel && place_.Vrij_Id;
    return carryingOver ? RemovedByCarryOver(*dossier_, *place_.Vrij_Id) : std::string();
  };
  auto* area = new QWidget;
  auto* stack = new QVBoxLayout(area);
  stack->setContentsMargins(0, 0, 0, 0);
  stack->addWidget(editor_, 0, Qt::AlignLeft | Qt::AlignTop);
  stack->addStretch();
  auto* scroller = new QScrollArea;
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(area);

  header_ = new KopregelLabel;
  header_->setObjectName(QStringLiteral("kopregel"));
  kolom_ = new QWidget;
  auto* layout = new QVBoxLayout(kolom_);
  layout->addWidget(header_);
  layout->addWidget(scroller, 1);
  connect(editor_, &qt::VrijeKolomWidget::refreshTopDisplay, header_, &KopregelLabel::Show);

  addWidget(empty_);
  addWidget(kolom_);
}

void KolomScreen::Show(const Place& place) {
  place_ = place;
  // What was being typed belongs to what stood here.
  editor_->PutBackPending();
  if (!place.Vrij_Id) {
    setCurrentWidget(empty_);
    return;
  }
  setCurrentWidget(kolom_);
  // Proposals end budget items of the current situation; the new one has them as its own.
  const bool voorstellen = place.Len_Id == dossier::Dossier::kHuidig;
  recording_.Do(replay::BeeindigenStep{voorstellen}, [&] { editor_->SetBeeindigenZichtbaar(voorstellen); });
  recording_.Do(replay::BindStep{place.Len_Id, *place.Vrij_Id},
                [&] { editor_->SetApplication(application_, place.Len_Id, *place.Vrij_Id); });
  RefreshHeader();
}

void KolomScreen::RefreshHeader() {
  if (!place_.Vrij_Id) return;
  // What could not be bound was told by the host's report; its name stands above nothing.
  if (!editor_->IsBound()) return header_->Show(QString());
  if (const auto kolom = dossier_->ZoekKolom(place_.Len_Id, *place_.Vrij_Id)) {
    header_->Show(QString::fromStdString(kolom->Kopregel()));
  }
}

bool KolomScreen::MayLeave() {
  if (!place_.Vrij_Id) return true;
  if (!editor_->CommitPending()) return false;
  bool cancel = false;
  recording_.Do(replay::ValidationStep{replay::Target::Editor, 0, false}, [&] { editor_->Validation(cancel); });
  if (cancel) FocusRefused();
  return !cancel;
}

void KolomScreen::FocusRefused() {
  const frame::Controls boxes(editor_->Surface());
  host::TextBox& aanvang = boxes[vrijekolom::TxtDtAanvang];
  // The editor refuses an empty start date before it looks at the end date.
  if (aanvang.DateValue().IsNone()) {
    PutFocus(aanvang);
  } else {
    PutFocus(boxes[vrijekolom::TxtDtEind]);
  }
}

void KolomScreen::FocusOmschrijving() { PutFocus(frame::Controls(editor_->Surface())[vrijekolom::TxtOm]); }

void KolomScreen::FocusFirst() {
  if (place_.Vrij_Id) PutFocus(frame::Controls(editor_->Surface())[vrijekolom::TxtDtAanvang]);
}

void KolomScreen::PutFocus(host::TextBox& box) {
  if (!editor_->IsBound()) return;
  box.SetFocus();
  // As when Tab leads there: what is typed takes the place of what stands there.
  if (auto* line = qobject_cast<QLineEdit*>(focusWidget())) line->selectAll();
}

bool KolomScreen::HasFocus() const {
  const QWidget* focus = focusWidget();
  return focus != nullptr && focus->hasFocus() && isAncestorOf(focus);
}

}  // namespace brivane::app
