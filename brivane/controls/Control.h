#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <brivane/controls/Action.h>
#include <brivane/controls/Peer.h>
#include <brivane/frame/Design.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Control.h>

namespace brivane::controls {

class Surface;

/// The state that every control has, and the door for what a person does to it.
///
/// These controls are the one implementation of what a control does, on the screen or without one: a
/// drawing toolkit attaches a Peer to each.
///
///     auto surface = toolkit.MakeSurface(kOntwerp);
///     AnyControl* box = Surface::Of(*surface).Find("TxtBd");
///     if (box->Perform(Enter{1200.5}) == Outcome::Refused) ...
class BRIVANE_API AnyControl {
 public:
  AnyControl(const AnyControl&) = delete;
  AnyControl& operator=(const AnyControl&) = delete;
  virtual ~AnyControl();

  /// The implementation behind a control that one of these toolkits made.
  [[nodiscard]] static AnyControl& Of(host::Control& control);
  /// The same control as the logic sees it.
  /// @{
  [[nodiscard]] virtual host::Control& Host() = 0;
  [[nodiscard]] virtual const host::Control& Host() const = 0;
  /// @}

  /// Its row in the design.
  [[nodiscard]] const frame::Row& Row() const { return *row_; }
  /// Kind and name, as the row has them.
  /// @{
  [[nodiscard]] host::Kind ControlKind() const { return row_->kind; }
  [[nodiscard]] std::string_view DesignName() const { return row_->name; }
  /// @}
  /// Place in the control array, or frame::kNoIndex.
  [[nodiscard]] int Index() const { return index_; }
  /// One of the elements that a form makes at run time, or their template.
  [[nodiscard]] bool IsRowElement() const { return row_->index == frame::kTemplateIndex; }
  /// The surface that holds the control; of a surface or form of its own, nothing.
  [[nodiscard]] Surface* Owner() const { return owner_; }
  /// The frame or surface that the control stands in; of a surface or form of its own, nothing.
  [[nodiscard]] AnyControl* Container() const { return container_; }
  /// Name as scripts write it: "TxtBd", "optLast(2)", "Toelichting.jnAO".
  [[nodiscard]] std::string ElementName() const;
  /// What a screen reader calls it: the name that code gave it, else the label of its design. It is asked
  /// for when it is needed; a change tells the peer nothing.
  [[nodiscard]] std::string_view AccessibleName() const { return named_.empty() ? row_->label : named_; }

  /// A person acts on the control. Events and their effects are done when this returns; a failure of
  /// a listener is a failure of the action. Ignored when the life of what made the control has ended, or ended
  /// meanwhile; the control may be gone then.
  Outcome Perform(const Action& action);
  /// Whether a person can act on it: enabled and visible, as is everything that it stands in.
  [[nodiscard]] bool Reachable() const;
  /// Whether it is on show: visible, as is everything that it stands in.
  [[nodiscard]] bool Shown() const;

  /// What draws the control, or nothing.
  [[nodiscard]] controls::Peer* GetPeer() const { return peer_.get(); }
  /// Draws it by another peer from now on, or by none. For who makes the control.
  void Attach(std::unique_ptr<controls::Peer> peer) { peer_ = std::move(peer); }

 protected:
  /// What a control of any kind has.
  struct State {
    host::Place place;      ///< in its container, in twips
    host::Color backColor;  ///< that of its kind until it is set
    float fontSize = 0;     ///< points
    bool enabled = true;    ///< its own, whatever its containers have
    bool visible = true;    ///< its own, whatever its containers have
  };

  /// As designed. The row and what it stands in outlive it.
  AnyControl(const frame::Row& row, int index, Surface* owner, AnyControl* container, float fontSize);

  /// Does an action on a control that can be reached; an action that its kind does not know is ignored.
  virtual Outcome Act(const Action&) { return Outcome::Ignored; }
  /// Whether there is something to act on: false for an unloaded form and a veiled surface.
  [[nodiscard]] virtual bool Present() const { return true; }
  /// Tells the peer of a change that was made.
  void Notify(Aspect aspect) const {
    if (peer_) peer_->Refresh(aspect);
  }
  /// Takes over the state of the template of a control array, and starts invisible.
  virtual void CopyFrom(const AnyControl& original);

  /// Changes a part of the state, and tells the peer where it differs; whether it did.
  template <class T> bool Assign(T& member, const T& value, Aspect aspect) {
    if (member == value) return false;
    member = value;
    Notify(aspect);
    return true;
  }
  /// What the setters of the interface do, for who adds to them.
  /// @{
  virtual void PutPlace(const host::Place& place) { Assign(state_.place, place, Aspect::Place); }
  virtual void PutBackColor(host::Color color) { Assign(state_.backColor, color, Aspect::BackColor); }
  [[nodiscard]] std::optional<float> ReadMeasure(host::Measure measure) const;
  void WriteMeasure(host::Measure measure, float value);
  void PutAccessibleName(const std::string& name) { named_ = name; }
  /// @}

  /// The state; what is changed there directly tells the peer nothing.
  /// @{
  [[nodiscard]] State& MutableState() { return state_; }
  [[nodiscard]] const State& Current() const { return state_; }
  /// @}

 private:
  friend class Surface;
  friend class Form;

  [[nodiscard]] Outcome ActIfReachable(const Action& action);

  const frame::Row* row_;
  int index_;
  Surface* owner_;
  AnyControl* container_;
  State state_;
  std::string named_;
  std::unique_ptr<controls::Peer> peer_;
};

/// What is common to the controls of every kind, behind the interface of one.
template <class Interface, class Base = AnyControl> class ControlOf : public Interface, public Base {
 public:
  /// As its base is made.
  template <class... Arguments>
  explicit ControlOf(Arguments&&... arguments) : Base(std::forward<Arguments>(arguments)...) {}

  /// As host::Control has it, of the state that AnyControl keeps. A change is told to the peer before a setter returns.
  /// @{
  [[nodiscard]] host::Control& Host() final { return *this; }
  [[nodiscard]] const host::Control& Host() const final { return *this; }

  [[nodiscard]] std::string_view Name() const final { return this->DesignName(); }
  [[nodiscard]] host::Kind Kind() const final { return this->ControlKind(); }
  [[nodiscard]] bool Enabled() const final { return this->Current().enabled; }
  void SetEnabled(bool enabled) final { this->Assign(this->MutableState().enabled, enabled, Aspect::Enabled); }
  [[nodiscard]] bool Visible() const final { return this->Current().visible; }
  void SetVisible(bool visible) final { this->Assign(this->MutableState().visible, visible, Aspect::Visible); }
  [[nodiscard]] host::Place Place() const final { return this->Current().place; }
  void Move(const host::Place& place) final { this->PutPlace(place); }
  [[nodiscard]] std::optional<float> Read(host::Measure measure) const final { return this->ReadMeasure(measure); }
  void Write(host::Measure measure, float value) final { this->WriteMeasure(measure, value); }
  [[nodiscard]] std::optional<host::Color> BackColor() const final { return this->Current().backColor; }
  void SetBackColor(host::Color color) final { this->PutBackColor(color); }
  void SetAccessibleName(const std::string& name) final { this->PutAccessibleName(name); }
  /// @}
};

/// The same for the kinds with a caption.
template <class Interface> class CaptionedOf : public ControlOf<Interface> {
 public:
  /// With the caption of the row.
  CaptionedOf(const frame::Row& row, int index, Surface* owner, AnyControl* container, float fontSize)
      : ControlOf<Interface>(row, index, owner, container, fontSize), caption_(row.caption) {}

  /// As host::Captioned has it.
  [[nodiscard]] std::string Caption() const final { return caption_; }
  void SetCaption(const std::string& caption) final { this->Assign(caption_, caption, Aspect::Caption); }

 protected:
  /// Takes the caption over as well.
  void CopyFrom(const AnyControl& original) override {
    ControlOf<Interface>::CopyFrom(original);
    caption_ = static_cast<const CaptionedOf&>(original).caption_;
  }

 private:
  std::string caption_;
};

}  // namespace brivane::controls
