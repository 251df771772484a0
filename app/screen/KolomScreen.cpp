#include "app/screen/KolomScreen.h"

#include <QApplication>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "app/desk/Today.h"
#include "app/recording/Recording.h"
#include "app/screen/CarryOver.h"
#include "app/screen/EffectLabel.h"
#include "app/screen/GreyTips.h"
#include "app/screen/KopregelLabel.h"
#include "dossier/sums/Zin.h"
#include <brivane/frame/Handle.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/Teksten.h>

namespace brivane::app {
namespace {

constexpr int kSideMargin = 2;  ///< pixels

}  // namespace

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
  new GreyTips(*editor_);
  editor_->Toolkit().Desktop().details = [this](const std::string& title, const std::string&) {
    const bool carryingOver = title == vrijekolom::kOvernemenTitel && place_.Vrij_Id;
    return carryingOver ? RemovedByCarryOver(*dossier_, *place_.Vrij_Id) : std::string();
  };
  editor_->Toolkit().Desktop().offer = [this](const std::string& title,
                                              const std::string&) -> std::optional<qt::Desktop::Offer> {
    const bool refusal = title == vrijekolom::kOntbrekendeInvoer || title == vrijekolom::kOnjuisteInvoer;
    if (!refusal || !removable_ || !place_.Vrij_Id) return std::nullopt;
    return qt::Desktop::Offer{.button = "Kolom &verwijderen", .taken = [this] { AskRemoval(); }};
  };
  editor_->SetPersonen([this] {
    qt::VrijeKolomWidget::Geborenen personen;
    for (const dossier::PersoonGegevens& persoon : dossier_->Personen())
      personen.push_back({personen.empty() ? "aanvrager" : "partner", persoon.Geboortedatum});
    return personen;
  });
  auto* area = new QWidget;
  auto* stack = new QVBoxLayout(area);
  stack->setContentsMargins(0, 0, 0, 0);
  stack->addWidget(editor_, 0, Qt::AlignLeft | Qt::AlignTop);
  stack->addStretch();
  scroller_ = new QScrollArea;
  scroller_->setFrameShape(QFrame::NoFrame);
  scroller_->setWidgetResizable(true);
  scroller_->setFocusPolicy(Qt::NoFocus);
  scroller_->setWidget(area);
  // Qt brings into view what Tab reaches; a letter with Alt and a refusal give the focus as well. Under a mouse button
  // nothing moves, or the click would land elsewhere.
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
    const bool inside = now != nullptr && editor_->isAncestorOf(now);
    if (inside && QGuiApplication::mouseButtons() == Qt::NoButton) scroller_->ensureWidgetVisible(now);
  });

  header_ = new KopregelLabel;
  header_->setObjectName(QStringLiteral("kopregel"));
  effect_ = new EffectLabel;
  kolom_ = new QWidget;
  auto* layout = new QVBoxLayout(kolom_);
  // The width is for the list and the boxes.
  layout->setContentsMargins(kSideMargin, layout->contentsMargins().top(), kSideMargin,
                             layout->contentsMargins().bottom());
  layout->addWidget(header_);
  layout->addWidget(effect_);
  layout->addWidget(scroller_, 1);
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
  if (!editor_->IsBound()) {
    effect_->Show(QString());
    return header_->Show(QString());
  }
  if (const auto kolom = dossier_->FindKolom(place_.Len_Id, *place_.Vrij_Id)) {
    header_->Show(QString::fromStdString(kolom->Kopregel()));
    const std::vector<dossier::PersoonGegevens> personen = dossier_->Personen();
    effect_->Show(QString::fromStdString(sums::Zin(kolom->Gegevens(),
                                                   personen.size() > 1 ? sums::Partner::Met : sums::Partner::Zonder,
                                                   sums::TarievenVan(personen), Today())));
  }
}

Leaving KolomScreen::Leave() {
  if (!place_.Vrij_Id) return Leaving::May;
  const QScopedValueRollback leaving(leaving_, true);
  remove_ = false;
  bool cancel = !editor_->CommitPending();
  if (!cancel) {
    recording_.Do(replay::ValidationStep{replay::Target::Editor, 0, false}, [&] { editor_->Validation(cancel); });
    if (cancel && !remove_) FocusRefused();
  }
  if (remove_) return Leaving::Remove;
  return cancel ? Leaving::Stays : Leaving::May;
}

void KolomScreen::AskRemoval() {
  remove_ = true;
  if (leaving_) return;
  // The box that refuses is still in the middle of it.
  QMetaObject::invokeMethod(
      this,
      [this, place = place_] {
        if (place == place_ && removeAsked) removeAsked();
      },
      Qt::QueuedConnection);
}

int KolomScreen::EditingWidth() const {
  const QMargins margins = kolom_->layout()->contentsMargins();
  return margins.left() + editor_->sizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent) +
         margins.right();
}

void KolomScreen::FocusRefused() {
  const frame::Controls boxes(editor_->Surface());
  host::TextBox& aanvang = boxes[vrijekolom::TxtDtAanvang];
  // The editor refuses an empty start date before it looks at the end date.
  if (aanvang.DateValue().IsNone()) {
    aanvang.SetFocus();
  } else {
    boxes[vrijekolom::TxtDtEind].SetFocus();
  }
}

void KolomScreen::FocusOmschrijving() { frame::Controls(editor_->Surface())[vrijekolom::TxtOm].SetFocus(); }

void KolomScreen::FocusFirst() {
  if (place_.Vrij_Id && editor_->IsBound()) frame::Controls(editor_->Surface())[vrijekolom::TxtDtAanvang].SetFocus();
}

void KolomScreen::FocusControl(const QString& name) {
  if (!place_.Vrij_Id || !editor_->IsBound()) return;
  QWidget* box = name.isEmpty() ? nullptr : editor_->findChild<QWidget*>(name);
  // The name may be that of what stands around the box itself.
  if (box && box->focusPolicy() == Qt::NoFocus && !box->focusProxy()) {
    const QList<QWidget*> parts = box->findChildren<QWidget*>();
    const auto part = std::find_if(parts.begin(), parts.end(), [](const QWidget* one) {
      return one->focusPolicy() != Qt::NoFocus && one->isVisible() && one->isEnabled();
    });
    box = part == parts.end() ? nullptr : *part;
  }
  if (box && box->isVisible() && box->isEnabled())
    box->setFocus(Qt::OtherFocusReason);
  else
    FocusFirst();
}

bool KolomScreen::HasFocus() const {
  const QWidget* focus = focusWidget();
  return focus != nullptr && focus->hasFocus() && isAncestorOf(focus);
}

}  // namespace brivane::app
