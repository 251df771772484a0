#pragma once

#include <algorithm>
#include <charconv>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>

#include <brivane/controls/ListBox.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Typing.h>
#include <brivane/host/controls/CheckBox.h>
#include <brivane/host/controls/JaNee.h>

namespace script {

namespace controls = brivane::controls;

/// Plays lines of a text on a surface: "TxtOm type Vereniging", "optLast(2) select", "cmbTermijn choose jaar",
/// "jnAO set Nee", "chkProduct tick", "cmdScenario press". It stops at a line that cannot be done, and says why.
class Player {
 public:
  Player(std::istream& lines, std::ostream& out) : lines_(lines), out_(out) {}

  /// Goes on until the text ends, or `done` says so.
  bool Play(controls::Surface& surface, const std::function<bool()>& done) {
    std::string line;
    while (!failed_ && !done() && std::getline(lines_, line)) {
      ++number_;
      std::istringstream words(line);
      std::string name, verb, rest;
      words >> name >> verb >> std::ws;
      std::getline(words, rest);
      if (name.empty() || name.front() == '#') continue;
      const std::string fault = Do(surface, name, verb, rest);
      if (fault.empty()) continue;
      out_ << "line " << number_ << ": " << fault << '\n';
      failed_ = true;
    }
    return !failed_;
  }

 private:
  static std::string Do(controls::Surface& surface, const std::string& name, const std::string& verb,
                        const std::string& rest) {
    controls::AnyControl* const control = Find(surface, name);
    if (control == nullptr) return "there is no " + name;
    controls::Action action = controls::Press{};
    if (verb == "type") {
      const auto* const box = dynamic_cast<controls::TextBox*>(control);
      if (box == nullptr) return name + " is no box";
      const controls::TypedContent content = controls::ReadTyped(rest, box->Format(), {});
      if (!content.refusal.empty()) return content.refusal;
      action = controls::Enter{content.value};
    } else if (verb == "choose") {
      const auto* const list = dynamic_cast<controls::ListBox*>(control);
      if (list == nullptr) return name + " is no list";
      const auto& entries = list->Entries();
      const auto entry = std::find_if(entries.begin(), entries.end(), [&](const auto& e) { return e.text == rest; });
      if (entry == entries.end()) return name + " has no entry " + rest;
      action = controls::Choose{static_cast<int>(entry - entries.begin())};
    } else if (verb == "select") {
      action = controls::Select{};
    } else if (verb == "tick" || verb == "untick") {
      action = controls::Tick{verb == "tick" ? brivane::host::kTicked : brivane::host::kUnticked};
    } else if (verb == "set") {
      action = controls::Toggle{rest == "Ja" ? brivane::host::kJa : brivane::host::kNee};
    } else if (verb != "press") {
      return "nobody can " + verb;
    }
    switch (control->Perform(action)) {
      case controls::Outcome::Done: return {};
      case controls::Outcome::Ignored: return name + " cannot be reached, or not like that";
      case controls::Outcome::Refused: break;
    }
    return name + " does not take " + rest;
  }

  /// "TxtBd", or an element of an array, "optLast(2)".
  static controls::AnyControl* Find(controls::Surface& surface, const std::string& name) {
    const auto bracket = name.find('(');
    if (bracket == std::string::npos) return surface.Find(name);
    int index = 0;
    std::from_chars(name.data() + bracket + 1, name.data() + name.size(), index);
    return surface.Find(name.substr(0, bracket), index);
  }

  std::istream& lines_;
  std::ostream& out_;
  int number_ = 0;
  bool failed_ = false;
};

}  // namespace script
