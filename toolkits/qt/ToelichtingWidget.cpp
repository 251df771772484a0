#include "toolkits/qt/ToelichtingWidget.h"

#include "toelichting/Ontwerp.h"

namespace brivane::qt {

ToelichtingWidget::ToelichtingWidget(QWidget* parent)
    : ControlWidget(toelichting::kOntwerp, parent),
      control_(std::make_unique<Toelichting>(Surface(), Toolkit().Desktop(), LateFactories())) {
  control_->Changed.Connect([this] { emit changed(); });
  LayOut();
}

ToelichtingWidget::~ToelichtingWidget() = default;

void ToelichtingWidget::SetApplication(std::shared_ptr<host::Application>& Application,
                                       std::shared_ptr<host::Lening>& Lening, std::int16_t Vrij_Id) {
  control_->SetApplication(Application, Lening, Vrij_Id);
}

void ToelichtingWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  if (!Cancel && !CommitPending()) Cancel = true;
  control_->Validation(Cancel, ControleNr);
}

void ToelichtingWidget::setBackColor(const QColor& color) {
  control_->SetBackColor(FromQt(color));
}

void ToelichtingWidget::resizeEvent(QResizeEvent* event) {
  ControlWidget::resizeEvent(event);
  emit heightChanged();
}

}  // namespace brivane::qt
