#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <brivane/controls/Action.h>
#include <brivane/host/Color.h>
#include <brivane/host/Date.h>
#include <brivane/host/Twips.h>
#include <brivane/host/controls/Desktop.h>
#include <brivane/hostkit/instrument/Members.h>
#include <brivane/session/document/DescribedCase.h>
#include <brivane/session/document/Reading.h>

/// A session of edits as data: the machine that it is on, the faults of the host, and the steps.
namespace brivane::session {

// The members of a host, and the host that watches, are the kit's.
using namespace hostkit;

/// The lines that a transcript can hold besides steps and dumps.
enum class Log : std::uint8_t { Trace, Writes, Calls, Events, Messages, Results, Reads };

struct FaultPlan {
  Member member;
  Op op;
  std::uint32_t nth;  ///< from 1, counted from the start of the session
  std::int32_t number;
  std::string description;
  std::string source;
};

/// Where an action or a check goes.
enum class Target : std::uint8_t { Editor, Toelichting };

/// Binds the editor.
struct BindStep {
  std::int16_t Len_Id;
  std::int16_t Vrij_Id;
};
/// The host's check.
struct ValidationStep {
  Target target;
  std::int32_t ControleNr;
  bool Cancel;
};
struct BackColorStep {
  host::Color color;
};
/// The host shows or hides the proposals frame.
struct BeeindigenStep {
  bool visible;
};
/// The container sizes the editor or the embedded control; twips.
struct ResizeStep {
  Target target;
  float width;
  float height;
};
/// A person acts on a control. A list's entry may be picked by its text, which is looked up when the step runs.
struct ActStep {
  std::string control;
  std::optional<int> index;
  std::variant<controls::Action, std::string> action;
};
/// Opens the year-by-year form by itself on a column's amount.
struct ScenarioStep {
  std::int16_t Len_Id;
  std::int16_t Vrij_Id;
  std::int16_t AantalJaar;
  std::int32_t Labeltype;
  std::int32_t Anv_Leeftijd;
  bool LooptijdExtra;
  bool In_RenteKorting;
  double Bd_MaxOpname;
  std::int16_t SoortScenario;
  std::vector<std::int16_t> DisableJaar;
};
/// The form's close box.
struct CloseStep {};
struct DumpStep {};

struct Step {
  std::string place;  ///< in the document: `steps[3].modal[0]`
  std::string name;   ///< as written under `do`
  std::variant<BindStep, ValidationStep, BackColorStep, BeeindigenStep, ResizeStep, ActStep, ScenarioStep, CloseStep,
               DumpStep>
      what;
  std::vector<host::MessageAnswer> answers;
  std::vector<Step> pending;
  std::vector<Step> modal;
};

struct Document {
  host::Date today;  ///< no date: the system's
  std::string title = "Dossier";
  std::string locale = "nl_NL";
  float twipsPerPixelX = host::kTwipsPerPixel;
  float twipsPerPixelY = host::kTwipsPerPixel;
  std::set<Log> log = {Log::Trace, Log::Writes, Log::Calls, Log::Events, Log::Messages, Log::Results};
  std::vector<FaultPlan> faults;
  std::vector<Step> steps;
};

/// Every key of a document: those of a session on any host, and those of the case that it starts from, which are read
/// where that case is made.
inline constexpr std::string_view kHeaders = "headers";
inline constexpr std::string_view kCase = "dossier";
inline constexpr std::array<std::string_view, 9> kDocumentKeys{"today", "title", "locale", "screen", kHeaders,
                                                               "log",   kCase,   "faults", "steps"};

/// Reads the parts of a document, and checks all of them but what only a running session can tell: whether a list has
/// the entry that a step picks, and whether the form has the row that a step names. Each throws BadInput; the case is
/// read between them, so that of several mistakes the first is told.
/// @{
void ReadMachine(const Value& value, Document& document);
void ReadLog(const Value& value, Document& document);
void ReadFaultsAndSteps(const Value& value, Document& document);
/// @}

/// Reads and checks a document for a host that brings its own case. Throws BadInput.
[[nodiscard]] Document ReadDocument(std::string_view text, DescribedCase described);

}  // namespace brivane::session
