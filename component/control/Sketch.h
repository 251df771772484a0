#pragma once

#include "component/idl/Windows.h"

#include <brivane/controls/Surface.h>

namespace brivane::component {

/// Whether what is drawn on a context is kept as the calls that draw it.
[[nodiscard]] bool IsMetafile(HDC context);

/// Draws the controls of a surface of the native toolkit in lines and text, stretched over `bounds`: for a metafile,
/// in which a picture of the screen would take a thousand times the room and be no sharper on paper.
void SketchSurface(const controls::Surface& surface, HDC target, const RECT& bounds);

}  // namespace brivane::component
