#include "tests/faults/Rerun.h"

#include <optional>
#include <utility>

#include "replay/play/Session.h"
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::faults {

namespace {

using replay::Document;
using replay::Json;
using replay::Op;
using replay::Session;
using replay::Step;

const char* InWords(Op op) { return op == Op::Get ? " get" : op == Op::Set ? " set" : " call"; }

replay::Member FailingToo(Handling handling) {
  return handling == Handling::CannotBegin ? replay::Member::ProcedureTrace_ErrorInProcedure
                                           : replay::Member::Application_ReportError;
}

/// Runs it once; answers the place of what cannot be run, if there is anything.
std::optional<std::string> RunOnce(const Document& document, std::uint64_t position, Handling handling, Run& run) {
  bool struck = false;
  const Session* running = nullptr;
  const auto keepHandled = [&] {
    // The failure is handled by at most two lines, the handler's and the report; the host's first line is the one.
    const std::size_t since = run.lines.size() - run.linesAtFailure;
    if (since == 1 || (since == 2 && run.lines.back().starts_with(R"({"report")")))
      run.afterHandling = const_cast<Session*>(running)->Case().Gegevens();
  };
  Session session(document, [&](std::string_view line) {
    run.lines.emplace_back(line);
    run.follower.Take(line);
    if (struck) keepHandled();
  });
  running = &session;
  session.Ledger().OnAccess = [&](replay::Member member, Op op) {
    const std::uint64_t now = session.Ledger().Accesses();
    if (position == 0) {
      run.linesBefore.push_back(run.lines.size());
      run.caseBefore.push_back(session.Case().Gegevens());
    } else if (now == position) {
      struck = true;
      run.atFailure = session.Case().Gegevens();
      run.linesAtFailure = run.lines.size();
      run.struckMember = std::string(NameOf(member)) + InWords(op);
      run.follower.Strike(member);
    } else if (struck && !run.handlerFailed && handling != Handling::Works && member == FailingToo(handling)) {
      run.handlerFailed = true;
      session.Ledger().FailAtPosition(now, host::Error(kNumber, kDescription, kSource));
      run.follower.Strike(member);
    }
  };
  if (position != 0) session.Ledger().FailAtPosition(position, host::Error(kNumber, kDescription, kSource));
  try {
    session.Run();
  } catch (const replay::BadInput& problem) {
    return problem.Place();
  }
  run.follower.Finish();
  run.accesses = session.Ledger().Accesses();
  run.left = session.Case().Gegevens();
  run.editorMade = session.Editor() != nullptr;
  return std::nullopt;
}

template <class Wanted> const Step* FirstOf(const Document& document) {
  for (const Step& step : document.steps)
    if (std::holds_alternative<Wanted>(step.what)) return &step;
  return nullptr;
}

/// What the session binds first, or its first column.
Step Binding(const Document& document) {
  if (const Step* const step = FirstOf<replay::BindStep>(document)) return *step;
  return {.place = {},
          .name = "SetApplication",
          .what = replay::BindStep{0, document.dossier.HuidigeLening.VrijeKolommen.at(0).Id},
          .answers = {},
          .pending = {},
          .modal = {}};
}

Step Plain(std::string name, decltype(Step::what) what) {
  return {.place = {}, .name = std::move(name), .what = std::move(what), .answers = {}, .pending = {}, .modal = {}};
}

/// The container of each control of the editor, by the names that dumps use.
std::string Container(const frame::Design& design, const std::string& prefix, const std::string& name) {
  for (const frame::Row& row : design.rows) {
    std::string element = prefix + std::string(row.name);
    if (row.index != frame::kNoIndex) element += '(' + std::to_string(row.index) + ')';
    if (element == name)
      return row.parent.empty() ? prefix.substr(0, prefix.find('.')) : prefix + std::string(row.parent);
  }
  return {};
}

bool Shown(const Json& controls, std::string name) {
  while (!name.empty()) {
    if (!controls.at(name).at("visible").get<bool>()) return false;
    name = name.starts_with("Toelichting.") ? Container(toelichting::kOntwerp, "Toelichting.", name)
                                            : Container(vrijekolom::kOntwerp, "", name);
  }
  return true;
}

}  // namespace

Run RunFailing(Document document, std::uint64_t position, Handling handling) {
  while (true) {
    Run run{.lines = {},
            .follower = Follower(document.title),
            .linesBefore = {},
            .caseBefore = {},
            .atFailure = {},
            .afterHandling = {},
            .struckMember = {},
            .left = {}};
    const std::optional<std::string> impossible = RunOnce(document, position, handling, run);
    if (!impossible) return run;
    std::erase_if(document.steps, [&](const Step& step) {
      return !step.place.empty() && (impossible->starts_with(step.place + '.') || *impossible == step.place);
    });
  }
}

Document WithRecovery(const Document& document) {
  Document longer = document;
  longer.steps.push_back(Binding(document));
  longer.steps.push_back(
      Plain("enter", replay::ActStep{"TxtOm", {}, controls::Action{controls::Enter{std::string(kEdited)}}}));
  longer.steps.push_back(Plain("dump", replay::DumpStep{}));
  return longer;
}

Json FreshDump(const Document& document, const dossier::DossierGegevens& state) {
  Document fresh = document;
  fresh.dossier = state;
  std::erase_if(fresh.steps, [](const Step& step) {
    return !std::holds_alternative<replay::BackColorStep>(step.what) &&
           !std::holds_alternative<replay::BeeindigenStep>(step.what) &&
           !std::holds_alternative<replay::ResizeStep>(step.what);
  });
  fresh.steps.push_back(Binding(document));
  fresh.steps.push_back(Plain("dump", replay::DumpStep{}));
  fresh.log.clear();
  std::string last;
  Session session(fresh, [&](std::string_view line) { last = line; });
  session.Run();
  return OnShow(replay::ParseJson(last).at("dump"));
}

Json OnShow(const Json& dump) {
  Json shown = dump;
  shown.erase("Gewijzigd");
  const Json& controls = dump.at("controls");
  for (const auto& [name, state] : controls.items())
    if (!Shown(controls, name)) shown.at("controls").erase(name);
  return shown;
}

}  // namespace brivane::faults
