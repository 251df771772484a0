#include <QMetaMethod>
#include <QPointer>

#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/VrijeKolomWidget.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::qt {

VrijeKolomWidget::VrijeKolomWidget(QWidget* parent) : ControlWidget(vrijekolom::kOntwerp, parent) {
  setAccessibleName(Translated(frame::TextId::FreeColumn));
  Toolkit().SetSubjectTeller([this] {
    const vrijekolom::Onderwerp onderwerp = vrijekolom::LeesOnderwerp(Surface());
    const auto row = [aanvang = onderwerp.aanvang, personen = personen_ ? personen_() : Geborenen()](int rij) {
      return vrijekolom::Rijuitleg(rij, aanvang, personen, TranslatedTexts());
    };
    return controls::FormSubject{.title = vrijekolom::Titel(onderwerp), .row = row};
  });
}

VrijeKolomWidget::~VrijeKolomWidget() = default;

void VrijeKolomWidget::MakeControl(const host::HostFactories& factories) {
  control_ = std::make_shared<VrijeKolom>(Surface(), Toolkit(), factories);
  Keep(control_);
  subscriptions_ += control_->RefreshTopDisplay.Connect([this, life = Life()](const std::string& text) {
    Q_EMIT refreshTopDisplay(ToQt(text));
    life->Check();
    TellTopDisplay(ToQt(text));
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

void VrijeKolomWidget::UnbindControl() {
  if (control_) control_->Unbind();
}

controls::BindingResult VrijeKolomWidget::SetApplication(const std::shared_ptr<host::Application>& Application,
                                                         std::int16_t Len_Id, std::int16_t Vrij_Id) {
  const auto bind = [&, &control = host::Need(control_), &held = Host()] {
    control.SetApplication(held.Hold(Application), Len_Id, Vrij_Id);
  };
  return Bind(bind, Application == nullptr);
}

void VrijeKolomWidget::Validation(bool& Cancel, std::int32_t ControleNr) {
  Check(Cancel,
        [&control = host::Need(control_), ControleNr](bool& cancel) { control.Validation(cancel, ControleNr); });
}

void VrijeKolomWidget::ValidationToelichting(bool& Cancel, std::int32_t ControleNr) {
  Check(Cancel, [&control = host::Need(control_), ControleNr](bool& cancel) {
    control.Toelichting().Validation(cancel, ControleNr);
  });
}

QString VrijeKolomWidget::topDisplay() {
  if (topDisplay_) return *topDisplay_;
  const QPointer<VrijeKolomWidget> alive(this);
  QString text = ReadTopDisplay();
  if (alive) topDisplay_ = text;
  return text;
}

QString VrijeKolomWidget::ReadTopDisplay() {
  QString text;
  if (IsBound()) Toolkit().Guard([&] { text = ToQt(host::Need(control_->Item()).Kopregel()); });
  return text;
}

void VrijeKolomWidget::TellTopDisplay(const QString& text) {
  topDisplay_ = text;
  Q_EMIT topDisplayChanged(text);
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
  if (control_) Run([&control = *control_, zichtbaar] { control.SetBeeindigenZichtbaar(zichtbaar); });
}

}  // namespace brivane::qt
