// What the script calls, in place of what stands around the elements that are published (web/element/Exports.cpp): the
// scripts are the same, and what a person does to the page comes to the stage of the test that runs.

#include <emscripten.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstring>

#include "tests/toolkits/web/NotHere.h"
#include "tests/toolkits/web/Stage.h"
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Texts.h>
#include <brivane/toolkits/web/Person.h>
#include <brivane/toolkits/web/Turns.h>

// clang-format off
EM_JS(void, brivane_done, (int job, double result), { Module["element"]["done"](job, result); })
EM_JS(void, brivane_tests_ended, (int code), { Module["stage"]["ended"](code); })
// clang-format on

namespace brivane::test {
namespace {

bool Meant(int page, const web::Done& done) {
  Stage* const stage = Stage::Find(page);
  if (stage == nullptr) return false;
  bool meant = false;
  controls::Life::Run(stage->Toolkit().Life(), [&] { meant = web::Does(stage->Toolkit(), stage->Shown(), done); });
  return meant;
}

}  // namespace
}  // namespace brivane::test

using brivane::test::Stage;
namespace web = brivane::web;

extern "C" {

/// Runs the tests that a filter leaves, as a turn: it is over when the page is told so.
EMSCRIPTEN_KEEPALIVE void brivane_tests_run(const char* filter, const char* browser) {
  web::RunTurn([filter = std::string(filter), browser = std::string(browser)] {
    testing::InitGoogleTest();
    brivane_tests_ended(brivane::test::RunHere(filter, browser));
  });
}

EMSCRIPTEN_KEEPALIVE void brivane_new(int, int) {}
EMSCRIPTEN_KEEPALIVE void brivane_end(int) {}
EMSCRIPTEN_KEEPALIVE int brivane_state(int) { return 0; }
EMSCRIPTEN_KEEPALIVE void brivane_speak(int page, int language) {
  if (Stage* const stage = Stage::Find(page)) stage->Toolkit().Speak(static_cast<web::Spoken>(language));
}

EMSCRIPTEN_KEEPALIVE char* brivane_text(int english, const char* name) {
  using namespace brivane::frame;
  for (int i = 0; i < kTextCount; ++i) {
    const auto text = static_cast<TextId>(i);
    if (NameOf(text) == name)
      return strdup(Texts::In(english != 0 ? Language::English : Language::Dutch).Of(text).c_str());
  }
  return nullptr;
}

EMSCRIPTEN_KEEPALIVE void brivane_run(int number, int page, int job, int node, double value, double, const char* text,
                                      int, int) {
  web::RunTurn([number, page, done = web::Done{static_cast<web::Deed>(job), node, static_cast<int>(value), text}] {
    brivane_done(number, brivane::test::Meant(page, done) ? 1 : 0);
  });
}

EMSCRIPTEN_KEEPALIVE void brivane_go_on() { web::GoOn(); }

EMSCRIPTEN_KEEPALIVE void brivane_answered(int page, int box, int answer) {
  const web::CalledBack calledBack;
  if (Stage* const stage = Stage::Find(page))
    stage->Toolkit().Desktop().Answered(box, static_cast<brivane::host::MessageAnswer>(answer));
}

EMSCRIPTEN_KEEPALIVE int brivane_is_meant(int page, int box, int repeated, double ago) {
  using Press = brivane::controls::KeysUnderWay::Press;
  Stage* const stage = Stage::Find(page);
  if (stage == nullptr) return 0;
  const std::chrono::milliseconds passed(static_cast<std::chrono::milliseconds::rep>(ago));
  return stage->Toolkit().Desktop().IsMeant(box, repeated != 0 ? Press::Repeat : Press::First, passed) ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE int brivane_minds_being_left(int page, int node) {
  Stage* const stage = Stage::Find(page);
  return stage != nullptr && web::MindsBeingLeft(stage->Toolkit(), node) ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE int brivane_day(int page, int node) {
  Stage* const stage = Stage::Find(page);
  return stage != nullptr ? web::DayIn(stage->Toolkit(), node).Days() : 0;
}
EMSCRIPTEN_KEEPALIVE int brivane_first_day() {
  using namespace brivane::frame;
  return MakeDate({kFirstYear, 1, 1}).Days();
}

EMSCRIPTEN_KEEPALIVE void brivane_came_back(int page, int waiting) {
  if (Stage* const stage = Stage::Find(page)) stage->Toolkit().Desktop().CameBack(waiting);
}

}  // extern "C"
