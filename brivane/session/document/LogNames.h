#pragma once

#include <array>
#include <string_view>
#include <utility>

#include <brivane/session/document/Document.h>

namespace brivane::session {

/// How a document names the lines that a transcript can hold.
inline constexpr std::array<std::pair<std::string_view, Log>, 7> kLogNames{{{"trace", Log::Trace},
                                                                            {"writes", Log::Writes},
                                                                            {"calls", Log::Calls},
                                                                            {"events", Log::Events},
                                                                            {"messages", Log::Messages},
                                                                            {"results", Log::Results},
                                                                            {"reads", Log::Reads}}};

}  // namespace brivane::session
