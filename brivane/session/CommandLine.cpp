#include <cstdio>
#include <exception>
#include <new>
#include <string_view>
#include <vector>

#include <brivane/session/CommandLine.h>
#include <brivane/session/document/BadInput.h>

namespace brivane::session {

namespace {

/// The exit codes of the program.
enum Exit { kDone = 0, kCannotPrint = 1, kRefused = 2 };

Request ReadCommandLine(const Program& program, const std::vector<std::string_view>& arguments) {
  Request request;
  std::vector<std::string> files;
  bool options = true;
  for (const std::string_view argument : arguments) {
    if (options && (argument == "--help" || argument == "-h"))
      request.what = Request::What::Help;
    else if (options && argument == "--version" && !program.version.empty())
      request.what = Request::What::Version;
    else if (options && argument == "--check")
      request.what = Request::What::Check;
    else if (options && argument == "--own-case" && program.takesOwnCase)
      request.ownCase = true;
    else if (options && argument == "--")
      options = false;
    else if (options && argument.size() > 1 && argument.front() == '-')
      throw BadInput(std::string(argument), "no such option (--help tells which there are)");
    else
      files.emplace_back(argument);
  }
  if (request.what == Request::What::Help || request.what == Request::What::Version) return request;
  if (files.empty()) throw BadInput("command line", "expected a file to replay, or - for standard input");
  if (files.size() > 1) throw BadInput("command line", "expected one file, not " + std::to_string(files.size()));
  request.file = files.front();
  return request;
}

/// A document is written by hand or recorded in a session; larger is a mistake in the name.
constexpr std::size_t kMostBytes = std::size_t{64} << 20;

std::string ReadAll(const std::string& name) {
  const bool standard = name == "-";
  std::FILE* const file = standard ? stdin : std::fopen(name.c_str(), "rb");
  if (file == nullptr) throw BadInput(name, "cannot be opened");
  std::string text;
  char block[65536];
  for (std::size_t size; text.size() <= kMostBytes && (size = std::fread(block, 1, sizeof block, file)) > 0;) {
    text.append(block, size);
  }
  const bool failed = std::ferror(file) != 0;
  if (!standard) std::fclose(file);
  if (text.size() > kMostBytes) throw BadInput(standard ? "standard input" : name, "is larger than 64 MiB");
  if (failed) throw BadInput(standard ? "standard input" : name, "cannot be read");
  return text;
}

void Print(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void Play(const Program& program, const Request& request) {
  const std::string document = ReadAll(request.file);
  // A line is on its way as soon as it is complete, also into a pipe.
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  program.play(document, request, [line = std::string()](std::string_view text) mutable {
    line.assign(text) += '\n';
    Print(line);
  });
}

void Serve(const Program& program, const Request& request) {
  switch (request.what) {
    case Request::What::Help: Print(program.help()); break;
    case Request::What::Version: Print(program.version + '\n'); break;
    case Request::What::Check: program.check(ReadAll(request.file), request); break;
    case Request::What::Play: Play(program, request); break;
  }
}

}  // namespace

int Run(const Program& program, int count, char** arguments) {
  int code = kDone;
  try {
    Serve(program, ReadCommandLine(program, {arguments + (count > 0 ? 1 : 0), arguments + count}));
  } catch (const std::bad_alloc&) {
    std::fprintf(stderr, "the document: there is too little memory to read or replay it\n");
    code = kRefused;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    code = kRefused;
  }
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    std::fprintf(stderr, "standard output: cannot be written\n");
    return kCannotPrint;
  }
  return code;
}

}  // namespace brivane::session
