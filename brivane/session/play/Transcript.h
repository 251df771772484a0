#pragma once

#include <set>
#include <string>
#include <string_view>

#include <brivane/host/controls/Desktop.h>
#include <brivane/hostkit/instrument/HostListener.h>
#include <brivane/session/document/Document.h>
#include <brivane/session/document/Json.h>
#include <brivane/session/play/LineSink.h>

namespace brivane::session {

/// Words what happens as lines, and passes on those that the log asks for.
class Transcript final : public HostListener {
 public:
  Transcript(LineSink sink, std::set<Log> log);

  /// A step begins: "1" is the number 1, "1.2" an inner step.
  void StepBegins(const std::string& number, const std::string& name);
  void Result(const std::string& step, bool cancel);
  void Failed(std::int32_t number, const std::string& description);
  void Ignored(const std::string& control);
  void Event(std::string_view name);
  void RefreshTopDisplay(const std::string& text);
  void Message(const std::string& title, const std::string& text, host::MessageStyle style, host::MessageAnswer answer);
  void Focus(const std::string& control);
  void Pending();
  void Opened(host::Color backColor, std::int16_t aantalJaar);
  void Closed();
  void Dump(const Json& state);

  /// Passes nothing on from now on.
  void Mute() { sink_ = nullptr; }

  [[nodiscard]] bool WantsReads() const override { return Wants(Log::Reads); }
  void OnGet(Member member, const MemberValue& value, MemberIndex index) override;
  void OnSet(Member member, const MemberValue& value, MemberIndex index) override;
  void OnCall(Member member, std::span<const std::int16_t> arguments) override;
  void OnTrace(TraceMark mark, std::string_view procedure, std::string_view control) override;
  void OnReport(const host::ErrorRecord& record) override;

 private:
  [[nodiscard]] bool Wants(Log log) const { return wanted_[static_cast<std::size_t>(log)]; }
  void Access(const char* verb, Member member, const MemberValue& value, MemberIndex index);
  void Print(Log log, const Json& line);
  void Print(const Json& line);

  LineSink sink_;
  std::array<bool, 7> wanted_{};
  std::string line_;
};

}  // namespace brivane::session
