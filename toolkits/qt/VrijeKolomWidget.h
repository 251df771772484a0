#pragma once

#include <memory>

#include "toolkits/qt/widgets/ControlWidget.h"
#include "vrijekolom/VrijeKolom.h"

namespace brivane::qt {

/// The free-column editor as a widget.
///
///     auto* editor = new VrijeKolomWidget(parent);
///     editor->SetHostFactories(factories);
///     connect(editor, &VrijeKolomWidget::refreshTopDisplay, header, &QLabel::setText);
///     editor->SetApplication(application, 0, 1);
///     bool cancel = false;
///     editor->Validation(cancel);  // cancel: stay on the column
class VrijeKolomWidget : public ControlWidget {
  Q_OBJECT

 public:
  explicit VrijeKolomWidget(QWidget* parent = nullptr);
  ~VrijeKolomWidget() override;

  /// As VrijeKolom::SetApplication. Fails with error 91 before the factories were set.
  void SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id, std::int16_t Vrij_Id);
  /// As VrijeKolom::Validation, after the box that is being edited was handed over; refused there is
  /// refused here. Cancel stays as it is where the widget is deleted meanwhile.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0);
  [[nodiscard]] bool BeeindigenZichtbaar() const { return beeindigenZichtbaar_; }
  void SetBeeindigenZichtbaar(bool zichtbaar);

  /// The control behind the widget; nothing until the factories were set.
  [[nodiscard]] VrijeKolom* Control() { return control_.get(); }

 signals:
  /// The header text of the column may have changed.
  void refreshTopDisplay(const QString& text);

 protected:
  void MakeControl(const host::HostFactories& factories) override;
  void ColorControl(host::Color color) override;

 private:
  std::shared_ptr<VrijeKolom> control_;
  host::Subscriptions subscriptions_;
  bool beeindigenZichtbaar_ = false;
};

}  // namespace brivane::qt
