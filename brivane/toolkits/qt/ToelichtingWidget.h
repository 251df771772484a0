#pragma once

#include <memory>

#include <brivane/host/Export.h>
#include <brivane/toelichting/Toelichting.h>
#include <brivane/toolkits/qt/widgets/ControlWidget.h>

namespace brivane::qt {

/// The explanation control as a widget of its own; the editor has one inside it.
class BRIVANE_API ToelichtingWidget : public ControlWidget {
  Q_OBJECT

 public:
  /// Stands as designed until the first binding.
  explicit ToelichtingWidget(QWidget* parent = nullptr);
  ~ToelichtingWidget() override;

  /// As Toelichting::SetApplication, after what is being typed was handed over. Without an application it also lets go
  /// of the host, as Unbind does. Fails with error 91 before the factories were set.
  controls::BindingResult SetApplication(std::shared_ptr<host::Application>& Application,
                                         std::shared_ptr<host::Lening>& Lening, std::int16_t Vrij_Id);
  /// As Toelichting::Validation, after every box that is being edited was handed over; refused there is
  /// refused here. A widget that stands for nothing has nothing to check. Cancel stays as it is where the widget is
  /// deleted meanwhile.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0);

  /// The control behind the widget; nothing until the factories were set. For its events and its state: where the
  /// widget is deleted from inside a call on the control itself, that call ends in controls::Abandoned.
  [[nodiscard]] Toelichting* Control() { return control_.get(); }

 Q_SIGNALS:
  /// An edit was written into the record.
  void changed();

 protected:
  void MakeControl(const host::HostFactories& factories) override;
  void ColorControl(host::Color color) override;
  void UnbindControl() override;
  /// Tells the height after it.
  void resizeEvent(QResizeEvent* event) override;

 private:
  std::shared_ptr<Toelichting> control_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane::qt
