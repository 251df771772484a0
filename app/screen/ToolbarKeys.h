#pragma once

class QToolBar;

namespace brivane::app {

/// Makes every button of a toolbar reachable by keys: Tab leads to the toolbar as to one thing, the arrows, Home and
/// End lead along its buttons, and Tab leads on. It is entered where it was left.
void ReachByKeys(QToolBar& toolbar);

}  // namespace brivane::app
