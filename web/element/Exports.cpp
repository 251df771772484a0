// What the script calls. All that may run something of the host's goes through brivane_run, in a turn of its own; the
// script sees to it that none is called while another one stands on the stack.

#include <emscripten.h>

#include <chrono>
#include <cstring>
#include <map>
#include <memory>
#include <string>

#include "web/element/Element.h"
#include <brivane/frame/Calendar.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/ErrorReport.h>
#include <brivane/frame/Texts.h>
#include <brivane/toolkits/web/Person.h>
#include <brivane/toolkits/web/Turns.h>

// clang-format off
EM_JS(void, brivane_done, (int job, double result), { Module["element"]["done"](job, result); })
EM_JS(void, brivane_failed, (int job, int number, const char* description, const char* source), {
  Module["element"]["failed"](job, number, UTF8ToString(description), UTF8ToString(source));
})
// clang-format on

namespace brivane::webelement {

namespace {

/// The numbers stand in jobs.js too.
enum class Job {
  Make,
  Bind,
  Unbind,
  Validation,
  ValidationToelichting,
  CommitPending,
  BackColor,
  BeeindigenZichtbaar,
  Size,
  // What follows is a web::Deed.
};

struct Order {
  Job job;
  int node = 0;
  double number = 0;
  double more = 0;
  std::string text;
  webhost::Object first;
  webhost::Object second;
};

std::map<int, std::unique_ptr<Element>> elements_;

double Do(Element& element, const Order& order) {
  const auto whole = [](double number) { return webhost::As<std::int32_t>(webhost::Value(number)); };
  const auto small = [](double number) { return webhost::As<std::int16_t>(webhost::Value(number)); };
  switch (order.job) {
    case Job::Make: element.Make(); return 0;
    case Job::Bind:
      return static_cast<double>(element.Bind({order.first, order.second, small(order.number), small(order.more)}));
    case Job::Unbind: element.Unbind(); return 0;
    case Job::Validation:
      return element.Validation(Element::Checked::All, order.more != 0, whole(order.number)) ? 1 : 0;
    case Job::ValidationToelichting:
      return element.Validation(Element::Checked::Toelichting, order.more != 0, whole(order.number)) ? 1 : 0;
    case Job::CommitPending: return element.CommitPending() ? 1 : 0;
    case Job::BackColor: element.SetBackColor({whole(order.number)}); return 0;
    case Job::BeeindigenZichtbaar: element.SetBeeindigenZichtbaar(order.number != 0); return 0;
    case Job::Size: element.Size({static_cast<float>(order.number)}, {static_cast<float>(order.more)}); return 0;
    default: break;
  }
  const web::Done done{static_cast<web::Deed>(order.job), order.node, whole(order.number), order.text};
  return web::Does(element.Toolkit(), element.Surface(), done) ? 1 : 0;
}

void RunJob(int number, int page, const Order& order) {
  // Of what was abandoned: a binding failed, a check has nothing against leaving.
  double result = order.job == Job::Bind ? static_cast<double>(controls::BindingResult::Failed) : 0;
  try {
    if (Element* const element = Element::Find(page))
      controls::Life::Run(element->Toolkit().Life(), [&] { result = Do(*element, order); });
    brivane_done(number, result);
  } catch (...) {
    const host::Error failure = frame::CurrentError();
    brivane_failed(number, failure.Number(), failure.Description().c_str(), failure.Source().c_str());
  }
}

}  // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE void brivane_new(int page, int kind) {
  elements_[page] = std::make_unique<Element>(page, static_cast<Kind>(kind));
}

/// At any moment.
EMSCRIPTEN_KEEPALIVE void brivane_end(int page) {
  const web::CalledBack calledBack;
  elements_.erase(page);
}

/// `first` and `second` are objects that the script has kept for this side; 0 for none.
EMSCRIPTEN_KEEPALIVE void brivane_run(int number, int page, int job, int node, double value, double more,
                                      const char* text, int first, int second) {
  const auto object = [page](int kept) {
    return kept != 0 ? std::make_shared<const webhost::Kept>(page, kept) : nullptr;
  };
  web::RunTurn(
      [number, page, order = Order{static_cast<Job>(job), node, value, more, text, object(first), object(second)}] {
        RunJob(number, page, order);
      });
}

/// Goes on with what was waiting for an answer that came.
EMSCRIPTEN_KEEPALIVE void brivane_go_on() { web::GoOn(); }

EMSCRIPTEN_KEEPALIVE void brivane_answered(int page, int box, int answer) {
  const web::CalledBack calledBack;
  if (Element* const element = Element::Find(page))
    element->Toolkit().Desktop().Answered(box, static_cast<host::MessageAnswer>(answer));
}

/// `ago`: how many milliseconds ago the key went down.
EMSCRIPTEN_KEEPALIVE int brivane_is_meant(int page, int box, int repeated, double ago) {
  using Press = controls::KeysUnderWay::Press;
  Element* const element = Element::Find(page);
  if (element == nullptr) return 0;
  const std::chrono::milliseconds passed(static_cast<std::chrono::milliseconds::rep>(ago));
  return element->Toolkit().Desktop().IsMeant(box, repeated != 0 ? Press::Repeat : Press::First, passed) ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE void brivane_came_back(int page, int waiting) {
  if (Element* const element = Element::Find(page)) element->Toolkit().Desktop().CameBack(waiting);
}

/// Whether it changes anything that the focus goes elsewhere.
EMSCRIPTEN_KEEPALIVE int brivane_minds_being_left(int page, int node) {
  Element* const element = Element::Find(page);
  return element != nullptr && web::MindsBeingLeft(element->Toolkit(), node) ? 1 : 0;
}

/// The day at which the calendar of a box opens, counted from 30 December 1899; 0 where no day stands in it.
EMSCRIPTEN_KEEPALIVE int brivane_day(int page, int node) {
  Element* const element = Element::Find(page);
  return element != nullptr ? web::DayIn(element->Toolkit(), node).Days() : 0;
}

/// The first day that may be picked.
EMSCRIPTEN_KEEPALIVE int brivane_first_day() { return frame::MakeDate({frame::kFirstYear, 1, 1}).Days(); }

/// As in PageTexts.h. For what is shown from now on.
EMSCRIPTEN_KEEPALIVE void brivane_speak(int page, int language) {
  if (Element* const element = Element::Find(page)) element->Toolkit().Speak(static_cast<web::Spoken>(language));
}

/// A text of the catalogue by its name there, for the script to free; nothing where there is none.
EMSCRIPTEN_KEEPALIVE char* brivane_text(int english, const char* name) {
  for (int i = 0; i < frame::kTextCount; ++i) {
    const auto text = static_cast<frame::TextId>(i);
    if (frame::NameOf(text) != name) continue;
    return strdup(frame::Texts::In(english != 0 ? frame::Language::English : frame::Language::Dutch).Of(text).c_str());
  }
  return nullptr;
}

EMSCRIPTEN_KEEPALIVE int brivane_back_color(int page) {
  Element* const element = Element::Find(page);
  return element != nullptr && element->Part() != nullptr ? element->Part()->BackColor().value
                                                          : host::kButtonFace.value;
}

EMSCRIPTEN_KEEPALIVE int brivane_pending(int page) {
  Element* const element = Element::Find(page);
  return element != nullptr && element->IsPending() ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE int brivane_state(int page) {
  Element* const element = Element::Find(page);
  return element != nullptr ? static_cast<int>(element->State()) : 0;
}

}  // extern "C"

}  // namespace brivane::webelement
