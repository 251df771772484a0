#include <set>

#include <brivane/hostkit/Report.h>

namespace brivane::hostkit {

namespace {

void Line(std::string& text, const char* label, const std::string& value) {
  if (!value.empty()) text += std::string("  ") + label + value + '\n';
}

std::string Count(std::size_t count, const char* one, const char* many) {
  return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

}  // namespace

std::string Text(const Finding& finding) {
  std::string text = finding.member;
  if (finding.check != finding.member) text += " (" + finding.check + ")";
  text += '\n';
  Line(text, "written    ", finding.written);
  Line(text, "came back  ", finding.cameBack);
  Line(text, "wanted     ", finding.wanted);
  Line(text, "contract   ", finding.contract);
  Line(text, "hint       ", finding.hint);
  if (finding.alike > 0)
    Line(text, "as well    ", Count(static_cast<std::size_t>(finding.alike), "more time", "more times"));
  return text;
}

std::string Report::Text() const {
  std::set<std::string> failed;
  for (const Finding& finding : findings) failed.insert(finding.check);
  std::string text = Count(passed.size() + failed.size(), "check", "checks") + ": " + std::to_string(passed.size()) +
                     " passed, " + std::to_string(failed.size()) + " failed; " +
                     Count(findings.size(), "finding", "findings") + ", " + std::to_string(leftOut.size()) +
                     " left out\n";
  int number = 0;
  for (const Finding& finding : findings) text += '\n' + std::to_string(++number) + ". " + hostkit::Text(finding);
  if (!leftOut.empty()) text += "\nLeft out\n";
  for (const Exception& exception : leftOut) text += "  " + exception.what + ": " + exception.why + '\n';
  return text;
}

}  // namespace brivane::hostkit
