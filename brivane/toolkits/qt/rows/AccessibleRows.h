#pragma once

#include <brivane/controls/Peer.h>

/// What a screen reader hears of the painted rows of a form: each cell is an element of its own.
namespace brivane::qt {

class CellPeer;
class RowCanvas;

/// Teaches Qt's accessibility about canvases; does nothing the second time.
void InstallAccessibleRows();
/// A cell goes away.
void ForgetAccessible(const CellPeer& cell);
/// A cell shows something else.
void TellAccessible(RowCanvas& canvas, CellPeer& cell, controls::Aspect aspect);
/// A cell that the canvas works itself took the focus.
void TellFocus(RowCanvas& canvas, CellPeer& cell);

}  // namespace brivane::qt
