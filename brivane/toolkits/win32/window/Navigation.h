#pragma once

#include <vector>

#include <brivane/toolkits/win32/window/ControlWindow.h>

/// How keys move the focus over a surface: the tab order of the design, the arrows in a group of options and
/// in a column of rows, the mnemonics, Enter and Escape of a form.
namespace brivane::win32 {

enum class Direction { Forward, Back };

/// What the Tab key visits now, in the order of the design: a group of options is one stop, and the rows of a
/// form follow each other where their templates stand.
[[nodiscard]] std::vector<ControlWindow*> Stops(const controls::Surface& root);

/// Goes to the first or the last stop; false where there is none.
bool FocusEnd(const controls::Surface& root, Direction direction);
/// Goes to the next stop, after the box that is being edited was handed over. A form goes round; past the last
/// stop of another surface it is false, and the container's to go on. True on a refusal, which keeps the focus.
bool Step(ControlWindow& from, Direction direction);
/// A key that leads away from a control, or that a form knows; false for any other.
bool MoveByKey(ControlWindow& from, WPARAM key);
/// Does what the letter stands for on this surface; false where it stands for nothing.
bool PressMnemonic(const controls::Surface& root, wchar_t letter);

/// Goes to the next element of a control array of rows; false at its end or on a refusal.
bool StepInColumn(ControlWindow& from, Direction direction);
/// Goes on by as many elements as stand below each other, or to the first or last one where there are fewer.
void StepPage(ControlWindow& from, Direction direction);
/// Hands over and goes to the element below, or past the last one to what follows the rows.
void EnterAndGoDown(ControlWindow& from);

/// The focus leaves a window that is about to be hidden or disabled; what is being typed there is not handed
/// over.
void LeaveInside(const ControlWindow& window);

}  // namespace brivane::win32
