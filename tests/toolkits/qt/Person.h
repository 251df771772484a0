#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include "tests/toolkits/conformance/Keys.h"
#include <brivane/controls/Control.h>

/// What a person does with mouse and keyboard, by the events of the window system: a click lands on
/// whatever is there, a key goes to whatever has the focus.
namespace brivane::test {

/// A key as Qt tells of it.
struct Stroke {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

[[nodiscard]] Stroke StrokeOf(Key key, With with = With::None);
[[nodiscard]] Qt::KeyboardModifiers ModifierOf(With with);

/// Puts a widget in a window of its own that is on the screen and active.
void ShowActive(QWidget& widget);

void Click(QWidget& widget, QPoint at);
/// Clicks in the middle.
void Click(QWidget& widget);
void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Press(Key key, With with = With::None);
void Type(const QString& text);
/// Replaces what stands in the focused box.
void TypeOver(const QString& text);

/// The widget that shows a control, or the canvas that paints it.
[[nodiscard]] QWidget* WidgetFor(controls::AnyControl& control);
/// Where a control is on that widget.
[[nodiscard]] QRect PlaceOn(controls::AnyControl& control);

/// Does an action as a person does it.
void Do(controls::AnyControl& control, const controls::Action& action);

}  // namespace brivane::test
