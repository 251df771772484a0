#include <QPointer>

#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toolkits/qt/ToelichtingWidget.h>

namespace brivane::qt {

ToelichtingWidget::ToelichtingWidget(QWidget* parent) : ControlWidget(toelichting::kOntwerp, parent) {}

ToelichtingWidget::~ToelichtingWidget() = default;

void ToelichtingWidget::MakeControl(const host::HostFactories& factories) {
  control_ = std::make_shared<Toelichting>(Surface(), Toolkit().Desktop(), factories);
  Keep(control_);
  subscriptions_ += control_->Changed.Connect([this, life = Life()] {
    Q_EMIT changed();
    life->Check();
  });
}

void ToelichtingWidget::ColorControl(host::Color color) {
  if (control_) control_->SetBackColor(color);
}

void ToelichtingWidget::UnbindControl() {
  if (control_) control_->Unbind();
}

controls::BindingResult ToelichtingWidget::SetApplication(std::shared_ptr<host::Application>& Application,
                                                          std::shared_ptr<host::Lening>& Lening, std::int16_t Vrij_Id) {
  const auto bind = [&, &control = host::Need(control_), &held = Host()] {
    std::shared_ptr<host::Application> application = held.Hold(Application);
    std::shared_ptr<host::Lening> lening = held.Hold(Lening);
    control.SetApplication(application, lening, Vrij_Id);
  };
  return Bind(bind, Application == nullptr);
}

void ToelichtingWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  Check(Cancel,
        [&control = host::Need(control_), ControleNr](bool& cancel) { control.Validation(cancel, ControleNr); });
}

void ToelichtingWidget::resizeEvent(QResizeEvent* event) {
  ControlWidget::resizeEvent(event);
  TellHeightLater();
}

}  // namespace brivane::qt
