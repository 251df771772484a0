// How many actions a second a session is replayed at, on one core: from text to transcript, in one run.

#include <benchmark/benchmark.h>

#include <string>

#include "replay/play/Session.h"

namespace {

using namespace brivane;

constexpr int kActions = 10'000;

/// A session of that many actions through the fields, options, toggles and lists of one column.
std::string LongSession() {
  const char* const actions[] = {
      R"({"do": "enter", "control": "TxtBd", "value": 1200.5})",
      R"({"do": "toggle", "control": "Toelichting.jnAO", "value": 1})",
      R"({"do": "enter", "control": "TxtAnMaand", "value": 14})",
      R"({"do": "click", "control": "optLast", "index": 2})",
      R"({"do": "select", "control": "cboTermijn", "entry": "per jaar"})",
      R"({"do": "enter", "control": "TxtOm", "value": "Contributie"})",
      R"({"do": "toggle", "control": "Toelichting.jnAO", "value": 2})",
      R"({"do": "enter", "control": "TxtDtAanvang", "value": {"date": "2024-01-31"}})",
      R"({"do": "click", "control": "optLast", "index": 1})",
      R"({"do": "select", "control": "cboTermijn", "entry": "per maand"})",
  };
  std::string text = R"({"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{}]}}, "steps": [
{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1})";
  for (int i = 0; i < kActions; ++i)
    text += std::string(",\n") + actions[static_cast<std::size_t>(i) % std::size(actions)];
  return text + "]}";
}

void Count(benchmark::State& state, std::size_t bytes) {
  state.SetItemsProcessed(state.iterations() * kActions);
  state.counters["bytes"] = benchmark::Counter(static_cast<double>(bytes));
}

void Reading(benchmark::State& state) {
  const std::string text = LongSession();
  for (auto _ : state) benchmark::DoNotOptimize(replay::ReadDocument(text));
  Count(state, text.size());
}

void Replaying(benchmark::State& state) {
  const replay::Document document = replay::ReadDocument(LongSession());
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = 0;
    replay::Session session(document, [&](std::string_view line) { bytes += line.size() + 1; });
    session.Run();
  }
  Count(state, bytes);
}

void ReplayingWithoutATranscript(benchmark::State& state) {
  replay::Document document = replay::ReadDocument(LongSession());
  document.log.clear();
  for (auto _ : state) {
    replay::Session session(document, nullptr);
    session.Run();
  }
  Count(state, 0);
}

BENCHMARK(Reading)->Unit(benchmark::kMillisecond);
BENCHMARK(Replaying)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplayingWithoutATranscript)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
