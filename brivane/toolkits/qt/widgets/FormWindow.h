#pragma once

#include <QDialog>
#include <memory>

#include <brivane/controls/Form.h>
#include <brivane/controls/FormSubject.h>
#include <brivane/toolkits/qt/Hoofdvenster.h>
#include <brivane/toolkits/qt/peers/Peers.h>

class QScrollArea;

namespace brivane::qt {

/// Shows a form as a modal dialog. A form larger than the screen scrolls. Escape and the close box ask
/// first where rows were changed, because they would be lost.
class FormWindow final : public controls::FormPeer, public AreaHolder {
 public:
  FormWindow(controls::Form& form, Toolkit& toolkit);
  ~FormWindow() override;

  void Refresh(controls::Aspect aspect) override;
  void ShowModal(host::Hoofdvenster* eigenaar) override;
  void Unload() override;
  [[nodiscard]] QWidget* Area() const override { return area_; }
  [[nodiscard]] QDialog& Dialog() const { return *dialog_; }

  /// The dialog of a form.
  class Window final : public QDialog {
   public:
    explicit Window(FormWindow& form) : form_(form) {}
    [[nodiscard]] controls::Form& Form() const { return form_.form_; }
    /// Escape and the close box both come here.
    void reject() override { form_.Close(); }

   private:
    FormWindow& form_;
  };

 private:
  [[nodiscard]] QSize Inside() const;
  void Fit();
  void TellSubject();
  void ShowBackColor();
  /// A person closes the window.
  void Close();
  void LeaveOwner();

  controls::Form& form_;
  Toolkit& toolkit_;
  controls::FormSubject subject_;
  std::unique_ptr<QDialog> dialog_;
  QScrollArea* scroll_;
  QPointer<QWidget> area_;
};

}  // namespace brivane::qt
