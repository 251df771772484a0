// Every single access of a member of the host is made to fail in turn, one run each.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "replay/play/Session.h"
#include "tests/faults/Rerun.h"
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::faults {
namespace {

using replay::Document;
using replay::Json;

struct NamedDocument {
  std::string name;
  Document document;
};

std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The sessions, without the failures that some of them bring: one failure a run.
const std::vector<NamedDocument>& Documents() {
  static const std::vector<NamedDocument> documents = [] {
    std::vector<NamedDocument> found;
    for (const char* folder : {GOLDEN_SESSIONS, FAULT_SESSIONS})
      for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".json") continue;
        found.push_back({entry.path().stem().string(), replay::ReadDocument(Contents(entry.path()))});
        Document& document = found.back().document;
        document.faults.clear();
        // The follower needs every line but the reads.
        document.log = Document{}.log;
      }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return found;
  }();
  return documents;
}

/// Each procedure that tells the tracer of itself and that a session can reach. One more belongs to no control.
const std::set<std::string> kProcedures{
    "VrijeKolom.SetApplication",
    "VrijeKolom.Fill_Controls",
    "VrijeKolom.Fill_fraAlgemeen",
    "VrijeKolom.Fill_Product",
    "VrijeKolom.Fill_cboMaatschappij",
    "VrijeKolom.Fill_cboProductsoort",
    "VrijeKolom.Validation",
    "VrijeKolom.Check_FraFiscaal",
    "VrijeKolom.chkProduct_Click",
    "VrijeKolom.cboMaatschappij_Click",
    "VrijeKolom.cboProductsoort_Click",
    "VrijeKolom.CboTermijn_Click",
    "VrijeKolom.ChkVoorstel_Click",
    "VrijeKolom.cmdScenario_Click",
    "VrijeKolom.jnInDagloon_Change",
    "VrijeKolom.jnInkUitArbeid_Change",
    "VrijeKolom.jnUwBemiddeling_Change",
    "VrijeKolom.optAanvrager_Click",
    "VrijeKolom.optFiscaal_Click",
    "VrijeKolom.optLast_Click",
    "VrijeKolom.TxtBd_Validation",
    "VrijeKolom.TxtOm_Validation",
    "VrijeKolom.TxtAnJaar_Validation",
    "VrijeKolom.TxtAnMaand_Validation",
    "VrijeKolom.TxtDtAanvang_Validation",
    "VrijeKolom.TxtDtEind_Validation",
    "VrijeKolom.txtMaatschappij_Validation",
    "VrijeKolom.txtProductsoort_Validation",
    "VrijeKolom.txtProductnaam_Validation",
    "VrijeKolom.txtVervaldatum_Validation",
    "Toelichting.Fill_Listview",
    "Toelichting.SetApplication",
    "Toelichting.Show_Keuze",
    "Toelichting.Fill_Controls",
    "Toelichting.Validation",
    "Toelichting.jnAO_Change",
    "Toelichting.jnWW_Change",
    "Toelichting.jnLangleven_Change",
    "Toelichting.jnOverlijden_Change",
    "Toelichting.TxtPcOvergang_Validation",
    "Toelichting.TxtEinddatum_Validation",
    "Toelichting.TxtEindjaar_Validation",
};

std::string All(const std::vector<std::string>& problems) {
  std::string text;
  for (const std::string& problem : problems) text += "\n  " + problem;
  return text;
}

/// What each procedure itself writes or calls in the sessions, whatever the session.
const Follower::Writes& Known() {
  static const Follower::Writes known = [] {
    Follower::Writes all;
    for (const NamedDocument& named : Documents()) {
      const Run run = RunFailing(named.document, 0);
      for (const auto& [procedure, members] : run.follower.AllWrites())
        for (const auto& [member, times] : members) all[procedure][member] += times;
    }
    return all;
  }();
  return known;
}

/// A procedure that goes on after its failure writes what the one that called it never writes.
std::vector<std::string> ForeignWrites(const Run& run) {
  std::vector<std::string> found;
  for (const auto& [procedure, members] : run.follower.AllWrites())
    for (const auto& [member, times] : members) {
      const auto known = Known().find(procedure);
      if (known == Known().end() || !known->second.contains(member)) found.push_back(procedure + " wrote " + member);
    }
  return found;
}

class Faults {
 public:
  explicit Faults(const NamedDocument& named)
      : document_(named.document), recovering_(WithRecovery(named.document)), whole_(RunFailing(named.document, 0)) {}

  [[nodiscard]] std::uint64_t Accesses() const { return whole_.accesses; }
  /// Runs in which all failed that was to fail.
  [[nodiscard]] std::uint64_t Tried() const { return tried_; }

  /// The rules that the run with that failing access broke.
  std::vector<std::string> Try(std::uint64_t position, Handling handling) {
    const Run run = RunFailing(recovering_, position, handling);
    tried_ += handling == Handling::Works || run.handlerFailed ? 1 : 0;
    std::vector<std::string> problems = run.follower.Problems();
    const auto require = [&](bool kept, std::string rule) {
      if (!kept) problems.push_back(std::move(rule));
    };
    const std::size_t before = whole_.linesBefore[position - 1];
    require(run.linesAtFailure == before &&
                std::equal(run.lines.begin(), run.lines.begin() + static_cast<std::ptrdiff_t>(before),
                           whole_.lines.begin()),
            "what came before the failure differs");
    require(run.atFailure == whole_.caseBefore[position - 1], "what was written before the failure differs");
    require(run.afterHandling == run.atFailure, "the handling of the failure changed the case");
    require(std::ranges::count_if(run.lines,
                                  [](const std::string& line) {
                                    return line.find(std::to_string(kNumber)) != std::string::npos &&
                                           line.starts_with(R"({"report")");
                                  }) <= 1,
            "reported more than once");
    std::ranges::move(ForeignWrites(run), std::back_inserter(problems));
    if (run.editorMade) Recovered(run, require);
    for (std::string& problem : problems)
      problem = run.struckMember + " at " + std::to_string(position) + ": " + problem;
    return problems;
  }

 private:
  template <class Require> void Recovered(const Run& run, const Require& require) {
    const auto steps =
        std::ranges::count_if(run.lines, [](const auto& line) { return line.starts_with(R"({"step")"); });
    require(steps > 0, "no step ran");
    require(std::ranges::count(run.lines, R"({"set": "VrijeKolomItem.Omschrijving", "value": ")" +
                                              std::string(kEdited) + R"("})") == 1,
            "the edit after a new binding is not written once");
    if (!run.lines.back().starts_with(R"({"dump")")) return require(false, "no dump at the end: " + run.lines.back());
    const Json dump = replay::ParseJson(run.lines.back()).at("dump");
    require(!dump.at("Filling").get<bool>() && dump.at("Gewijzigd").get<bool>(),
            "the editor does not stand as after an edit");
    const Json& fresh = Fresh(run.left);
    const Json shown = OnShow(dump);
    if (shown != fresh)
      require(false, "shows otherwise than a fresh editor: " + Json::diff(fresh, shown).dump().substr(0, 400));
  }

  const Json& Fresh(const dossier::DossierGegevens& state) {
    const auto [found, isNew] = fresh_.try_emplace(replay::ToJson(state).dump());
    if (isNew) found->second = FreshDump(document_, state);
    return found->second;
  }

  Document document_;
  Document recovering_;
  Run whole_;
  std::uint64_t tried_ = 0;
  std::unordered_map<std::string, Json> fresh_;
};

TEST(ModelFaults, TheSessionsReachEveryProcedure) {
  std::set<std::string> reached;
  for (const NamedDocument& named : Documents()) {
    const faults::Run run = RunFailing(named.document, 0);
    EXPECT_TRUE(run.follower.Problems().empty()) << named.name << All(run.follower.Problems());
    for (const auto& [procedure, times] : run.follower.Entered()) reached.insert(procedure);
  }
  EXPECT_EQ(reached, kProcedures);
}

void TryAll(Handling handling) {
  std::uint64_t tried = 0;
  int failed = 0;
  for (const NamedDocument& named : Documents()) {
    Faults faults(named);
    for (std::uint64_t position = 1; position <= faults.Accesses(); ++position) {
      const std::vector<std::string> problems = faults.Try(position, handling);
      EXPECT_TRUE(problems.empty()) << named.name << All(problems);
      if (!problems.empty() && ++failed > 10) FAIL() << "and perhaps more";
    }
    tried += faults.Tried();
    std::cout << named.name << ": " << faults.Tried() << '\n';
  }
  EXPECT_GT(tried, 2500u);
  testing::Test::RecordProperty("FaultsTried", std::to_string(tried));
  std::cout << "faults tried: " << tried << '\n';
}

TEST(ModelFaults, EveryAccessFailsInTurn) { TryAll(Handling::Works); }

/// The failure of a handler belongs to the procedure around it.
TEST(ModelFaults, EveryAccessFailsInTurnAndItsHandlerCannotBegin) { TryAll(Handling::CannotBegin); }

TEST(ModelFaults, EveryAccessFailsInTurnAndItsHandlerCannotReport) { TryAll(Handling::CannotReport); }

TEST(ModelFaults, TheProcedureOfNoControlFailsLikeAnyOther) {
  const Document& document = Documents().front().document;
  std::vector<std::string> lines;
  replay::Session session(document, [&](std::string_view line) { lines.emplace_back(line); });
  session.Run();
  session.Ledger().FailAtPosition(session.Ledger().Accesses() + 1, host::Error(kNumber, kDescription, kSource));
  session.Ledger().FailAtPosition(session.Ledger().Accesses() + 3, host::Error(kNumber, kDescription, kSource));
  lines.clear();
  EXPECT_THROW(session.Editor()->txtProducttype_Validation(), host::Error);
  EXPECT_TRUE(lines.empty());
  session.Editor()->txtProducttype_Validation();
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0], R"({"enter": "txtProducttype_Validation", "in": "VrijeKolom"})");
  EXPECT_EQ(lines[1], R"({"error": "txtProducttype_Validation", "in": "VrijeKolom"})");
  EXPECT_TRUE(lines[2].starts_with(R"({"report")"));
}

}  // namespace
}  // namespace brivane::faults
