#pragma once

#include <string>

#include <brivane/controls/Surface.h>
#include <brivane/toolkits/web/Toolkit.h>

namespace brivane::web {

/// What a person does to an element of the page. The numbers stand in jobs.js.
enum class Deed { Key = 9, Typed, Pasted, Left, Picked, Letter, Close };

/// One of them, as the page tells it.
struct Done {
  Deed deed;
  NodeId node = kNoNode;
  int number = 0;    ///< what was picked, or what was held down with a key
  std::string text;  ///< a key, or what was typed or pasted
};

/// Hands it to what shows the element; whether it meant something. A letter that was pressed in no form leads to what
/// stands on the surface. Failures go to the toolkit's listener.
bool Does(Toolkit& toolkit, controls::Surface& surface, const Done& done);

/// Whether it changes anything that the focus leaves an element, before that is told as a deed: mostly nothing was
/// typed.
[[nodiscard]] bool MindsBeingLeft(const Toolkit& toolkit, NodeId node);

/// The day at which the calendar of an element opens; none where no day stands in it.
[[nodiscard]] host::Date DayIn(const Toolkit& toolkit, NodeId node);

}  // namespace brivane::web
