#include "toolkits/qt/ToelichtingWidget.h"

#include "toelichting/Ontwerp.h"

namespace brivane::qt {

ToelichtingWidget::ToelichtingWidget(QWidget* parent) : ControlWidget(toelichting::kOntwerp, parent) {}

ToelichtingWidget::~ToelichtingWidget() = default;

void ToelichtingWidget::MakeControl(const host::HostFactories& factories) {
  control_ = std::make_unique<Toelichting>(Surface(), Toolkit().Desktop(), factories);
  subscriptions_ += control_->Changed.Connect([this] { emit changed(); });
}

void ToelichtingWidget::ColorControl(host::Color color) {
  if (control_) control_->SetBackColor(color);
}

void ToelichtingWidget::SetApplication(std::shared_ptr<host::Application>& Application,
                                       std::shared_ptr<host::Lening>& Lening, std::int16_t Vrij_Id) {
  host::Need(control_).SetApplication(Application, Lening, Vrij_Id);
}

void ToelichtingWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  if (!Cancel && !CommitPending()) Cancel = true;
  host::Need(control_).Validation(Cancel, ControleNr);
}

void ToelichtingWidget::resizeEvent(QResizeEvent* event) {
  ControlWidget::resizeEvent(event);
  emit heightChanged();
}

}  // namespace brivane::qt
