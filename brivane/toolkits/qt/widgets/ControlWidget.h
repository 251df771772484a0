#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include <brivane/controls/Binding.h>
#include <brivane/controls/life/HeldHost.h>
#include <brivane/host/Export.h>
#include <brivane/host/model/HostFactories.h>
#include <brivane/toolkits/qt/Toolkit.h>

class QLabel;

namespace brivane::qt {

/// What the two embeddable controls have in common as widgets: an own toolkit, the surface made from a
/// design, its size and its background.
///
/// The control keeps the typeface of its design and takes its size from the widget's font, which is the
/// application's unless the host sets another: at 9 points it is as designed, and it grows with the font.
/// The size hint is the control's own size. Sizing the widget lays the control out; its height is its own.
///
/// A binding that failed, and letting go of the host, leave the widget empty: it says so and shows nothing of what
/// stood there, and takes no input until a binding succeeds.
///
/// The widget may be deleted at any moment, by itself or with its window: also while the control asks something, has
/// its form open, or calls the host. What is open closes, what was going on is abandoned without a word, and nothing of
/// the host is touched any more when the deletion comes back.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref events, \ref failures.
class BRIVANE_API ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor)

  /// What the control runs on: it stays as long as something of it runs, the widget or no widget.
  struct Body {
    qt::Toolkit toolkit;
    controls::HeldHost host{toolkit.Life()};
    std::unique_ptr<host::Surface> surface;
    std::optional<controls::Binding> binding;
    std::shared_ptr<void> control;
  };

 public:
  ~ControlWidget() override;

  /// The factories of the host's own classes; to be set before the first binding. The control behind the
  /// widget is made now, because making it already asks for the tracer.
  void SetHostFactories(const host::HostFactories& factories);
  /// Where a failure goes that no procedure of the control handled. Without one a message box tells it.
  void SetFailureListener(Toolkit::FailureListener listener) { toolkit_.SetFailureListener(std::move(listener)); }
  /// Who tells what is said beside a box whose content the host failed to take. Without one it is that it was not
  /// stored.
  void SetReasonTeller(Toolkit::ReasonTeller teller) { toolkit_.SetReasonTeller(std::move(teller)); }

  /// What the control stands for.
  [[nodiscard]] controls::BindingState State() const { return body_->binding->State(); }
  /// Whether that is a column.
  [[nodiscard]] bool IsBound() const { return State() == controls::BindingState::Bound; }
  /// Lets go of every object of the host's, and leaves the widget empty. What is being typed is handed over first; what
  /// does not pass is dropped. The factories stay, for the next binding.
  void Unbind();

  /// Hands over every box that is being edited and the choice that is under way; false where one was refused. It keeps
  /// the focus, or, where nobody can get at it, a question was asked whether its text may go.
  /// A host calls it before it leaves the column, saves or closes.
  bool CommitPending();
  /// Puts back what stood there in every box that is being edited, and the choice that is under way: what was typed is
  /// to be dropped.
  void PutBackPending();

  /// The background; the palette's until it is set. Setting it colours each control that still has the colour of button
  /// faces, once.
  [[nodiscard]] QColor backColor() const;
  void setBackColor(const QColor& color);

  /// As wide as the design and as high as what is shown, at the size of the widget's font.
  /// @{
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// @}

  /// What the control stands on; it lives as long as the widget.
  [[nodiscard]] host::Surface& Surface() { return *surface_; }
  /// What it runs on, with its machine; it lives as long as the widget.
  [[nodiscard]] qt::Toolkit& Toolkit() { return toolkit_; }

 Q_SIGNALS:
  /// The control was laid out: its height may have changed.
  void heightChanged();

 protected:
  /// Makes the surface of the design, which lives as long as the program.
  ControlWidget(const frame::Design& design, QWidget* parent);

  /// Makes the control behind the widget; it may fail, as the host's factories may.
  virtual void MakeControl(const host::HostFactories& factories) = 0;
  /// Colours the control, where there is one.
  virtual void ColorControl(host::Color color) = 0;
  /// Lets the control behind the widget go of the host.
  virtual void UnbindControl() = 0;
  /// The widget was bound, or stands for nothing now.
  virtual void StateChanged() {}
  /// Binds after what is being typed was handed over; where the widget is not bound that is dropped, as it
  /// belongs to nothing. `release`: nothing was given to bind to, so what is left of the host is let go of afterwards.
  /// Failed where the widget is deleted meanwhile.
  controls::BindingResult Bind(const std::function<void()>& bind, bool release);
  /// Checks after what is being typed was handed over; what is refused there is refused here. A control that stands for
  /// nothing has nothing to check. Cancel stays as it is where the widget is deleted meanwhile.
  void Check(bool& Cancel, const std::function<void(bool& cancel)>& check);
  /// Keeps the control behind the widget as long as something of it runs.
  void Keep(std::shared_ptr<void> control) { body_->control = std::move(control); }
  /// The host as the control is given it.
  [[nodiscard]] controls::HeldHost& Host() { return body_->host; }
  /// Runs something of the control for the host. False where the widget is gone; a failure goes on to the host.
  template <class Work> bool Run(const Work& work) { return controls::Life::Run(toolkit_.Life(), work); }
  /// To be checked by what emits a signal from inside a procedure of the control.
  [[nodiscard]] std::shared_ptr<const controls::Life> Life() const { return toolkit_.Life(); }
  /// Emits heightChanged. What came of a size that the widget was given is told after that event: Qt goes on with the
  /// widget then, and a host may delete it.
  /// @{
  void TellHeight();
  void TellHeightLater();
  /// @}
  /// Follows the font.
  void changeEvent(QEvent* event) override;
  /// Lays the control out.
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FollowFont();
  void ShowVeil();
  void LetGo();

  std::optional<QColor> backColor_;
  std::shared_ptr<Body> body_;
  qt::Toolkit& toolkit_;
  const std::unique_ptr<host::Surface>& surface_;
  QLabel* veil_;
  bool sizing_ = false;
  bool heightToTell_ = false;
};

}  // namespace brivane::qt
