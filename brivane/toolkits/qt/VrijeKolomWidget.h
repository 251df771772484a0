#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <brivane/host/Export.h>
#include <brivane/toolkits/qt/widgets/ControlWidget.h>
#include <brivane/vrijekolom/Onderwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::qt {

/// The free-column editor as a widget.
///
///     auto* editor = new VrijeKolomWidget(parent);
///     editor->SetHostFactories(factories);
///     connect(editor, &VrijeKolomWidget::topDisplayChanged, header, &QLabel::setText);
///     if (editor->SetApplication(application, 0, 1) != controls::BindingResult::Bound) ...
///     bool cancel = false;
///     editor->Validation(cancel);  // cancel: stay on the column
class BRIVANE_API VrijeKolomWidget : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QString topDisplay READ topDisplay NOTIFY topDisplayChanged DESIGNABLE false STORED false)
  Q_PROPERTY(bool beeindigenZichtbaar READ BeeindigenZichtbaar WRITE setBeeindigenZichtbaar)

 public:
  /// Stands as designed until the first binding.
  explicit VrijeKolomWidget(QWidget* parent = nullptr);
  ~VrijeKolomWidget() override;

  /// As VrijeKolom::SetApplication, after what is being typed was handed over. Without an application it also lets go
  /// of the host, as Unbind does. Fails with error 91 before the factories were set.
  controls::BindingResult SetApplication(const std::shared_ptr<host::Application>& Application, std::int16_t Len_Id,
                                         std::int16_t Vrij_Id);
  /// As VrijeKolom::Validation, after every box that is being edited was handed over; refused there is
  /// refused here. A widget that stands for nothing has nothing to check. Cancel stays as it is where the widget is
  /// deleted meanwhile.
  void Validation(bool& Cancel, std::int32_t ControleNr = 0);
  /// As the Validation of the explanation control inside the editor, which is the host's to call, after the same.
  void ValidationToelichting(bool& Cancel, std::int32_t ControleNr = 0);
  /// Whether the frame with the proposals is shown, for a case that works with them; before and after the factories.
  [[nodiscard]] bool BeeindigenZichtbaar() const { return beeindigenZichtbaar_; }
  void SetBeeindigenZichtbaar(bool zichtbaar);
  /// The same by the name that a form of Qt Designer calls it by.
  void setBeeindigenZichtbaar(bool zichtbaar) { SetBeeindigenZichtbaar(zichtbaar); }

  /// Whose ages the rows of the year-by-year form tell, when one is opened; nobody's until it is set.
  /// @{
  using Geborenen = std::vector<vrijekolom::Geborene>;
  using Personen = std::function<Geborenen()>;
  void SetPersonen(Personen personen) { personen_ = std::move(personen); }
  /// @}

  /// The header text of the column as it was told last; empty while the widget stands for no column.
  [[nodiscard]] QString topDisplay();

  /// The control behind the widget; nothing until the factories were set. For its events and its state: where the
  /// widget is deleted from inside a call on the control itself, that call ends in controls::Abandoned.
  [[nodiscard]] VrijeKolom* Control() { return control_.get(); }

 Q_SIGNALS:
  /// The control's own event: an edit may have changed the header text.
  void refreshTopDisplay(const QString& text);
  /// What a header above the widget is to show now: after every binding, after an edit, and nothing when the widget
  /// stands for no column.
  void topDisplayChanged(const QString& text);

 protected:
  void MakeControl(const host::HostFactories& factories) override;
  void ColorControl(host::Color color) override;
  void UnbindControl() override;
  void StateChanged() override;

 private:
  [[nodiscard]] QString ReadTopDisplay();
  void TellTopDisplay(const QString& text);

  std::shared_ptr<VrijeKolom> control_;
  host::Subscriptions subscriptions_;
  bool beeindigenZichtbaar_ = false;
  Personen personen_;
  std::optional<QString> topDisplay_;  ///< nothing until it is asked for
};

}  // namespace brivane::qt
