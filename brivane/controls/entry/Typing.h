#pragma once

#include <string_view>

#include <brivane/controls/entry/Content.h>
#include <brivane/controls/entry/TypedDate.h>
#include <brivane/host/Export.h>

/// What a box makes of keys before it has content: more than ReadContent, which takes what is written out.
namespace brivane::controls {

/// What is typed, as it is handed over: sums in amounts and percentages, and the short ways to a date.
[[nodiscard]] BRIVANE_API TypedContent ReadTyped(std::string_view typed, frame::Format format,
                                                 const DateOrigin& origin);

/// What a box says beside it of what it makes of a text: "= 15,00", "dinsdag 1 april 2031". Empty where there is
/// nothing to say that the text does not.
[[nodiscard]] BRIVANE_API frame::Phrase NoteOf(std::string_view typed, const TypedContent& content,
                                               frame::Format format);

}  // namespace brivane::controls
