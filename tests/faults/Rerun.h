#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "replay/document/Document.h"
#include "tests/faults/Follower.h"
#include <brivane/session/document/Json.h>

namespace brivane::faults {

/// A session as it went, with at most one failure of the host.
struct Run {
  std::vector<std::string> lines;
  Follower follower;
  std::uint64_t accesses = 0;
  /// How many lines there were before each access, and the case at that moment. Kept for a run without a failure.
  std::vector<std::size_t> linesBefore;
  std::vector<dossier::DossierGegevens> caseBefore;
  /// The case when the host failed, and when the failure had been handled.
  dossier::DossierGegevens atFailure;
  dossier::DossierGegevens afterHandling;
  std::size_t linesAtFailure = 0;
  std::string struckMember;
  /// The case that the session left.
  dossier::DossierGegevens left;
  bool editorMade = false;
  bool handlerFailed = false;
};

/// What else fails: the error handler that the failure calls, at its first access of the host or at its report.
enum class Handling { Works, CannotBegin, CannotReport };

/// Runs the document; the access at that position fails (0: none does). A step that the failure has made impossible,
/// such as picking an entry of a list that was not filled, is left out.
[[nodiscard]] Run RunFailing(replay::Document document, std::uint64_t position, Handling handling = Handling::Works);

/// Binds the editor anew after the session, makes one edit, and asks for a dump.
inline constexpr char kEdited[] = "hersteld";
[[nodiscard]] replay::Document WithRecovery(const replay::Document& document);
/// How many steps that adds.
inline constexpr std::size_t kRecoverySteps = 3;

/// What a fresh editor shows of that case, once bound: set up as the document sets up its own.
[[nodiscard]] replay::Json FreshDump(const replay::Document& document, const dossier::DossierGegevens& state);

/// Of a dump, what is on show: hidden boxes keep what they held.
[[nodiscard]] replay::Json OnShow(const replay::Json& dump);

}  // namespace brivane::faults
