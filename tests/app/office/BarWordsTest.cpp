#include <gtest/gtest.h>

#include "app/office/BarWords.h"

namespace brivane::app {
namespace {

using State = dossier::ClientSession::State;

TEST(BarWordsTest, SayWhoHasItAndWhatCanBeDone) {
  struct BarCase {
    BarFacts facts;
    BarWords words;
  };
  const BarCase cases[] = {
      {{.state = State::Editing}, {.text = "", .handOver = true}},
      {{.state = State::Editing, .asker = "Bert Bakker"},
       {.text = "Bert Bakker vraagt om deze cliënt.", .handOver = true}},
      {{.state = State::Reading, .holder = "Anna Aalders", .since = "10:32"},
       {.text = "Alleen lezen: Anna Aalders werkt hierin sinds 10:32.", .ask = true}},
      {{.state = State::Reading, .holder = "Anna Aalders", .since = "10:32", .asked = true},
       {.text = "Alleen lezen: Anna Aalders werkt hierin sinds 10:32. U hebt erom gevraagd."}},
      {{.state = State::Reading}, {.text = "Alleen lezen: niemand werkt hier nu in.", .takeOver = true}},
      {{.state = State::Reading, .writes = false}, {.text = "Alleen lezen: u mag in dit kantoor niets wijzigen."}},
      {{.state = State::Reading, .writes = false, .holder = "Anna Aalders", .since = "10:32"},
       {.text = "Alleen lezen: u mag in dit kantoor niets wijzigen. Anna Aalders werkt hierin sinds 10:32."}},
      {{.state = State::Broken},
       {.text = "Geen verbinding met het kantoor. Er wordt vanzelf opnieuw verbinding gezocht.", .reconnect = true}},
      {{.state = State::Broken, .tries = 2, .unknown = true},
       {.text = "Geen verbinding met het kantoor. Er wordt vanzelf opnieuw verbinding gezocht (poging 3). Dan blijkt "
                "ook of de laatste wijziging is opgeslagen.",
        .reconnect = true}},
      {{.state = State::Broken, .tries = 1, .said = "de deur is dicht"},
       {.text = "Geen verbinding met het kantoor (het meldt: de deur is dicht). Er wordt vanzelf opnieuw verbinding "
                "gezocht (poging 2).",
        .reconnect = true}},
      {{.state = State::Broken, .tries = 3, .refused = "het is te nieuw"},
       {.text = "Dit kantoor is nu niet te gebruiken: het is te nieuw. Het wordt af en toe opnieuw geprobeerd.",
        .reconnect = true}},
      {{.state = State::Broken, .tries = 3, .unknown = true, .refused = "het is te nieuw"},
       {.text = "Dit kantoor is nu niet te gebruiken: het is te nieuw. Het wordt af en toe opnieuw geprobeerd. Of de "
                "laatste wijziging is opgeslagen, blijkt zodra dat lukt.",
        .reconnect = true}},
      {{.state = State::Gone, .allowed = false},
       {.text = "U hebt in dit kantoor geen rechten meer. Wat u ziet, is wat er het laatst stond; wijzigen kan niet "
                "meer."}},
      {{.state = State::Broken, .tries = 4, .unknown = true, .barred = true, .said = "password"},
       {.text = "Geen verbinding met het kantoor: het neemt uw wachtwoord niet meer aan. Na het verbinden blijkt ook "
                "of de laatste wijziging is opgeslagen.",
        .reconnect = true}},
      {{.state = State::Reading, .holder = "Anna Aalders", .since = "10:32", .unreadable = "het is beschadigd"},
       {.text = "Wat u ziet is oud en kan niet worden gewijzigd: het is beschadigd."}},
      {{.state = State::Editing, .asker = "Bert Bakker", .unreadable = "het is beschadigd"},
       {.text = "Wat u ziet is oud en kan niet worden gewijzigd: het is beschadigd.", .handOver = true}},
      {{.state = State::Gone, .holder = "Anna Aalders", .since = "10:32", .unreadable = "het is beschadigd"},
       {.text = "Deze cliënt is niet meer in het kantoor, of niet meer voor uw team. Wat u ziet, is wat er het laatst "
                "stond; wijzigen kan niet meer."}},
      {{.state = State::Gone, .unknown = true},
       {.text = "Deze cliënt is niet meer in het kantoor, of niet meer voor uw team. Wat u ziet, is wat er het laatst "
                "stond; wijzigen kan niet meer. Of de laatste wijziging was opgeslagen, is niet bekend."}},
      {{.state = State::Broken, .unreadable = "het is beschadigd"},
       {.text = "Geen verbinding met het kantoor. Er wordt vanzelf opnieuw verbinding gezocht.", .reconnect = true}},
  };
  for (const BarCase& one : cases) EXPECT_EQ(WordsFor(one.facts), one.words) << qPrintable(WordsFor(one.facts).text);
}

}  // namespace
}  // namespace brivane::app
