#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

namespace brivane::app {

/// What the program was asked to do.
enum class Command : std::uint8_t {
  Window,   ///< open the window, on `file` where one was named
  Sample,   ///< write the sample loan file to `file`
  Session,  ///< play the sample session on `file`, pictures and transcript into `outputFolder`
  Help,
  Version,
  Error,  ///< `message` tells what is wrong, in one line
};

struct CommandLine {
  Command command = Command::Window;
  QString file;
  QString outputFolder;
  QString message;
};

/// Exit code for arguments that make no sense.
inline constexpr int kWrongArguments = 2;

/// Reads the arguments that follow the program's name.
[[nodiscard]] CommandLine ReadCommandLine(const QStringList& arguments);

/// The text of --help.
[[nodiscard]] QString HelpText();

}  // namespace brivane::app
