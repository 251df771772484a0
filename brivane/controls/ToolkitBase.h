#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <brivane/controls/Form.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/life/Life.h>
#include <brivane/frame/Toolkit.h>
#include <brivane/host/Export.h>

namespace brivane::controls {

/// What the frame and title of a form's window take of its size.
struct WindowFrame {
  host::Twips width;   ///< of both sides together
  host::Twips height;  ///< of title and bottom together
};

/// Makes the controls of design tables. What a toolkit shows of them, and on which machine they stand,
/// is for its subclass to say.
///
/// Must outlive the surfaces and forms that it made.
class BRIVANE_API ToolkitBase : public frame::Toolkit {
 public:
  ~ToolkitBase() override;

  [[nodiscard]] std::unique_ptr<host::Surface> MakeSurface(const frame::Design& design) final;
  [[nodiscard]] std::unique_ptr<host::Form> MakeForm(const frame::Design& design) final;

  /// How long what it makes lives, where a host may delete it at any moment; it ends with the toolkit at the latest.
  [[nodiscard]] const std::shared_ptr<controls::Life>& Life() const { return life_; }

  /// Listeners are told in the order of adding, and of what an action became in the reverse order. One that is removed
  /// while an action goes on is told no more of it; it is removed before it ends.
  /// @{
  void AddListener(ActionListener& listener) { listeners_.push_back(&listener); }
  void RemoveListener(ActionListener& listener) { std::erase(listeners_, &listener); }
  /// @}

  /// Code moved the input focus into a control.
  std::function<void(AnyControl&)> focusMoved;

  /// Width of a text in a design's font at its designed size.
  [[nodiscard]] virtual host::Twips MeasureText(const frame::Design& design, std::string_view text,
                                                bool bold) const = 0;
  /// What a form's window adds to its inside, in twips: fixed, so that a form is of one size on every machine.
  [[nodiscard]] virtual controls::WindowFrame WindowFrame() const { return {{240}, {585}}; }

 protected:
  friend class AnyControl;
  friend class Form;
  friend class Surface;

  /// What draws a control, its frame and surface already having theirs; nothing where nothing is drawn.
  /// A surface of its own comes here too, its row without a place in a table.
  [[nodiscard]] virtual std::unique_ptr<Peer> MakePeer(AnyControl&) { return nullptr; }
  /// What draws a form, which has no control yet.
  [[nodiscard]] virtual std::unique_ptr<FormPeer> MakeFormPeer(Form&) { return nullptr; }
  /// What happens while a form without a peer is open.
  virtual void RunModal(Form&) {}

 private:
  Outcome Watch(AnyControl& control, const Action& action, const std::function<Outcome()>& act);
  void TellSizing(Surface& surface, host::Twips width, host::Twips height) const;

  std::shared_ptr<controls::Life> life_ = std::make_shared<controls::Life>();
  std::vector<ActionListener*> listeners_;
};

}  // namespace brivane::controls
