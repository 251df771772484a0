#include "replay/tool/Help.h"

#include <string_view>

#include "replay/document/Document.h"

namespace brivane::replay {

namespace {

constexpr std::size_t kMostColumns = 100;

constexpr std::string_view kToColumn = R"page(Usage: vrijekolom-replay [--check] FILE
       vrijekolom-replay --help | --version

Runs a scripted session of edits against the real controls, without a screen, and prints what
happened: one JSON object a line, in order, each line as it happens. FILE is a JSON document;
- stands for standard input.

  --check     read and check the document, run nothing, print nothing
  --help      print this page
  --version   print the version

EXIT CODE
  0   the session ran (whatever the controls reported), or the document is in order
  1   the transcript could not be written
  2   bad input: one line on standard error names the place and what is wrong there, as in
      steps[3].control: no control named "TxtBedrag"

DOCUMENT
  {
    "today": "2026-11-21",        date of the session; left out: the system's
    "title": "Dossier",           title of the application, for error reports
    "locale": "nl_NL",            decides the thousands separator of a message
    "screen": {"TwipsPerPixelX": 15, "TwipsPerPixelY": 15},
    "headers": "record",          Weergave and Kopregel as the columns hold them; "computed": worded
                                  from the column, as the reference host does it
    "log": ["trace", "writes", "calls", "events", "messages", "results"],
    "dossier": {...},             required
    "faults": [...],
    "steps": [...]                required
  }
  What is left out has the value shown. A date is "YYYY-MM-DD" (years 100 to 9999), or 0 for none.
  Unknown keys, keys that stand twice and values of another type are refused.

  log       which lines print: trace (enter, leave, error), writes (set), calls (call), events
            (event, focus, pending, opened, closed), messages (message, report), results (result,
            failed, ignored), and, only when named, reads (get). Steps and dumps always print.

  dossier   {"personen": [{"naam": ["J.", "van", "Dam"], "Geboortedatum": "1975-12-31"}],
             "Uitgangspunten": {"Leeftijd": 67},
             "MaatschappijType": [["AB", "Alfa Bank"], ["ZZ", "Anders"]],
             "HuidigeLening": {"VrijeKolommen": []},
             "Leningen": [{"VrijeKolommen": []}]}
            One or two persons are required. HuidigeLening is the loan of the current situation,
            Lening 0; Leningen are those of the new situation, from Lening 1.

)page";

constexpr std::string_view kToPeriod = R"page(            Every field may be left out. An entry of Perioden:
)page";

constexpr std::string_view kFromFaults = R"page(
  faults    {"member": "VrijeKolomItem.Termijn", "op": "get", "nth": 2, "number": 13,
             "description": "...", "source": "..."}
            The nth get, set or call of that host member, counted from the start of the session,
            fails with that error. It changes nothing and prints no line of its own. A getter that
            hands out an object (Dossier.Lening, Scenario.Periode) counts for get and call alike.

STEPS
  {"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1}
            binds the editor to a free column
  {"do": "Validation", "ControleNr": 0, "Cancel": false}
  {"do": "Toelichting.Validation", "ControleNr": 0, "Cancel": false}
            the host's check; both numbers may be left out
  {"do": "BackColor", "value": 255}
            sets the editor's background colour
  {"do": "BeeindigenZichtbaar", "value": true}
            shows or hides the proposals frame
  {"do": "resize", "width": 9000, "height": 4000}
            the container sizes the editor; with "control": "Toelichting" the embedded control
  {"do": "click", "control": "optLast", "index": 2}
            selects an option; without an index, presses a button
  {"do": "check", "control": "ChkVoorstel", "index": 2, "value": 1}
            ticks (1) or unticks (0) a box
  {"do": "toggle", "control": "jnInDagloon", "value": 2}
            sets a yes/no toggle to "Ja" (2) or "Nee" (1)
  {"do": "select", "control": "cboTermijn", "entry": "per jaar"}
            picks an entry by its text, or by "index" from 0
  {"do": "enter", "control": "TxtBd", "value": 1200.5}
            types a value and leaves the box: a number, a text, {"date": "2024-01-31"}, or
            {"date": 0} to empty a date box. "" empties any box. A value of another kind than the
            box's is held as typed, and fails with error 13 when it is read.
  {"do": "click", "control": "cmdScenario", "modal": [...]}
            opens the year-by-year form; the inner steps run while it is open, and it closes by
            its close box if none of them closed it
  {"do": "frmScenario", "Len_Id": 0, "Vrij_Id": 1, "AantalJaar": 5, "Labeltype": 0,
   "Anv_Leeftijd": 0, "LooptijdExtra": false, "In_RenteKorting": false, "Bd_MaxOpname": 0,
   "SoortScenario": 0, "DisableJaar": [3], "modal": [...]}
            opens the form by itself on that column's amount; Len_Id, Vrij_Id and AantalJaar are
            required
  {"do": "close"}
            in a modal list: the form's close box
  {"do": "dump"}
            prints the state of every control and of the bound record; in a modal list, of the
            form and its scenario

  Controls of the embedded control are named "Toelichting.jnAO" and so on; in a modal list names
  are the form's own ("txtBedrag" with "index": 3). A modal list takes actions on the form's
  controls, close and dump. What comes after the form was closed does not run.

  On any step:
  "answers": ["Ja"]     answers its message boxes in turn: "OK", "Ja", "Nee". What is left out
                        answers OK, and "Nee" to a question.
  "pending": [steps]    user actions that are waiting. They run when the controls let pending events
                        run, and the rest after the step.

  An action on a control that a person cannot reach (disabled, hidden, in a hidden frame, locked)
  does nothing.

TRANSCRIPT
  {"step": 1, "do": "SetApplication"}                       a step begins; an inner one: "1.2"
  {"enter": "Fill_Controls", "in": "VrijeKolom"}            a traced procedure is entered,
  {"leave": true, "in": "VrijeKolom"}                       left,
  {"error": "TxtBd_Validation", "in": "VrijeKolom"}         or ended by a failure
  {"report": {...}}                                         the error record handed to the host
  {"set": "VrijeKolomItem.Termijn", "value": 12}            a write, as the record holds it then
  {"get": "VrijeKolomItem.Termijn", "value": 12}            a read, when reads are logged
  {"call": "Dossier.VoegToeAanVoorstel", "args": [1, 1]}    an operation of the host
  {"event": "RefreshTopDisplay", "text": "..."}             an event; also HeightChanged and
                                                            Toelichting.Changed
  {"message": {"title": "...", "text": "...", "style": 48}, "answer": "OK"}
  {"focus": "txtMaatschappij"}                              the input focus was moved by code
  {"pending": true}                                         pending events may run
  {"opened": "frmScenario", "BackColor": 255, "AantalJaar": 5}
  {"closed": "frmScenario"}
  {"result": "Validation", "Cancel": true}                  what a check or an entered value came to
  {"failed": {"number": 9, "description": "..."}}           a failure that reached the host
  {"ignored": "optFiscaal(2)"}                              a control that cannot be reached
  {"dump": {"controls": {...}, "record": {...}, "Filling": false, "Gewijzigd": false}}

EXAMPLE
  $ cat term.json
  {"dossier": {"personen": [{}], "HuidigeLening": {"VrijeKolommen": [{"Termijn": 1}]}},
   "log": ["writes"],
   "steps": [{"do": "SetApplication", "Len_Id": 0, "Vrij_Id": 1},
             {"do": "select", "control": "cboTermijn", "entry": "per jaar"}]}
  $ vrijekolom-replay term.json
  {"step": 1, "do": "SetApplication"}
  {"step": 2, "do": "select"}
  {"set": "VrijeKolomItem.Termijn", "value": 12}

The JSON Schema of the document is installed as share/brivane/vrijekolom-replay.schema.json.
)page";

/// An object, its members on lines of at most kMostColumns; `title` begins the first line.
std::string Wrapped(std::string_view title, const Json& object) {
  std::string text;
  std::string line = std::string(title) + '{';
  for (auto member = object.begin(); member != object.end(); ++member) {
    std::string shown = Quoted(member.key()) + ": ";
    AppendLine(shown, member.value());
    shown += std::next(member) == object.end() ? '}' : ',';
    if (member == object.begin()) {
      line += shown;
    } else if (line.size() + 1 + shown.size() <= kMostColumns) {
      line += ' ' + shown;
    } else {
      text += line + '\n';
      line = std::string(title.size() + 1, ' ') + shown;
    }
  }
  return text + line + '\n';
}

}  // namespace

std::string HelpText() {
  const dossier::BedragGegevens onePeriod{.Naam = {}, .Perioden = {{}}};
  return std::string(kToColumn)
      .append(Wrapped("  column    ", ToJson(dossier::KolomGegevens())))
      .append(kToPeriod)
      .append(Wrapped("            ", ToJson(onePeriod)["Perioden"][0]))
      .append(kFromFaults);
}

}  // namespace brivane::replay
