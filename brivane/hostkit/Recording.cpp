#include <optional>
#include <utility>

#include <brivane/hostkit/Recording.h>
#include <brivane/hostkit/Show.h>
#include <brivane/hostkit/instrument/InstrumentedHost.h>

namespace brivane::hostkit {

namespace {

std::string InWords(Op op) { return op == Op::Get ? "get " : op == Op::Set ? "set " : "call "; }

std::string Numbers(std::span<const std::int16_t> numbers) {
  std::string text;
  for (const std::int16_t number : numbers) text += (text.empty() ? "(" : ", ") + Show(number);
  return text.empty() ? text : text + ')';
}

std::string Indexed(MemberIndex index) { return index ? '(' + Show(*index) + ')' : std::string(); }

std::string Valued(const MemberValue& value) {
  return " = " + std::visit([](const auto& held) { return Show(held); }, value);
}

}  // namespace

/// An access begins a line when it is made, and ends it when it is answered; accesses nest.
class Recording::Body final : public HostListener {
 public:
  Body(std::shared_ptr<host::Application> application, host::HostFactories factories)
      : host(std::move(application), std::move(factories), *this) {
    host.Ledger().OnAccess = [this](Member member, Op op) {
      lines_.push_back({member, op, InWords(op) + std::string(NameOf(member)), false});
    };
  }

  std::vector<std::string> Take() {
    std::vector<std::string> taken;
    for (Line& line : lines_) taken.push_back(std::move(line.text));
    lines_.clear();
    return taken;
  }

  bool WantsReads() const override { return true; }
  void OnGet(Member member, const MemberValue& value, MemberIndex index) override {
    End(member, Op::Get, Indexed(index) + Valued(value));
  }
  void OnSet(Member member, const MemberValue& value, MemberIndex index) override {
    End(member, Op::Set, Indexed(index) + Valued(value));
  }
  void OnObject(Member member, std::span<const std::int16_t> arguments, bool answered) override {
    End(member, Op::Get, Numbers(arguments) + (answered ? " = an object" : " = nothing"));
  }
  void OnCall(Member member, std::span<const std::int16_t> arguments) override {
    End(member, Op::Call, Numbers(arguments));
  }
  void OnTrace(TraceMark mark, std::string_view procedure, std::string_view control) override {
    const Member member = mark == TraceMark::Enter   ? Member::ProcedureTrace_EnterProcedure
                          : mark == TraceMark::Leave ? Member::ProcedureTrace_LeaveProcedure
                                                     : Member::ProcedureTrace_ErrorInProcedure;
    const std::string of(control);
    End(member, Op::Call, procedure.empty() ? '(' + of + ')' : '(' + of + ", " + std::string(procedure) + ')');
  }
  void OnReport(const host::ErrorRecord& record) override {
    End(Member::Application_ReportError, Op::Call,
        '(' + record.ObjectName + ", " + record.ErrorNumber + ", " + Show(record.ErrorDescription) + ')');
  }

  InstrumentedHost host;

 private:
  struct Line {
    Member member;
    Op op;
    std::string text;
    bool ended;
  };

  void End(Member member, Op op, const std::string& rest) {
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line) {
      if (line->ended || line->member != member || line->op != op) continue;
      line->text += rest;
      line->ended = true;
      return;
    }
  }

  std::vector<Line> lines_;
};

Recording::Recording(std::shared_ptr<host::Application> application, host::HostFactories factories)
    : body_(std::make_unique<Body>(std::move(application), std::move(factories))) {}

Recording::~Recording() = default;

const std::shared_ptr<host::Application>& Recording::Application() const { return body_->host.Application(); }

const host::HostFactories& Recording::Factories() const { return body_->host.Factories(); }

std::vector<std::string> Recording::Lines() { return body_->Take(); }

}  // namespace brivane::hostkit
