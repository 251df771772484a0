#include "tests/app/recording/RecordedSession.h"

#include <gtest/gtest.h>

#include <utility>

#include "dossier/model/DossierControle.h"
#include "dossier/model/SampleCase.h"
#include "replay/play/Session.h"
#include <brivane/controls/Form.h>
#include <brivane/controls/Surface.h>
#include <brivane/frame/Calendar.h>

namespace brivane::app {
namespace {

using controls::Choose;
using controls::Close;
using controls::Enter;
using controls::Outcome;
using controls::Press;
using controls::Select;
using controls::Tick;
using controls::Toggle;
using replay::Log;

constexpr auto kYes = host::MessageAnswer::Yes;
constexpr auto kNo = host::MessageAnswer::No;

host::Date DateOf(int day, int month, int year) { return frame::MakeDate({.year = year, .month = month, .day = day}); }
Enter Text(const char* text) { return Enter{std::string(text)}; }

const std::set<Log> kLogged{Log::Trace, Log::Writes, Log::Calls, Log::Events, Log::Messages};

std::shared_ptr<dossier::Dossier> Sample() {
  auto environment = std::make_shared<dossier::Environment>();
  environment->Kopteksten = std::make_shared<dossier::BerekendeKopteksten>();
  return std::make_shared<dossier::Dossier>(dossier::VoorbeeldDossier(), std::move(environment));
}

host::HostFactories Factories() {
  return {
      [](std::string_view) { return std::make_shared<dossier::Tracer>(); },
      [](std::string_view) { return std::make_shared<dossier::DossierControle>([] { return DateOf(21, 11, 2026); }); }};
}

}  // namespace

RecordedSession::RecordedSession()
    : dossier_(Sample()),
      transcript_([this](std::string_view line) { live.emplace_back(line); }, kLogged),
      host_(std::make_shared<dossier::Application>(dossier_), Factories(), transcript_) {}

void RecordedSession::Record(controls::Surface& surface) {
  surface_ = &surface;
  recorder_ = std::make_unique<app::Recorder>(dossier_, surface, "nl_NL");
  surface.MadeBy().focusMoved = [this](controls::AnyControl& control) { transcript_.Focus(control.ElementName()); };
}

void RecordedSession::Follow(brivane::VrijeKolom& editor) {
  editor_ = &editor;
  subscriptions_ += editor.Toelichting().Changed.Connect([this] { transcript_.Event("Toelichting.Changed"); });
  subscriptions_ += editor.ScenarioGeopend.Connect([this](frmScenario& form) {
    transcript_.Opened(form.BackColor(), form.AantalJaar());
    closed_ = form.Form().Unloaded.Connect([this] { transcript_.Closed(); });
  });
}

host::MessageAnswer RecordedSession::Answer(const std::string& title, const std::string& text,
                                            host::MessageStyle style) {
  host::MessageAnswer answer = style == host::MessageStyle::YesNoQuestion ? kNo : host::MessageAnswer::Ok;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  transcript_.Message(title, text, style, answer);
  return answer;
}

void RecordedSession::Bind(std::int16_t Len_Id, std::int16_t Vrij_Id) {
  const bool current = Len_Id == dossier::Dossier::kHuidig;
  recorder_->Do(replay::BeeindigenStep{current}, [&] { editor_->SetBeeindigenZichtbaar(current); });
  recorder_->Do(replay::BindStep{Len_Id, Vrij_Id}, [&] { SetApplication(Len_Id, Vrij_Id); });
}

void RecordedSession::SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id) {
  editor_->SetApplication(host_.Application(), Len_Id, Vrij_Id);
}

bool RecordedSession::Leave(std::deque<host::MessageAnswer> answers) {
  answers_ = std::move(answers);
  bool cancel = false;
  recorder_->Do(replay::ValidationStep{replay::Target::Editor, 0, false}, [&] { editor_->Validation(cancel); });
  EXPECT_TRUE(answers_.empty()) << "an answer that nobody asked for";
  return !cancel;
}

Outcome RecordedSession::Do(controls::Surface& surface, const std::string& name, const controls::Action& action,
                            int index) {
  controls::AnyControl* const control = surface.Find(name, index);
  if (control == nullptr) {
    ADD_FAILURE() << "no control " << name << '(' << index << ')';
    return Outcome::Ignored;
  }
  ++actions;
  const bool onForm = &surface != surface_;
  const std::string element = onForm ? "frmScenario." + name : control->ElementName();
  const Outcome outcome = control->Perform(action);
  if (outcome != Outcome::Ignored) operated.insert(element);
  return outcome;
}

Outcome RecordedSession::Do(const std::string& name, const controls::Action& action, int index,
                            std::deque<host::MessageAnswer> answers) {
  answers_ = std::move(answers);
  const Outcome outcome = Do(*surface_, name, action, index);
  EXPECT_TRUE(answers_.empty()) << "an answer that nobody asked for: " << name;
  return outcome;
}

void RecordedSession::Play() {
  Bind(0, 1);
  recorder_->Do(replay::BackColorStep{host::Color{0xC0C0C0}}, [&] { editor_->SetBackColor(host::Color{0xC0C0C0}); });
  surface_->Size({11000}, {5000});
  Choices();
  Looptijd();
  Product();
  Toelichting();
  ScenarioForm();
}

void RecordedSession::Choices() {
  for (const int last : {3, 2, 1}) Do("optLast", Select{}, last);
  for (const int fiscaal : {1, 2, 3}) Do("optFiscaal", Select{}, fiscaal);
  Do("optLast", Select{}, 2);
  for (const int fiscaal : {3, 1, 2}) Do("optFiscaal", Select{}, fiscaal);
  Do("jnInkUitArbeid", Toggle{host::kJa});
  Do("jnInDagloon", Toggle{host::kJa});
  Do("jnInkUitArbeid", Toggle{host::kNee});
  for (const int persoon : {2, 1, 2}) Do("optAanvrager", Select{}, persoon);
  Do("TxtOm", Text("Buitenschoolse opvang, « naschools »"));
  Do("TxtBd", Enter{512.755});
  for (const int termijn : {1, 2, 3, 4, 0}) Do("cboTermijn", Choose{termijn});
  for (const int voorstel : {1, 2, 3}) Do("ChkVoorstel", Tick{host::kTicked}, voorstel);
  Do("ChkVoorstel", Tick{host::kUnticked}, 2);
  // Changed, and deviated from in a new loan: the check asks, and "Ja" takes the deviation out.
  EXPECT_TRUE(Leave({kYes}));
  EXPECT_FALSE(dossier_->HeeftAfwijking(1));
}

void RecordedSession::Looptijd() {
  Bind(0, 3);
  Do("TxtDtAanvang", Enter{DateOf(1, 5, 2025)});
  Do("TxtAnJaar", Enter{4.0});
  Do("TxtAnMaand", Enter{18.0});
  Do("TxtDtEind", Enter{DateOf(1, 8, 2030)});
  EXPECT_EQ(Do("TxtDtEind", Enter{DateOf(1, 1, 2020)}), Outcome::Refused);
  EXPECT_EQ(Do("TxtDtAanvang", Enter{}), Outcome::Refused);
  EXPECT_FALSE(Leave());
  Do("TxtDtAanvang", Enter{DateOf(31, 1, 2025)});
  Do("TxtDtEind", Enter{DateOf(29, 2, 2028)});
  // Past the last year that there is: the handler fails and reports.
  Do("TxtDtAanvang", Enter{DateOf(1, 12, 9999)});
  Do("TxtDtAanvang", Enter{DateOf(31, 1, 2025)});
  EXPECT_TRUE(Leave());
}

void RecordedSession::Product() {
  Bind(0, 6);
  Do("txtMaatschappij", Text("TC De Eerste Bal"));
  Do("txtVervaldatum", Enter{DateOf(31, 12, 2029)});
  Do("cboMaatschappij", Choose{3});
  Do("cboProductsoort", Choose{0});
  Do("cboProductsoort", Choose{4});
  Do("txtProductsoort", Text("Contributie"));
  Do("txtProductnaam", Text("Seniorlid, zaterdag"));
  Do("jnUwBemiddeling", Toggle{host::kJa});
  Do("chkProduct", Tick{host::kUnticked});
  // Out of reach without a product: ignored, and no part of the document.
  EXPECT_EQ(Do("txtProductnaam", Text("nergens")), Outcome::Ignored);
  Do("chkProduct", Tick{host::kTicked});
  Do("cboProductsoort", Choose{2});
  Leave();
}

void RecordedSession::Toelichting() {
  Bind(0, 5);
  Do("Toelichting.jnAO", Toggle{host::kJa});
  Do("Toelichting.jnWW", Toggle{host::kJa});
  Do("Toelichting.jnLangleven", Toggle{host::kJa});
  Do("Toelichting.jnOverlijden", Toggle{host::kNee});
  Do("Toelichting.jnOverlijden", Toggle{host::kJa});
  Do("Toelichting.TxtPcOvergang", Enter{62.5});
  Do("Toelichting.txtEinddatum", Enter{DateOf(1, 3, 2049)});
  Do("Toelichting.TxtEindjaar", Enter{71.0});
  // Out of its range, while another edit waits for the check to let it run.
  LetWait([this] { Do(*surface_, "TxtOm", Text("Lijfrente, na overlijden"), frame::kNoIndex); });
  bool cancel = false;
  recorder_->Do(replay::ValidationStep{replay::Target::Toelichting, 0, false},
                [&] { editor_->Toelichting().Validation(cancel); });
  EXPECT_EQ(dossier_->FindKolom(0, 5)->Omschrijving(), "Lijfrente, na overlijden");
  Do("Toelichting.TxtPcOvergang", Enter{101.0});
  Do("Toelichting.TxtPcOvergang", Enter{70.0});
}

void RecordedSession::ScenarioForm() {
  // Amounts with a growth: stored with OK.
  OnForm([this](controls::Surface& surface) {
    Do(surface, "txtBedrag", Enter{6000.0}, 1);
    Do(surface, "txtPercentage", Enter{2.25}, 2);
    Do(surface, "txtBedrag", Enter{7000.0}, 4);
    Do(surface, "chkAanvullen", Tick{host::kTicked}, frame::kNoIndex);
    Do(surface, "txtPercentage", Enter{3.0}, 5);
    Do(surface, "cmdOK", Press{}, frame::kNoIndex);
    // The form is gone.
    EXPECT_EQ(Do(surface, "txtBedrag", Enter{1.0}, 1), Outcome::Ignored);
  });
  Do("cmdScenario", Press{});
  EXPECT_EQ(dossier_->FindKolom(0, 5)->Gegevens().Bedrag.Bedrag, 6000);
  Leave();

  // Amounts alone, with a one-off: closed without OK, so only the first row is kept.
  Bind(1, 7);
  const std::size_t perioden = dossier_->FindKolom(1, 7)->Gegevens().Bedrag.Perioden.size();
  OnForm([this](controls::Surface& surface) {
    Do(surface, "txtBedrag", Enter{120.0}, 1);
    Do(surface, "chkEenmalig", Tick{host::kTicked}, 3);
    Do(surface, "txtBedrag", Enter{130.0}, 6);
    EXPECT_EQ(surface.Perform(Close{}), Outcome::Done);
  });
  Do("cmdScenario", Press{});
  EXPECT_EQ(dossier_->FindKolom(1, 7)->Gegevens().Bedrag.Bedrag, 120);
  EXPECT_EQ(dossier_->FindKolom(1, 7)->Gegevens().Bedrag.Perioden.size(), perioden);
  Do("TxtAnMaand", Enter{200.0});
  EXPECT_TRUE(Leave());
}

std::vector<std::string> Lines(const replay::Document& document) {
  std::vector<std::string> lines;
  replay::Document asked = document;
  asked.log = kLogged;
  replay::Session session(asked, [&](std::string_view line) {
    if (!line.starts_with("{\"step\"")) lines.emplace_back(line);
  });
  session.Run();
  return lines;
}

}  // namespace brivane::app
