#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include <brivane/controls/Control.h>
#include <brivane/frame/Texts.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Surface.h>

namespace brivane::controls {

class OptionButton;
class ToolkitBase;

/// What a person reads on a veiled surface, in Dutch.
inline const std::string kVeil = frame::Texts::In(frame::Language::Dutch).Of(frame::TextId::NothingOpen);

/// The controls of one design table, on a surface of its own, embedded in another one, or on a form.
class BRIVANE_API Surface : public AnyControl {
 public:
  ~Surface() override;

  /// The implementation behind a surface that one of these toolkits made.
  [[nodiscard]] static Surface& Of(host::Surface& surface);
  /// The same surface as the logic sees it.
  [[nodiscard]] virtual host::Surface& HostSurface() = 0;

  /// The design that it was made of.
  [[nodiscard]] const frame::Design& Table() const { return *design_; }
  /// The toolkit that made it, or the surface around it.
  [[nodiscard]] ToolkitBase& MadeBy() const { return *toolkit_; }

  /// The container sizes the surface: one Resize, also to the present size.
  void Size(host::Twips width, host::Twips height);

  /// A veiled surface stands for nothing: a person can act on nothing there, and what draws it says so in place of
  /// what stands on it. Code sees and sets the controls as always.
  void SetVeiled(bool veiled) { Assign(veiled_, veiled, Aspect::Veil); }
  /// Whether it is veiled; an embedded surface has a veil of its own.
  [[nodiscard]] bool IsVeiled() const { return veiled_; }

  /// A control by name, and by index in a control array; "Toelichting.jnAO" for one on an embedded
  /// surface. Nothing when there is none.
  [[nodiscard]] AnyControl* Find(std::string_view name, int index = frame::kNoIndex);
  /// Every control in the order of creation, as Controls() of the interface gives them.
  [[nodiscard]] const std::vector<std::unique_ptr<AnyControl>>& Made() const { return made_; }

 protected:
  friend class ToolkitBase;

  /// A surface embedded in another one.
  Surface(const frame::Row& row, Surface& owner, AnyControl& container);
  /// A surface of its own; `row` stands for it where a control has a row.
  Surface(std::unique_ptr<frame::Row> row, ToolkitBase& toolkit);

  /// Makes the controls of the table, each with its peer. Once, after construction.
  void Build();
  /// Makes one control of a row; `index` is the element's place in its array.
  AnyControl& Add(const frame::Row& row, int index, const AnyControl* original);

  [[nodiscard]] bool Present() const override { return !veiled_; }
  /// Raises Resize where the size differs.
  void PutPlace(const host::Place& place) override;
  /// Raises BackColorSet, also for the colour that it has.
  void PutBackColor(host::Color color) override;

  /// What the functions of host::Surface answer and set.
  /// @{
  [[nodiscard]] host::Control& ControlAt(std::size_t row) const { return *controls_[row]; }
  [[nodiscard]] const std::vector<host::Control*>& HostControls() const { return controls_; }
  [[nodiscard]] bool IsBold() const { return bold_; }
  void PutBold(bool bold) { bold_ = bold; }
  [[nodiscard]] host::Twips MeasureText(std::string_view text) const;
  /// @}

 private:
  [[nodiscard]] AnyControl* ContainerOf(const frame::Row& row);
  void JoinGroup(OptionButton& option);

  std::unique_ptr<frame::Row> ownRow_;
  const frame::Design* design_;
  ToolkitBase* toolkit_;
  std::vector<std::unique_ptr<AnyControl>> made_;
  std::vector<host::Control*> controls_;
  bool bold_ = false;
  bool veiled_ = false;
};

/// A surface behind its interface.
template <class Interface> class SurfaceOf : public ControlOf<Interface, Surface> {
 public:
  using ControlOf<Interface, Surface>::ControlOf;

  /// As host::Surface has it, of what Surface keeps.
  /// @{
  [[nodiscard]] host::Surface& HostSurface() final { return *this; }
  [[nodiscard]] host::Control& At(std::size_t row) final { return this->ControlAt(row); }
  [[nodiscard]] const std::vector<host::Control*>& Controls() const final { return this->HostControls(); }
  [[nodiscard]] bool FontBold() const final { return this->IsBold(); }
  void SetFontBold(bool bold) final { this->PutBold(bold); }
  [[nodiscard]] host::Twips TextWidth(std::string_view text) const final { return this->MeasureText(text); }
  /// @}
};

/// The surface of a control, of its own or embedded.
class BRIVANE_API ControlSurface final : public SurfaceOf<host::Surface> {
 public:
  using SurfaceOf::SurfaceOf;
};

}  // namespace brivane::controls
