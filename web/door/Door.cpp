// What tests of the elements reach through beside the public interface: a person's acts by the name of a control, the
// state of every control, the machine's answers, and who is asked in a person's place. It is linked into a machine of
// its own, and no part of the one that is published.

#include <emscripten.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>
#include <string>

#include "web/element/Element.h"
#include "web/host/Adapters.h"
#include <brivane/controls/Dump.h>
#include <brivane/frame/ErrorReport.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/toolkits/web/Turns.h>
#include <brivane/vrijekolom/VrijeKolom.h>

// clang-format off
EM_JS(int, brivane_door_message, (int page, const char* title, const char* text, int style), {
  return Module["door"]["message"](page, UTF8ToString(title), UTF8ToString(text), style);
})
EM_JS(void, brivane_door_pending, (int page), { Module["door"]["pending"](page); })
EM_JS(void, brivane_door_focus, (int page, const char* name), { Module["door"]["focus"](page, UTF8ToString(name)); })
EM_JS(void, brivane_door_form, (int page, int color, int years), { Module["door"]["form"](page, color, years); })
EM_JS(void, brivane_door_closed, (int page), { Module["door"]["closed"](page); })
// clang-format on

namespace brivane::webelement {

namespace {

struct Opened {
  host::Subscription opening;
  const frmScenario* scenario = nullptr;  ///< the form that is shown next, or is open
  controls::Form* form = nullptr;
};

std::map<int, Opened> opened_;

/// A number that was kept for the script, which lets go of it once.
int Handed(const webhost::Adapter* adapter) {
  if (adapter == nullptr) return 0;
  return adapter->Object()->Number();
}

void ShowForm(int page, controls::Form& form) {
  Opened& opened = opened_[page];
  const host::Subscription closed = form.host::Form::Unloaded.Connect([page] { brivane_door_closed(page); });
  opened.form = &form;
  brivane_door_form(page, form.BackColor()->value, opened.scenario->AantalJaar());
  form.Perform(controls::Close{});
  opened_[page].form = nullptr;
}

void Hook(int page, Element& element) {
  web::Toolkit& toolkit = element.Toolkit();
  toolkit.Desktop().answer = [page](const std::string& title, const std::string& text, host::MessageStyle style) {
    return static_cast<host::MessageAnswer>(
        brivane_door_message(page, title.c_str(), text.c_str(), static_cast<int>(style)));
  };
  toolkit.Desktop().pending = [page] { brivane_door_pending(page); };
  toolkit.focusMoved = [page](controls::AnyControl& control) {
    brivane_door_focus(page, control.ElementName().c_str());
  };
  toolkit.modal = [page](controls::Form& form) { ShowForm(page, form); };
  element.actsBehindTheVeil = true;
}

/// The open form, or the surface of the element, which a binding that failed has veiled.
controls::Surface& SurfaceOf(int page, int form) {
  if (form != 0) return *opened_[page].form;
  controls::Surface& surface = Element::Find(page)->Surface();
  surface.SetVeiled(false);
  return surface;
}

/// 3: it failed, with number and description at `place`.
template <class Body> int Answering(void* place, const Body& body) {
  struct Failure {
    double number;
    char* text;
  };
  const web::CalledBack calledBack;
  try {
    return body();
  } catch (...) {
    const host::Error failure = frame::CurrentError();
    *static_cast<Failure*>(place) = {static_cast<double>(failure.Number()), strdup(failure.Description().c_str())};
    return 3;
  }
}

controls::BoxValue Typed(int type, double number, const char* text) {
  switch (type) {
    case 1: return std::string(text);
    case 2: return number;
    case 3: return host::Date(static_cast<std::int32_t>(number));
    default: return std::monostate{};
  }
}

controls::Action ActionOf(int action, int type, double number, const char* text) {
  const int whole = static_cast<int>(number);
  switch (action) {
    case 0: return controls::Press{};
    case 1: return controls::Select{};
    case 2: return controls::Tick{whole};
    case 3: return controls::Toggle{whole};
    case 4: return controls::Choose{whole};
    case 5: return controls::Enter{Typed(type, number, text)};
    default: return controls::Close{};
  }
}

/// Writes the state of a surface as JSON.
class Writer {
 public:
  [[nodiscard]] std::string Take() { return std::move(out_); }

  void Controls(const controls::Surface& surface) {
    out_ += '{';
    for (const controls::ControlDump& control : controls::DumpAll(surface)) {
      Text(control.name);
      out_ += ':';
      Control(control);
      out_ += ',';
    }
    Close('}');
  }

 private:
  void Control(const controls::ControlDump& control) {
    out_ += '{';
    Member("kind", static_cast<double>(control.kind));
    Member("visible", control.visible);
    Member("enabled", control.enabled);
    Value(control.value);
    if (control.caption) Member("caption", *control.caption);
    Member("left", double{control.place.left.value});
    Member("top", double{control.place.top.value});
    Member("width", double{control.place.width.value});
    Member("height", double{control.place.height.value});
    if (control.backColor) Member("backcolor", static_cast<double>(control.backColor->value));
    if (control.locked) Member("locked", *control.locked);
    if (control.list) List(*control.list);
    if (control.listView) Report(*control.listView);
    Close('}');
  }

  void Value(const controls::DumpValue& value) {
    if (const auto* yes = std::get_if<bool>(&value)) Member("value", *yes);
    if (const auto* whole = std::get_if<int>(&value)) Member("value", static_cast<double>(*whole));
    if (const auto* text = std::get_if<std::string>(&value)) Member("value", *text);
    if (const auto* number = std::get_if<double>(&value)) Member("value", *number);
    if (const auto* date = std::get_if<host::Date>(&value)) {
      const webhost::Value written(*date);
      if (date->IsNone())
        Member("value", 0.0);
      else
        Member("value", written.text);
    }
  }

  void List(const controls::ControlDump::ListContent& list) {
    out_ += "\"entries\":[";
    for (const auto& entry : list.entries) Text(entry.text), out_ += ',';
    Close(']');
    out_ += ',';
    Member("index", static_cast<double>(list.index));
  }

  void Report(const controls::ControlDump::ListViewContent& report) {
    out_ += "\"columns\":[";
    for (const auto& column : report.columns) Text(column.heading), out_ += ',';
    Close(']');
    out_ += ",\"widths\":[";
    for (const auto& column : report.columns) Number(double{column.width.value}), out_ += ',';
    Close(']');
    out_ += ",\"rows\":[";
    for (const auto& item : report.items) {
      out_ += '{';
      Member("key", item.key);
      out_ += "\"texts\":[";
      for (const auto& cell : item.cells) Text(cell.text), out_ += ',';
      Close(']');
      out_ += ",\"bold\":[";
      for (const auto& cell : item.cells) out_ += cell.bold ? "true," : "false,";
      Close(']');
      out_ += "},";
    }
    Close(']');
    out_ += ",\"selected\":";
    if (report.selected == 0)
      out_ += "null";
    else
      Text(report.items[report.selected - 1].key);
    out_ += ',';
  }

  void Name(const char* name) {
    Text(name);
    out_ += ':';
  }
  void Member(const char* name, bool value) {
    Name(name);
    out_ += value ? "true," : "false,";
  }
  void Member(const char* name, double value) {
    Name(name);
    Number(value);
    out_ += ',';
  }
  void Member(const char* name, const std::string& value) {
    Name(name);
    Text(value);
    out_ += ',';
  }
  void Number(double number) {
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.17g", number);
    out_ += digits;
  }
  void Text(const std::string& text) {
    out_ += '"';
    for (const char c : text) {
      char escaped[8];
      if (c == '"' || c == '\\') {
        out_ += '\\';
        out_ += c;
      } else if (static_cast<unsigned char>(c) < 0x20) {
        std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
        out_ += escaped;
      } else {
        out_ += c;
      }
    }
    out_ += '"';
  }
  void Close(char bracket) {
    if (out_.back() == ',') out_.pop_back();
    out_ += bracket;
  }

  std::string out_;
};

}  // namespace

extern "C" {

/// From now on the door is asked in a person's place, and the element acts although it stands for nothing.
EMSCRIPTEN_KEEPALIVE void brivane_door_open(int page) {
  if (Element* const element = Element::Find(page)) Hook(page, *element);
}

/// After the control was made.
EMSCRIPTEN_KEEPALIVE void brivane_door_listen(int page) {
  Element* const element = Element::Find(page);
  brivane::VrijeKolom* const editor = element != nullptr ? element->Part()->Editor() : nullptr;
  if (editor == nullptr) return;
  opened_[page].opening =
      editor->ScenarioGeopend.Connect([page](frmScenario& form) { opened_[page].scenario = &form; });
}

EMSCRIPTEN_KEEPALIVE void brivane_door_set(int page, int setting, double number, const char* text) {
  web::Desktop& desktop = Element::Find(page)->Toolkit().Desktop();
  switch (setting) {
    case 0: desktop.today = host::Date(static_cast<std::int32_t>(number)); break;
    case 1: desktop.title = text; break;
    case 2: desktop.twipsPerPixelX = static_cast<float>(number); break;
    case 3: desktop.twipsPerPixelY = static_cast<float>(number); break;
    case 4: desktop.groupSeparator = text; break;
    default: break;
  }
}

/// The kind of a control, with 256 added where a person can act on it; -1 where there is none.
EMSCRIPTEN_KEEPALIVE int brivane_door_find(int page, int form, const char* name, int index) {
  const controls::AnyControl* const control = SurfaceOf(page, form).Find(name, index);
  if (control == nullptr) return -1;
  return static_cast<int>(control->ControlKind()) + (control->Reachable() ? 256 : 0);
}

/// 0 done, 1 ignored, 2 refused.
EMSCRIPTEN_KEEPALIVE int brivane_door_perform(int page, int form, const char* name, int index, int action, int type,
                                              double number, const char* text, void* place) {
  return Answering(place, [&] {
    controls::Surface& surface = SurfaceOf(page, form);
    controls::AnyControl* const control = *name != '\0' ? surface.Find(name, index) : &surface;
    return static_cast<int>(control->Perform(ActionOf(action, type, number, text)));
  });
}

EMSCRIPTEN_KEEPALIVE int brivane_door_size(int page, const char* name, double width, double height, void* place) {
  return Answering(place, [&] {
    controls::Surface& surface = Element::Find(page)->Surface();
    auto& sized = *name != '\0' ? static_cast<controls::Surface&>(*surface.Find(name)) : surface;
    sized.Size({static_cast<float>(width)}, {static_cast<float>(height)});
    return 0;
  });
}

EMSCRIPTEN_KEEPALIVE char* brivane_door_state(int page, int form) {
  Writer writer;
  writer.Controls(SurfaceOf(page, form));
  return strdup(writer.Take().c_str());
}

/// 1: is being filled, 2: was changed since the last check, 4: the open form was closed.
EMSCRIPTEN_KEEPALIVE int brivane_door_flags(int page) {
  const brivane::VrijeKolom* const editor = Element::Find(page)->Part()->Editor();
  const controls::Form* const form = opened_[page].form;
  return (editor->Filling() ? 1 : 0) + (editor->Gewijzigd() ? 2 : 0) + (form == nullptr || form->IsUnloaded() ? 4 : 0);
}

/// The number of the host's object that the editor is bound to, or an open form works on; 0 for none.
EMSCRIPTEN_KEEPALIVE int brivane_door_record(int page, int form) {
  if (form != 0) return Handed(dynamic_cast<const webhost::Adapter*>(opened_[page].scenario->Scenario().get()));
  return Handed(dynamic_cast<const webhost::Adapter*>(Element::Find(page)->Part()->Editor()->Item().get()));
}

/// A form by itself, on an amount object that was kept. `locked` are the rows that take no input, with blanks between.
EMSCRIPTEN_KEEPALIVE int brivane_door_scenario(int page, int amount, int kind, int years, int labels, int age,
                                               int extra, int discount, double most, const char* locked, void* place) {
  return Answering(place, [&] {
    web::Toolkit& toolkit = Element::Find(page)->Toolkit();
    const auto session = std::make_shared<webhost::Session>(page, toolkit.Life());
    frmScenario form(toolkit);
    form.SetSoortScenario(static_cast<std::int16_t>(kind));
    std::istringstream rows(locked);
    for (std::int16_t row = 0; rows >> row;) form.SetDisableJaar(row, true);
    form.Invoeren(session->Adapt<webhost::BedragAdapter>(std::make_shared<const webhost::Kept>(page, amount)),
                  static_cast<std::int16_t>(years), labels, age, extra != 0, discount != 0, most);
    opened_[page].scenario = &form;
    form.ShowModal(nullptr);
    return 0;
  });
}

}  // extern "C"

}  // namespace brivane::webelement
