#pragma once

#include "component/idl/Windows.h"

#include <string>

#include "component/control/Units.h"
#include <brivane/host/Color.h>

namespace brivane::component {

/// Where the focus goes when it enters a control.
enum class TabEnd { First, Last };

/// What the OLE frame around a control (OleControl) asks of the object that it is part of.
///
/// An operation that fails throws; the frame answers the container with the failure. Every operation may be called
/// again from inside an event that the object raises.
class Subject {
 public:
  virtual ~Subject() = default;

  /// The object as containers know it, whose count of references is the only one.
  [[nodiscard]] virtual IUnknown& Outer() = 0;
  [[nodiscard]] virtual const CLSID& ClassId() const = 0;
  /// The name of the class that a person reads.
  [[nodiscard]] virtual const wchar_t* UserType() const = 0;

  /// The window of the control's surface, a child window: it exists from the start, without an owner to be seen in
  /// (under a hidden parent), and for as long as the object.
  [[nodiscard]] virtual HWND Window() = 0;

  /// The size of the surface in twips of the screen: 1440 to the inch whatever its scale.
  [[nodiscard]] virtual component::Extent Extent() const = 0;
  /// The container gives the width. The height is the control's own; it may change by this.
  virtual void SetWidth(host::Twips width) = 0;

  /// Draws everything that the control shows in lines and text, stretched over `bounds`: on what keeps the calls.
  virtual void Sketch(HDC target, const RECT& bounds) = 0;

  [[nodiscard]] virtual host::Color BackColor() const = 0;
  virtual void SetBackColor(host::Color color) = 0;
  /// The same, where the colour until now was the container's: what took that one takes this one.
  virtual void FollowBackColor(host::Color color) = 0;
  /// The container's font, as far as the control goes along with it.
  virtual void FollowFont(float points) = 0;

  /// A key for what has the focus in the control: Tab inside it, arrows, mnemonics, Enter. False where the
  /// control has no use for it, as with Tab at its ends. A letter with Alt (WM_SYSCHAR) may come from anywhere.
  [[nodiscard]] virtual bool Navigate(const MSG& message) = 0;
  virtual void Focus(TabEnd end) = 0;
  /// Hands over what is being typed, before the control leaves the screen; where that is refused, it is dropped.
  virtual void HandOver() = 0;
  /// The letters that, with Alt, go to a part of the control.
  [[nodiscard]] virtual std::wstring Mnemonics() const = 0;

  /// Whether all listeners to changes of properties agree with a change of this one.
  [[nodiscard]] virtual bool MayChange(DISPID property) = 0;
  virtual void HasChanged(DISPID property) = 0;

  /// A person is asked whether a change of the control's own properties is to be kept with its form.
  [[nodiscard]] virtual bool WantsToKeep() = 0;

  /// Ends what is going on in the control, quietly: a form and questions that are up go, and what was running is
  /// abandoned when what it waits for comes back.
  virtual void Abandon() = 0;
  /// Lets go of everything of the host's: the control is being closed. It may be bound again later.
  virtual void LetGo() = 0;
};

}  // namespace brivane::component
