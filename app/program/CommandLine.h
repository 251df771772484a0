#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace brivane::app {

/// What the program was asked to do.
enum class Command : std::uint8_t {
  Window,         ///< open the window, on `file` where one was named
  Sample,         ///< write the sample loan file to `file`
  Office,         ///< open the window, on the clients of the office `offices[0]`
  OfficeSetUp,    ///< set up the office
  OfficeTrial,    ///< add the clients of a trial office
  OfficeSession,  ///< play two advisers, the pictures into `outputFolder`
  Session,        ///< play the sample session on `file`, pictures and transcript into `outputFolder`
  Help,
  Version,
  Error,  ///< `message` tells what is wrong, in one line
};

struct CommandLine {
  Command command = Command::Window;
  QString file;
  QString outputFolder;
  QStringList offices;  ///< service names or connection words without a password
  QString message;
};

/// Exit code for arguments that make no sense.
inline constexpr int kWrongArguments = 2;

/// The arguments that follow the program's name, as texts; nothing where one is not UTF-8: the name of another file
/// would come of it.
[[nodiscard]] std::optional<QStringList> DecodeArguments(int count, const char* const* arguments);

/// Reads the arguments that follow the program's name.
[[nodiscard]] CommandLine ReadCommandLine(const QStringList& arguments);

/// The text of --help.
[[nodiscard]] QString HelpText();

}  // namespace brivane::app
