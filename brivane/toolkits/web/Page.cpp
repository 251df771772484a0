#include <emscripten.h>

#include <cstdlib>
#include <map>

#include <brivane/toolkits/web/Page.h>

// What is called of the script is given to the module when it is started: Module["page"].
// clang-format off
EM_JS(void, brivane_describe, (int design, const char* texts, int kind, int format, int order, int traits), {
  Module["page"]["describe"](design, UTF8ToString(texts), kind, format, order, traits);
})
EM_JS(void, brivane_make, (int page, int node, int container, int design, int index, double left, double top, double width, double height, int visible), {
  Module["page"]["make"](page, node, container, design, index, left, top, width, height, visible);
})
EM_JS(void, brivane_drop, (int page, int node), { Module["page"]["drop"](page, node); })
EM_JS(void, brivane_place, (int page, int node, double left, double top, double width, double height), {
  Module["page"]["place"](page, node, left, top, width, height);
})
EM_JS(void, brivane_show, (int page, int node, int what, double number, const char* text), {
  Module["page"]["show"](page, node, what, number, UTF8ToString(text));
})
EM_JS(int, brivane_ask, (int page, int node, int what), { return Module["page"]["ask"](page, node, what); })
EM_JS(char*, brivane_insert, (int page, int node, const char* text), {
  return Module["page"]["insert"](page, node, UTF8ToString(text));
})
EM_JS(int, brivane_open_form, (int page, int node), { return Module["page"]["openForm"](page, node); })
EM_JS(void, brivane_close_form, (int page, int node), { Module["page"]["closeForm"](page, node); })
EM_JS(int, brivane_open_box, (int page, int box, int style, int who, const char* title, const char* text), {
  return Module["page"]["openBox"](page, box, style, who, UTF8ToString(title), UTF8ToString(text));
})
EM_JS(void, brivane_close_box, (int page, int box), { Module["page"]["closeBox"](page, box); })
EM_JS(char*, brivane_text_of, (int page, const char* name), { return Module["page"]["textOf"](page, UTF8ToString(name)); })
EM_JS(void, brivane_come_back, (int page, int waiting), { Module["page"]["comeBack"](page, waiting); })
EM_JS(int, brivane_today, (), { return Module["page"]["today"](); })
EM_JS(char*, brivane_title, (), { return Module["page"]["title"](); })
EM_JS(char*, brivane_group_separator, (), { return Module["page"]["groupSeparator"](); })
// clang-format on

namespace brivane::web {

namespace {

/// Takes over a text that the script made on this side's heap.
std::string Taken(char* text) {
  std::string taken(text != nullptr ? text : "");
  std::free(text);
  return taken;
}

/// The designs that the script knows: all pages share it, and each is told once.
std::map<DesignKey, int> described;
int lastDesign = 0;

/// The texts of a design as the script takes them apart.
std::string Texts(const NodeDesign& design) {
  constexpr char kNext = '\x1f';
  std::string texts;
  texts.reserve(design.name.size() + design.label.size() + design.caption.size() + design.group.size() + 3);
  texts += design.name;
  for (const std::string* text : {&design.label, &design.caption, &design.group}) (texts += kNext) += *text;
  return texts;
}

/// Its traits by bits, as the script reads them.
int Traits(const NodeDesign& design) {
  return int{design.bordered} | (int{design.multiline} << 1) | (int{design.row} << 2);
}

}  // namespace

NodeId Page::Make(NodeId container, const DesignKey& key, int index, const std::function<NodeDesign()>& design,
                  const Standing& standing) {
  int& known = described[key];
  if (known == 0) {
    known = ++lastDesign;
    const NodeDesign told = design();
    brivane_describe(known, Texts(told).c_str(), told.kind, told.format, told.order, Traits(told));
  }
  const auto& [left, top, width, height] = standing.place;
  brivane_make(id_, ++last_, container, known, index, double{left.value}, double{top.value}, double{width.value},
               double{height.value}, standing.visible ? 1 : 0);
  return last_;
}

void Page::Drop(NodeId node) const { brivane_drop(id_, node); }

void Page::Place(NodeId node, const host::Place& place) const {
  brivane_place(id_, node, double{place.left.value}, double{place.top.value}, double{place.width.value},
                double{place.height.value});
}

void Page::Show(NodeId node, controls::Aspect aspect, double number, const std::string& text) const {
  brivane_show(id_, node, static_cast<int>(aspect), number, text.c_str());
}

void Page::Show(NodeId node, Shows what, double number, const std::string& text) const {
  brivane_show(id_, node, static_cast<int>(what), number, text.c_str());
}

bool Page::Ask(NodeId node, Asked what) const { return brivane_ask(id_, node, static_cast<int>(what)) != 0; }

std::string Page::Insert(NodeId node, const std::string& text) const {
  return Taken(brivane_insert(id_, node, text.c_str()));
}

bool Page::OpenForm(NodeId form) const { return brivane_open_form(id_, form) != 0; }
void Page::CloseForm(NodeId form) const { brivane_close_form(id_, form); }

bool Page::OpenBox(int box, int style, Says who, const std::string& title, const std::string& text) const {
  return brivane_open_box(id_, box, style, static_cast<int>(who), title.c_str(), text.c_str()) != 0;
}

void Page::CloseBox(int box) const { brivane_close_box(id_, box); }
std::string Page::TextOf(std::string_view name) const { return Taken(brivane_text_of(id_, std::string(name).c_str())); }
void Page::ComeBack(int waiting) const { brivane_come_back(id_, waiting); }

host::Date Page::Today() { return host::Date(brivane_today()); }
std::string Page::Title() { return Taken(brivane_title()); }
std::string Page::GroupSeparator() { return Taken(brivane_group_separator()); }
std::chrono::milliseconds Page::Now() {
  return std::chrono::milliseconds(static_cast<std::chrono::milliseconds::rep>(emscripten_get_now()));
}

}  // namespace brivane::web
