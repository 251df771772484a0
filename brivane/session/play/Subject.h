#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <brivane/controls/Action.h>
#include <brivane/controls/Dump.h>
#include <brivane/host/Color.h>
#include <brivane/host/controls/Desktop.h>
#include <brivane/host/model/BedragObject.h>
#include <brivane/host/model/VrijeKolomItem.h>
#include <brivane/hostkit/instrument/InstrumentedHost.h>
#include <brivane/session/document/Document.h>

namespace brivane {
class VrijeKolom;
}

/// What a session acts on, wherever the controls stand: in this process, or on the far side of a boundary.
namespace brivane::session {

/// What a step needs to know of a control.
struct ControlState {
  host::Kind kind;
  bool reachable;  ///< a person can act on it
};

/// Controls that a person acts on. They are named as in documents: "TxtBd", "Toelichting.jnAO", and "optLast"
/// with the index of an element. All but Find take the name of a control that is there.
class Screen {
 public:
  virtual ~Screen() = default;

  /// Nothing where there is no such control.
  [[nodiscard]] virtual std::optional<ControlState> Find(const std::string& name, std::optional<int> index) = 0;
  /// The texts of a list.
  [[nodiscard]] virtual std::vector<std::string> Entries(const std::string& name) = 0;
  virtual controls::Outcome Perform(const std::string& name, std::optional<int> index,
                                    const controls::Action& action) = 0;
  /// Every control in the order of creation, each embedded surface followed by what is on it.
  [[nodiscard]] virtual std::vector<controls::ControlDump> Dump() = 0;
};

/// A year-by-year form that is open.
class FormScreen : public Screen {
 public:
  [[nodiscard]] virtual bool IsClosed() = 0;
  /// The close box; does nothing on a closed form.
  virtual void Close() = 0;
  [[nodiscard]] virtual host::Color BackColor() = 0;
  [[nodiscard]] virtual std::int16_t AantalJaar() = 0;
  /// The amount object as the host handed it out; nothing once the form was closed.
  [[nodiscard]] virtual std::shared_ptr<host::BedragObject> Scenario() = 0;
};

/// The component under replay: what the host does to it. As a screen it is the editor.
///
/// Failures of the component come out as host::Error, and failures of the host go in as such.
class Subject : public Screen {
 public:
  virtual void SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id) = 0;
  /// Answers the verdict that comes back for the one that goes in.
  [[nodiscard]] virtual bool Validation(Target target, bool cancel, std::int32_t ControleNr) = 0;
  virtual void SetBackColor(host::Color color) = 0;
  virtual void SetBeeindigenZichtbaar(bool visible) = 0;
  /// The container sizes a surface; twips.
  virtual void Size(Target target, float width, float height) = 0;
  /// Makes a year-by-year form of its own, fills it from the amount object and shows it.
  virtual void ShowScenario(const ScenarioStep& step, const std::shared_ptr<host::BedragObject>& bedrag) = 0;

  /// The column that the editor is bound to, as the host handed it out.
  [[nodiscard]] virtual std::shared_ptr<host::VrijeKolomItem> Item() = 0;
  [[nodiscard]] virtual bool Filling() = 0;
  [[nodiscard]] virtual bool Gewijzigd() = 0;

  /// The editor itself where it stands in this process as C++; else nothing.
  [[nodiscard]] virtual VrijeKolom* Editor() { return nullptr; }
};

/// Told what a component does while a session acts on it.
class Audience {
 public:
  virtual ~Audience() = default;

  virtual void OnRefreshTopDisplay(const std::string& text) = 0;
  virtual void OnHeightChanged() = 0;
  /// Before the editor's own listener.
  virtual void OnToelichtingChanged() = 0;
  /// The logic moved the input focus.
  virtual void OnFocus(const std::string& control) = 0;
  /// Answers a message box.
  virtual host::MessageAnswer OnMessage(const std::string& title, const std::string& text,
                                        host::MessageStyle style) = 0;
  /// The logic lets pending events run.
  virtual void OnPending() = 0;
  /// A form is shown: what is done to it is done here. One that is left open is closed after it.
  virtual void OnShown(FormScreen& form) = 0;
  /// The form was closed; before the form's own listener.
  virtual void OnClosed() = 0;
};

/// Makes the component for a session: on the machine that the document describes, against its host, with an
/// editor that is not bound yet. All three outlive it. A failure of the host ends the making.
using MakeSubject =
    std::function<std::unique_ptr<Subject>(const Document& document, InstrumentedHost& host, Audience& audience)>;

}  // namespace brivane::session
