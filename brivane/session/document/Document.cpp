#include <limits>

#include <brivane/session/document/Document.h>
#include <brivane/session/document/LogNames.h>
#include <brivane/session/document/Steps.h>

namespace brivane::session {

namespace {

std::set<Log> ReadLogs(const Value& value) {
  std::set<Log> logs;
  for (std::size_t i = 0; i < value.Size(); ++i) {
    const Value element = value.Element(i);
    const std::string name = element.Text();
    bool known = false;
    for (const auto& [text, log] : kLogNames)
      if (text == name) known = logs.insert(log).second || true;
    if (!known) element.Refuse("no log named " + Quoted(name));
  }
  return logs;
}

host::Date ReadToday(const Value& value) {
  const host::Date today = value.CalendarDate();
  // It would be taken for a document that leaves the date to the system.
  if (today.IsNone()) value.Refuse("30 December 1899 stands for no date");
  return today;
}

float ReadTwipsPerPixel(const std::optional<Value>& value, float otherwise) {
  if (!value) return otherwise;
  const float twips = value->Single();
  if (!(twips > 0)) value->Refuse("expected a number above 0");
  return twips;
}

Op ReadOp(const Value& value) {
  const std::string name = value.Text();
  if (name == "get") return Op::Get;
  if (name == "set") return Op::Set;
  if (name == "call") return Op::Call;
  value.Refuse("expected \"get\", \"set\" or \"call\"");
}

FaultPlan ReadFault(const Value& value) {
  value.Keys({"member", "op", "nth", "number", "description", "source"});
  const Value name = value.Member("member");
  const std::optional<Member> member = FindMember(name.Text());
  if (!member) name.Refuse("no host member named " + Quoted(name.Text()));
  const auto text = [&](std::string_view key) {
    const std::optional<Value> found = value.Find(key);
    return found ? found->Text() : std::string();
  };
  return {
      .member = *member,
      .op = ReadOp(value.Member("op")),
      .nth = static_cast<std::uint32_t>(value.Member("nth").WholeWithin(1, std::numeric_limits<std::int32_t>::max())),
      .number = value.Member("number").Whole<std::int32_t>(),
      .description = text("description"),
      .source = text("source")};
}

}  // namespace

void ReadMachine(const Value& value, Document& document) {
  if (const auto today = value.Find("today")) document.today = ReadToday(*today);
  if (const auto title = value.Find("title")) document.title = title->Text();
  if (const auto locale = value.Find("locale")) document.locale = locale->Text();
  if (const auto screen = value.Find("screen")) {
    screen->Keys({"TwipsPerPixelX", "TwipsPerPixelY"});
    document.twipsPerPixelX = ReadTwipsPerPixel(screen->Find("TwipsPerPixelX"), document.twipsPerPixelX);
    document.twipsPerPixelY = ReadTwipsPerPixel(screen->Find("TwipsPerPixelY"), document.twipsPerPixelY);
  }
}

void ReadLog(const Value& value, Document& document) {
  if (const auto log = value.Find("log")) document.log = ReadLogs(*log);
}

void ReadFaultsAndSteps(const Value& value, Document& document) {
  if (const auto faults = value.Find("faults"))
    for (std::size_t i = 0; i < faults->Size(); ++i) document.faults.push_back(ReadFault(faults->Element(i)));
  document.steps = ReadSteps(value.Member("steps"), StepList::Session);
}

Document ReadDocument(std::string_view text, DescribedCase described) {
  const Json json = ParseJson(text);
  const Value value(json, "");
  value.Keys(kDocumentKeys);
  Document document;
  ReadMachine(value, document);
  ReadLog(value, document);
  if (described == DescribedCase::Refused)
    for (const std::string_view key : {kCase, kHeaders})
      if (const auto found = value.Find(key))
        found->Refuse("the host brings a case and header texts of its own: leave this out, or have it passed over");
  ReadFaultsAndSteps(value, document);
  return document;
}

}  // namespace brivane::session
