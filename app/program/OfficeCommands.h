#pragma once

#include <QString>

namespace brivane::app {

/// What the program does with an office on the command line, without a window. Each tells what it did, or in one line
/// why not, and answers the exit code. Where the server wants a password that libpq does not find, it is asked for on
/// the terminal.

/// Makes the schema of the office with its roles, or brings it up to date.
[[nodiscard]] int SetUpOfficeOf(const QString& words);
/// Adds the made-up clients of a trial office to the account's team.
[[nodiscard]] int AddTrialClients(const QString& words);

}  // namespace brivane::app
