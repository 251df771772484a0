#pragma once

#include <optional>
#include <string>
#include <vector>

#include "replay/document/Document.h"
#include "replay/play/Session.h"

namespace brivane::latebound {

/// What came of a session.
struct Played {
  std::vector<std::string> lines;
  std::string refusal;  ///< a step that could not run as it is written; else empty
};

/// Runs a document against the component that `make` makes.
[[nodiscard]] Played Play(const replay::Document& document, replay::MakeSubject make);

/// Where two transcripts part: the place and both lines, with the step that they belong to; nothing where they agree.
[[nodiscard]] std::optional<std::string> FirstDifference(const std::vector<std::string>& expected,
                                                         const std::vector<std::string>& actual);

}  // namespace brivane::latebound
