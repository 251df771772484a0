#pragma once

namespace brivane::qt {

/// Teaches Qt's accessibility what a screen reader is to hear of lists, frames and bubbles; does nothing the second
/// time.
void InstallAccessibleWidgets();

}  // namespace brivane::qt
