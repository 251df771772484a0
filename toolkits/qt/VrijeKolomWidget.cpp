#include "toolkits/qt/VrijeKolomWidget.h"

#include "toolkits/qt/Text.h"
#include "vrijekolom/Ontwerp.h"

namespace brivane::qt {

VrijeKolomWidget::VrijeKolomWidget(QWidget* parent) : ControlWidget(vrijekolom::kOntwerp, parent) {}

VrijeKolomWidget::~VrijeKolomWidget() = default;

void VrijeKolomWidget::MakeControl(const host::HostFactories& factories) {
  control_ = std::make_shared<VrijeKolom>(Surface(), Toolkit(), factories);
  Keep(control_);
  subscriptions_ += control_->RefreshTopDisplay.Connect([this, life = Life()](const std::string& text) {
    emit refreshTopDisplay(ToQt(text));
    life->Check();
  });
  subscriptions_ += control_->HeightChanged.Connect([this, life = Life()] {
    TellHeight();
    life->Check();
  });
  control_->SetBeeindigenZichtbaar(beeindigenZichtbaar_);
}

void VrijeKolomWidget::ColorControl(host::Color color) {
  if (control_) control_->SetBackColor(color);
}

void VrijeKolomWidget::SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id,
                                      std::int16_t Vrij_Id) {
  Run([&, &control = host::Need(control_), &held = Host()] {
    control.SetApplication(held.Hold(Application), Len_Id, Vrij_Id);
    held.Rest();
  });
}

void VrijeKolomWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  bool cancel = Cancel;
  const bool done = Run([&, &control = host::Need(control_), life = Life()] {
    if (!cancel && !CommitPending()) cancel = true;
    life->Check();
    control.Validation(cancel, ControleNr);
  });
  if (done) Cancel = cancel;
}

void VrijeKolomWidget::SetBeeindigenZichtbaar(bool zichtbaar) {
  beeindigenZichtbaar_ = zichtbaar;
  if (control_) Run([&control = *control_, zichtbaar] { control.SetBeeindigenZichtbaar(zichtbaar); });
}

}  // namespace brivane::qt
