#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <brivane/host/Color.h>
#include <brivane/host/Event.h>
#include <brivane/host/Twips.h>

namespace brivane::host {

/// What a control is. Toolkits make one class for each; its interface has the name of the kind.
enum class Kind : std::uint8_t {
  Frame,         ///< host::Frame
  Label,         ///< host::Label
  TextBox,       ///< host::TextBox
  JaNee,         ///< host::JaNee
  Hint,          ///< host::Hint
  OptionButton,  ///< host::OptionButton
  CheckBox,      ///< host::CheckBox
  ListBox,       ///< host::ListBox
  Button,        ///< host::Button
  ListView,      ///< host::ListView
  Surface        ///< host::Surface: an embedded control, or a surface or form of its own
};

/// A measure that a control may have. Lengths are twips, the font size is points.
enum class Measure : std::uint8_t {
  Left,      ///< of Place
  Top,       ///< of Place
  Width,     ///< of Place
  Height,    ///< of Place
  FontSize,  ///< of the text in it
  X1,        ///< where a line begins, from the left
  X2,        ///< where a line ends, from the left
  Y1,        ///< where a line begins, from the top
  Y2         ///< where a line ends, from the top
};

/// What every control has. Nothing here raises an event, except that changing a surface's size
/// raises its Resize.
///
/// A control belongs to the surface that it stands on and lives as long as that. The logic writes also what is disabled
/// or hidden; only what a person does is kept from those.
class Control {
 public:
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  /// Name in the design; the elements of a control array share one.
  [[nodiscard]] virtual std::string_view Name() const = 0;
  /// Which of the interfaces stands behind it.
  [[nodiscard]] virtual host::Kind Kind() const = 0;

  /// The control's own state, whatever its containers have: a person can act on it where all of them are enabled too.
  [[nodiscard]] virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  /// The control's own visibility, whatever its containers show.
  [[nodiscard]] virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;

  /// Where it stands on its frame, surface or form, in twips.
  [[nodiscard]] virtual host::Place Place() const = 0;
  /// Moves and sizes in one step; a surface whose size changes raises one Resize.
  virtual void Move(const host::Place& place) = 0;

  /// A measure, or nothing where the control has no such property.
  [[nodiscard]] virtual std::optional<float> Read(Measure measure) const = 0;
  /// Writes a measure that the control has; writing one that it lacks is ignored.
  virtual void Write(Measure measure, float value) = 0;

  /// The background colour, or nothing where the control has none; setting it does nothing then.
  [[nodiscard]] virtual std::optional<Color> BackColor() const = 0;
  virtual void SetBackColor(Color color) = 0;

  /// What a screen reader calls the control, where its design's label does not say enough ("Bedrag jaar 7").
  virtual void SetAccessibleName(const std::string& /*name*/) {}
};

/// A control that shows a fixed text of its own.
class Captioned : public Control {
 public:
  /// The text in UTF-8, without a mark for its mnemonic: an "&" is an "&".
  [[nodiscard]] virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
};

}  // namespace brivane::host
