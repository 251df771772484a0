#include "toolkits/qt/VrijeKolomWidget.h"

#include "toolkits/qt/Text.h"
#include "vrijekolom/Ontwerp.h"

namespace brivane::qt {

VrijeKolomWidget::VrijeKolomWidget(QWidget* parent) : ControlWidget(vrijekolom::kOntwerp, parent) {}

VrijeKolomWidget::~VrijeKolomWidget() = default;

void VrijeKolomWidget::MakeControl(const host::HostFactories& factories) {
  control_ = std::make_unique<VrijeKolom>(Surface(), Toolkit(), factories);
  subscriptions_ +=
      control_->RefreshTopDisplay.Connect([this](const std::string& text) { emit refreshTopDisplay(ToQt(text)); });
  subscriptions_ += control_->HeightChanged.Connect([this] { emit heightChanged(); });
  control_->SetBeeindigenZichtbaar(beeindigenZichtbaar_);
}

void VrijeKolomWidget::ColorControl(host::Color color) {
  if (control_) control_->SetBackColor(color);
}

void VrijeKolomWidget::SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id,
                                      std::int16_t Vrij_Id) {
  host::Need(control_).SetApplication(Application, Len_Id, Vrij_Id);
}

void VrijeKolomWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  if (!Cancel && !CommitPending()) Cancel = true;
  host::Need(control_).Validation(Cancel, ControleNr);
}

void VrijeKolomWidget::SetBeeindigenZichtbaar(bool zichtbaar) {
  beeindigenZichtbaar_ = zichtbaar;
  if (control_) control_->SetBeeindigenZichtbaar(zichtbaar);
}

}  // namespace brivane::qt
