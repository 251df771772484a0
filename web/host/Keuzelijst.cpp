#include "web/host/Keuzelijst.h"

#include <emscripten.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include "web/host/Value.h"
#include <brivane/frame/ErrorReport.h>
#include <brivane/toolkits/web/Turns.h>

namespace brivane::webhost {

namespace {

std::map<int, host::ListBox*> lent_;
int last_ = 0;

enum class Way { Clear, AddItem, ListCount, ListIndex, SetListIndex, ItemData, List, Text };

/// What the script finds: a number, or a text that it frees. A failure has its number and its description.
struct Answer {
  double number = 0;
  char* text = nullptr;
};

char* Given(const std::string& text) { return strdup(text.c_str()); }

void Do(host::ListBox& lijst, Way way, double given, const char* text, Answer& answer) {
  const auto number = As<std::int32_t>(Value(given));
  switch (way) {
    case Way::Clear: return lijst.Clear();
    case Way::AddItem: return lijst.Add(text, number);
    case Way::ListCount: answer.number = lijst.ListCount(); return;
    case Way::ListIndex: answer.number = lijst.ListIndex(); return;
    case Way::SetListIndex: return lijst.SetListIndex(number);
    case Way::ItemData: answer.number = lijst.ItemData(number); return;
    case Way::List: answer.text = Given(lijst.List(number)); return;
    case Way::Text: answer.text = Given(lijst.Text()); return;
  }
}

}  // namespace

LentKeuzelijst::LentKeuzelijst(host::ListBox& lijst) : number_(++last_) { lent_[number_] = &lijst; }
LentKeuzelijst::~LentKeuzelijst() { lent_.erase(number_); }

/// The host uses a list that was lent to it: 0, or 1 where that failed.
extern "C" EMSCRIPTEN_KEEPALIVE int brivane_list(int list, int way, double number, const char* text, void* place) {
  const web::CalledBack calledBack;
  Answer& answer = *static_cast<Answer*>(place);
  answer = {};
  try {
    const auto lent = lent_.find(list);
    if (lent == lent_.end()) throw host::Error(host::ErrorNumber::ObjectMissing);
    Do(*lent->second, static_cast<Way>(way), number, text, answer);
    return 0;
  } catch (...) {
    const host::Error failure = frame::CurrentError();
    answer = {static_cast<double>(failure.Number()), Given(failure.Description())};
    return 1;
  }
}

}  // namespace brivane::webhost
