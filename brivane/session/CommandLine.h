#pragma once

#include <functional>
#include <string>

#include <brivane/session/play/LineSink.h>

/// What programs that play documents have in common: their command line, reading, printing and exit codes.
namespace brivane::session {

/// What the command line asks for.
struct Request {
  enum class What { Play, Check, Help, Version } what = What::Play;
  std::string file;      ///< - for standard input
  bool ownCase = false;  ///< the case that the document describes is passed over
};

/// A program that plays documents.
struct Program {
  std::function<std::string()> help;
  std::string version;  ///< the line that --version prints; empty where there is no such option
  bool takesOwnCase;    ///< whether there is --own-case
  std::function<void(const std::string& document, const Request&)> check;
  std::function<void(const std::string& document, const Request&, const LineSink&)> play;
};

/// Does what the command line asks for; answers the exit code.
[[nodiscard]] int Run(const Program& program, int count, char** arguments);

}  // namespace brivane::session
