#pragma once

#include <QString>

#include "dossier/office/ClientSession.h"

/// What the bar above a client of an office says, as a decision alone.
namespace brivane::app {

struct BarFacts {
  dossier::ClientSession::State state = dossier::ClientSession::State::Editing;
  bool writes = true;  ///< this account may edit
  QString holder{};    ///< who else edits it; empty for nobody
  QString since{};
  bool asked = false;    ///< it was asked for here
  QString asker{};       ///< who asks for it; empty for nobody
  int tries = 0;         ///< to reach the office
  bool unknown = false;  ///< the outcome of an edit is not known
  bool barred = false;   ///< the office does not take the password any more
  QString said{};        ///< why the office itself lets nobody in; empty where it says nothing
  QString refused{};     ///< why the office is there and cannot be used; empty where it can, or is not there
  bool allowed = true;   ///< this account may still read what is gone
  QString unreadable{};  ///< why what is stored cannot be read; empty where it can
};

struct BarWords {
  QString text{};  ///< empty where there is nothing to be said
  bool ask = false;
  bool takeOver = false;
  bool handOver = false;
  bool reconnect = false;

  friend bool operator==(const BarWords&, const BarWords&) = default;
};

[[nodiscard]] BarWords WordsFor(const BarFacts& facts);

}  // namespace brivane::app
