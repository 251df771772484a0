#include "tests/replay/Program.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace brivane::replay::test {

namespace {

/// A folder of its own that goes with the object.
class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "vrijekolom-replay-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for temporary files");
    path_ = name;
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  [[nodiscard]] std::filesystem::path operator/(const char* name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

std::string InShell(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path.string());
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

Outcome RunReplay(const std::vector<std::string>& arguments, const std::string& input) {
  const Folder folder;
  std::ofstream(folder / "in", std::ios::binary) << input;
  std::string command = InShell(REPLAY_PROGRAM);
  for (const std::string& argument : arguments) command += ' ' + InShell(argument);
  command += " <" + InShell((folder / "in").string()) + " >" + InShell((folder / "out").string()) + " 2>" +
             InShell((folder / "err").string());
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadFile(folder / "out"), ReadFile(folder / "err")};
}

}  // namespace brivane::replay::test
