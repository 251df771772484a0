#pragma once

#include <functional>
#include <string_view>

namespace brivane::session {

/// Takes a line of a transcript, a JSON object in UTF-8 without the end of the line, as it happens.
using LineSink = std::function<void(std::string_view line)>;

}  // namespace brivane::session
