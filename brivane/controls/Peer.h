#pragma once

#include <cstdint>

#include <brivane/host/Export.h>
#include <brivane/host/model/Hoofdvenster.h>

namespace brivane::controls {

/// A side of a control's state that a peer shows.
enum class Aspect : std::uint8_t {
  Value,       ///< content of a box; value of a toggle, option or check box
  Enabled,     ///< whether a person can act on it
  Visible,     ///< whether it is on show
  Caption,     ///< the text of its own
  Place,       ///< where it stands, and its size
  FontSize,    ///< in points
  BackColor,   ///< the background
  Locked,      ///< whether a text box is written by code alone
  Entries,     ///< a list's entries, all anew; the index goes with them
  EntryAdded,  ///< one more entry at the end of a list
  ListIndex,   ///< the selected entry of a list
  Columns,     ///< a list view's columns
  Rows,        ///< a list view's rows, with their bold marks
  Selection,   ///< a list view's selected row
  Veil,        ///< whether a surface is veiled
};

/// What draws a control: shows the state that the control holds, and hands what a person does to
/// AnyControl::Perform. It keeps nothing of its own but what is being typed.
///
/// The control makes its peer when it is made itself, and tells it of every change after the change,
/// before the event. What a peer shows at first is the control's state when the peer is made.
class BRIVANE_API Peer {
 public:
  Peer() = default;
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;
  virtual ~Peer() = default;

  /// Shows a side of the state that has changed. It acts on no control, and does not fail.
  virtual void Refresh(Aspect aspect) = 0;
  /// Code moves the input focus here.
  virtual void TakeFocus() {}
};

/// What draws a form.
class BRIVANE_API FormPeer : public Peer {
 public:
  /// Shows the window modally over its owner; returns when Unload was called or the window was closed.
  virtual void ShowModal(host::Hoofdvenster* eigenaar) = 0;
  /// Takes the window off the screen and ends ShowModal after the running event.
  virtual void Unload() = 0;
};

}  // namespace brivane::controls
