#include <exception>
#include <filesystem>
#include <string>

#include <brivane/session/CommandLine.h>
#include <brivane/session/Main.h>
#include <brivane/session/Play.h>

namespace brivane::session {

namespace {

constexpr const char kHelp[] = R"page( [--check] [--own-case] FILE

Plays a session of edits on this program's host, with the real controls and without a screen, and
prints what happened: one JSON object a line, in order. FILE is a replay document; - stands for
standard input.

  --check      read and check the document, run nothing, print nothing
  --own-case   pass over the case and the header texts that a document describes (dossier, headers);
               without it such a document is refused
  --help       print this page

The steps are played on the case that the host brings.

EXIT CODE
  0   the session ran (whatever the controls reported), or the document is in order
  1   the transcript could not be written
  2   the document or the host cannot be used: one line on standard error tells why
)page";

std::string NameOf(int count, char** arguments) {
  return count > 0 ? std::filesystem::path(arguments[0]).filename().string() : "session";
}

DescribedCase Described(const Request& request) {
  return request.ownCase ? DescribedCase::PassedOver : DescribedCase::Refused;
}

/// A host that cannot be made is told from a document that is wrong.
hostkit::HostFactory Named(const hostkit::HostFactory& factory) {
  return [&factory] {
    try {
      return factory();
    } catch (const std::exception& problem) {
      throw BadInput("the host", problem.what());
    }
  };
}

}  // namespace

int Main(int count, char** arguments, const hostkit::HostFactory& factory) {
  const Program program{
      .help = [&] { return "Usage: " + NameOf(count, arguments) + kHelp; },
      .version = {},
      .takesOwnCase = true,
      .check = [](const std::string& document, const Request& request) { Check(document, Described(request)); },
      .play = [&](const std::string& document, const Request& request,
                  const LineSink& sink) { Play(Named(factory), document, sink, Described(request)); }};
  return Run(program, count, arguments);
}

}  // namespace brivane::session
