#pragma once

#include <string>
#include <string_view>

#include <brivane/controls/Action.h>
#include <brivane/frame/Design.h>
#include <brivane/frame/Phrase.h>
#include <brivane/host/Export.h>

/// Between the content of a text box and what stands in it to be read and typed over.
namespace brivane::controls {

/// How a box of a format shows its content.
[[nodiscard]] BRIVANE_API std::string ShowContent(const controls::BoxValue& content, frame::Format format);

/// What a typed text is as content of a box; a reason to refuse it where it is not of the format.
struct TypedContent {
  controls::BoxValue value = {};  ///< empty where it is refused
  frame::Phrase refusal = {};     ///< empty where it is taken
};
/// Reads what stands in a box, as it is written out.
[[nodiscard]] BRIVANE_API TypedContent ReadContent(std::string_view typed, frame::Format format);
/// The same of what is handed over: an amount that was emptied is 0, and is shown as what it counts for.
[[nodiscard]] BRIVANE_API TypedContent ReadEntry(std::string_view typed, frame::Format format);

/// A box is one line: each run of line ends becomes a blank.
[[nodiscard]] BRIVANE_API std::string OneLine(std::string_view text);

}  // namespace brivane::controls
