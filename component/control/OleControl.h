#pragma once

#include "component/idl/Windows.h"

#include "component/control/Activation.h"
#include "component/control/ControlFace.h"
#include "component/control/InPlaceObject.h"
#include "component/control/OleObject.h"
#include "component/control/Persistence.h"
#include "component/control/Properties.h"
#include "component/control/Site.h"
#include "component/control/Subject.h"
#include "component/control/View.h"

namespace brivane::component {

/// A windowed OLE control around the window of a surface: everything that a container asks of a control, except what
/// the object around it has of its own (its dual interface, its events, its class information).
///
/// A part of the object, with its identity and its count of references; made after what the subject answers from, and
/// gone before it.
///
///     IUnknown* VrijeKolomObject::Find(REFIID iid) {
///       ... own interfaces ...
///       return control_.Find(iid);
///     }
///     heightChanged_ = editor.HeightChanged.Connect([this] { control_.SizeChanged(); FireHeightChanged(); });
class OleControl {
 public:
  explicit OleControl(Subject& subject);
  OleControl(const OleControl&) = delete;
  OleControl& operator=(const OleControl&) = delete;

  /// The interface of the control with that identity, not counted; nothing for another one.
  [[nodiscard]] IUnknown* Find(REFIID iid);

  /// The host sets the colour. Error 387 where a listener to property changes does not agree.
  void PutBackColor(host::Color color);

  /// The surface was laid out: the container is asked for the room. Before the host's own event about it.
  void SizeChanged();
  /// The surface shows something else; a container that draws the control itself draws it anew.
  void ContentChanged() { view_.Changed(); }

  /// A form or a message box of the control comes up, or has gone.
  void Modal(bool up) { activation_.Modal(up); }
  /// The container wants no events now.
  [[nodiscard]] bool EventsFrozen() const { return face_.EventsFrozen(); }
  /// The window in the container; null where the control does not stand in one.
  [[nodiscard]] HWND Window() const { return activation_.Window().Handle(); }

 private:
  Subject& subject_;
  Site site_;
  Properties properties_;
  Activation activation_;
  View view_;
  OleObject object_;
  InPlaceObject inPlace_;
  ControlFace face_;
  StreamPersistence stream_;
  BagPersistence bag_;
  StoragePersistence storage_;
};

}  // namespace brivane::component
