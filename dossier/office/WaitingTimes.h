#pragma once

#include <chrono>

namespace brivane::dossier {

/// How long the program waits for an office, and how often it looks: docs/office.md tells them. They stand in one place
/// so that a test of something else can be patient, however slow its machine is.
struct WaitingTimes {
  using Time = std::chrono::milliseconds;

  // For an answer.
  Time much{15000};    ///< a lot is asked
  Time edit{8000};     ///< it has to be told whether it was stored
  Time little{5000};   ///< the server answered just now, or is asked for little
  Time moment{1000};   ///< on the way out
  Time silence{5000};  ///< nobody waits for it
  Time overdue{500};   ///< the last time after that
  // For a session.
  Time back{1000};        ///< whether the office is there again, in the middle of an edit
  Time connecting{3000};  ///< to begin, where somebody waits; the network counts in whole seconds
  Time ending{1000};      ///< to be gone at the server after its connection broke
  Time leaving{500};      ///< to be taken leave of
  // Between two looks: nobody tells of a session that ended.
  Time reading{2000};   ///< whether who has the client is gone
  Time editing{10000};  ///< whether the connection is still there

  /// Those that hold, on any thread.
  [[nodiscard]] static WaitingTimes Now();
  /// These hold from now on.
  static void Set(const WaitingTimes& times);
};

}  // namespace brivane::dossier
