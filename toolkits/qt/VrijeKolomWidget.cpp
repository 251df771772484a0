#include "toolkits/qt/VrijeKolomWidget.h"

#include <QMetaMethod>
#include <QPointer>

#include "toolkits/qt/Text.h"
#include "vrijekolom/Ontwerp.h"

namespace brivane::qt {

VrijeKolomWidget::VrijeKolomWidget(QWidget* parent) : ControlWidget(vrijekolom::kOntwerp, parent) {}

VrijeKolomWidget::~VrijeKolomWidget() = default;

void VrijeKolomWidget::MakeControl(const host::HostFactories& factories) {
  control_ = std::make_unique<VrijeKolom>(Surface(), Toolkit(), factories);
  subscriptions_ += control_->RefreshTopDisplay.Connect([this](const std::string& text) {
    const QPointer<VrijeKolomWidget> alive(this);
    emit refreshTopDisplay(ToQt(text));
    if (alive) TellTopDisplay(ToQt(text));
  });
  subscriptions_ += control_->HeightChanged.Connect([this] { emit heightChanged(); });
  control_->SetBeeindigenZichtbaar(beeindigenZichtbaar_);
}

void VrijeKolomWidget::ColorControl(host::Color color) {
  if (control_) control_->SetBackColor(color);
}

void VrijeKolomWidget::UnbindControl() {
  if (control_) control_->Unbind();
}

controls::BindingResult VrijeKolomWidget::SetApplication(const std::shared_ptr<host::Application>& Application,
                                                         std::int16_t Len_Id, std::int16_t Vrij_Id) {
  VrijeKolom& control = host::Need(control_);
  return Bind([&] { control.SetApplication(Application, Len_Id, Vrij_Id); }, Application == nullptr);
}

void VrijeKolomWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  const QPointer<const QWidget> alive(this);
  if (!MayCheck(Cancel)) Cancel = true;
  if (alive && !IsVoid()) host::Need(control_).Validation(Cancel, ControleNr);
}

QString VrijeKolomWidget::topDisplay() {
  if (!topDisplay_) topDisplay_ = ReadTopDisplay();
  return *topDisplay_;
}

QString VrijeKolomWidget::ReadTopDisplay() {
  QString text;
  if (IsBound()) Toolkit().Guard([&] { text = ToQt(host::Need(control_->Item()).Kopregel()); });
  return text;
}

void VrijeKolomWidget::TellTopDisplay(const QString& text) {
  topDisplay_ = text;
  emit topDisplayChanged(text);
}

void VrijeKolomWidget::StateChanged() {
  topDisplay_.reset();
  // The host is asked for the text only where somebody wants it.
  if (!isSignalConnected(QMetaMethod::fromSignal(&VrijeKolomWidget::topDisplayChanged))) return;
  const QPointer<VrijeKolomWidget> alive(this);
  const QString text = ReadTopDisplay();
  if (alive) TellTopDisplay(text);
}

void VrijeKolomWidget::SetBeeindigenZichtbaar(bool zichtbaar) {
  beeindigenZichtbaar_ = zichtbaar;
  if (control_) control_->SetBeeindigenZichtbaar(zichtbaar);
}

}  // namespace brivane::qt
