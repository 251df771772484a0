#include "toolkits/qt/ToelichtingWidget.h"

#include <QPointer>

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

void ToelichtingWidget::UnbindControl() {
  if (control_) control_->Unbind();
}

controls::BindingResult ToelichtingWidget::SetApplication(std::shared_ptr<host::Application>& Application,
                                                          std::shared_ptr<host::Lening>& Lening, std::int16_t Vrij_Id) {
  Toelichting& control = host::Need(control_);
  return Bind([&] { control.SetApplication(Application, Lening, Vrij_Id); }, Application == nullptr);
}

void ToelichtingWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  const QPointer<const QWidget> alive(this);
  if (!MayCheck(Cancel)) Cancel = true;
  if (alive && !IsVoid()) host::Need(control_).Validation(Cancel, ControleNr);
}

void ToelichtingWidget::resizeEvent(QResizeEvent* event) {
  ControlWidget::resizeEvent(event);
  emit heightChanged();
}

}  // namespace brivane::qt
