#include <charconv>
#include <utility>

#include <brivane/session/document/FieldJson.h>
#include <brivane/session/play/Transcript.h>

namespace brivane::session {

namespace {

constexpr std::string_view kFormName = "frmScenario";

Json ToJson(const MemberValue& value) {
  return std::visit([](const auto& held) { return FieldJson(held); }, value);
}

std::string_view InWords(host::MessageAnswer answer) {
  switch (answer) {
    case host::MessageAnswer::Ok: return "OK";
    case host::MessageAnswer::Yes: return "Ja";
    case host::MessageAnswer::No: return "Nee";
  }
  return "";
}

}  // namespace

Transcript::Transcript(LineSink sink, std::set<Log> log) : sink_(std::move(sink)) {
  for (const Log wanted : log) wanted_[static_cast<std::size_t>(wanted)] = true;
}

void Transcript::Print(const Json& line) {
  if (!sink_) return;
  line_.clear();
  AppendLine(line_, line);
  sink_(line_);
}

void Transcript::Print(Log log, const Json& line) {
  if (Wants(log)) Print(line);
}

void Transcript::StepBegins(const std::string& number, const std::string& name) {
  Json line = Json::object();
  if (number.find('.') == std::string::npos)
    line["step"] = std::stoull(number);
  else
    line["step"] = number;
  line["do"] = name;
  Print(line);
}

void Transcript::Result(const std::string& step, bool cancel) {
  Print(Log::Results, {{"result", step}, {"Cancel", cancel}});
}

void Transcript::Failed(std::int32_t number, const std::string& description) {
  Print(Log::Results, {{"failed", {{"number", number}, {"description", description}}}});
}

void Transcript::Ignored(const std::string& control) { Print(Log::Results, {{"ignored", control}}); }

void Transcript::Event(std::string_view name) { Print(Log::Events, {{"event", name}}); }

void Transcript::RefreshTopDisplay(const std::string& text) {
  Print(Log::Events, {{"event", "RefreshTopDisplay"}, {"text", text}});
}

void Transcript::Message(const std::string& title, const std::string& text, host::MessageStyle style,
                         host::MessageAnswer answer) {
  Print(Log::Messages, {{"message", {{"title", title}, {"text", text}, {"style", static_cast<std::int32_t>(style)}}},
                        {"answer", InWords(answer)}});
}

void Transcript::Focus(const std::string& control) { Print(Log::Events, {{"focus", control}}); }

void Transcript::Pending() { Print(Log::Events, {{"pending", true}}); }

void Transcript::Opened(host::Color backColor, std::int16_t aantalJaar) {
  Print(Log::Events, {{"opened", kFormName}, {"BackColor", backColor.value}, {"AantalJaar", aantalJaar}});
}

void Transcript::Closed() { Print(Log::Events, {{"closed", kFormName}}); }

void Transcript::Dump(const Json& state) { Print({{"dump", state}}); }

void Transcript::Access(const char* verb, Member member, const MemberValue& value, MemberIndex index) {
  Json line{{verb, NameOf(member)}, {"value", ToJson(value)}};
  if (index) line["index"] = *index;
  Print(line);
}

void Transcript::OnGet(Member member, const MemberValue& value, MemberIndex index) {
  if (Wants(Log::Reads)) Access("get", member, value, index);
}

void Transcript::OnSet(Member member, const MemberValue& value, MemberIndex index) {
  if (Wants(Log::Writes)) Access("set", member, value, index);
}

void Transcript::OnCall(Member member, std::span<const std::int16_t> arguments) {
  if (!Wants(Log::Calls)) return;
  Json args = Json::array();
  for (const std::int16_t argument : arguments) args.push_back(argument);
  Print({{"call", NameOf(member)}, {"args", std::move(args)}});
}

void Transcript::OnTrace(TraceMark mark, std::string_view procedure, std::string_view control) {
  switch (mark) {
    case TraceMark::Enter: Print(Log::Trace, {{"enter", procedure}, {"in", control}}); break;
    case TraceMark::Leave: Print(Log::Trace, {{"leave", true}, {"in", control}}); break;
    case TraceMark::Error: Print(Log::Trace, {{"error", procedure}, {"in", control}}); break;
  }
}

void Transcript::OnReport(const host::ErrorRecord& record) {
  Print(Log::Messages, {{"report",
                         {{"ApplicationTitle", record.ApplicationTitle},
                          {"ObjectName", record.ObjectName},
                          {"Caption", record.Caption},
                          {"ObjectDescription", record.ObjectDescription},
                          {"Message", record.Message},
                          {"ErrorNumber", record.ErrorNumber},
                          {"ErrorDescription", record.ErrorDescription},
                          {"ErrorSource", record.ErrorSource}}}});
}

}  // namespace brivane::session
