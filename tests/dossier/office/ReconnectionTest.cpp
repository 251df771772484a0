#include <gtest/gtest.h>

#include "dossier/office/Reconnection.h"

namespace brivane::dossier {
namespace {

TEST(ReconnectionTest, ThePausesGrowToHalfAMinute) {
  const std::vector<std::pair<int, int>> table = {{-1, 500}, {0, 500},   {1, 1000},  {2, 2000},    {3, 4000},
                                                  {4, 8000}, {5, 16000}, {6, 30000}, {1000, 30000}};
  for (const auto& [tries, milliseconds] : table) EXPECT_EQ(PauseAfter(tries).count(), milliseconds) << tries;
}

TEST(ReconnectionTest, WhatANewSessionFindsDecides) {
  struct Case {
    const char* what;
    Before before;
    Found found;
    Verdict verdict;
  };
  using enum Outcome;
  const Case table[] = {
      {"nobody was there meanwhile",
       {true, 7, {100, 50}, {}},
       {true, {0, 0}, 7, false},
       {Role::Edit, NoneAsked, false}},
      {"somebody came and went", {true, 7, {100, 50}, {}}, {true, {0, 0}, 9, false}, {Role::Edit, NoneAsked, true}},
      {"somebody has it", {true, 7, {100, 50}, {}}, {false, {200, 90}, 7, false}, {Role::Read, NoneAsked, false}},
      {"somebody has it and stored",
       {true, 7, {100, 50}, {}},
       {false, {200, 90}, 8, false},
       {Role::Read, NoneAsked, true}},
      {"the broken session still has it",
       {true, 7, {100, 50}, {}},
       {false, {100, 50}, 7, false},
       {Role::TryAgain, NoneAsked, false}},
      {"another session has its number",
       {true, 7, {100, 50}, {}},
       {false, {100, 90}, 7, false},
       {Role::Read, NoneAsked, false}},
      {"the broken session may still store",
       {true, 7, {100, 50}, 8},
       {false, {100, 50}, 7, false},
       {Role::TryAgain, NoneAsked, false}},
      {"it was stored", {true, 7, {100, 50}, 8}, {true, {0, 0}, 8, true}, {Role::Edit, WasStored, true}},
      {"it was not", {true, 7, {100, 50}, 8}, {true, {0, 0}, 7, false}, {Role::Edit, WasNotStored, false}},
      {"it was not, and another stored that step",
       {true, 7, {100, 50}, 8},
       {false, {200, 90}, 8, false},
       {Role::Read, WasNotStored, true}},
      {"it was, and another went on",
       {true, 7, {100, 50}, 8},
       {false, {200, 90}, 9, true},
       {Role::Read, WasStored, true}},
      {"who reads goes on reading",
       {false, 7, {100, 50}, {}},
       {false, {0, 0}, 7, false},
       {Role::Read, NoneAsked, false}},
      {"also where his own other window edits",
       {false, 7, {100, 50}, {}},
       {false, {100, 50}, 8, false},
       {Role::Read, NoneAsked, true}}};
  for (const Case& one : table) EXPECT_EQ(Judge(one.before, one.found), one.verdict) << one.what;
}

}  // namespace
}  // namespace brivane::dossier
