#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include <brivane/frame/Tracing.h>
#include <brivane/toolkits/memory/Desktop.h>

namespace brivane::frame {

namespace {

using Log = std::vector<std::string>;

/// Writes down every operation of the tracer in its order.
class Tracer final : public host::ProcedureTrace {
 public:
  explicit Tracer(Log& log) : log_(log) {}
  void EnterProcedure(std::string_view procedure) override {
    log_.push_back("enter " + std::string(procedure));
    if (procedure == refusesToEnter) throw host::Error(1001, "geen ingang", "tracer");
  }
  void LeaveProcedure() override {
    log_.emplace_back("leave");
    if (refusesToLeave) throw host::Error(1002, "geen uitgang", "tracer");
  }
  void ErrorInProcedure(std::string_view procedure) override { log_.push_back("error " + std::string(procedure)); }
  void SetApplicationTitle(const std::string& text) override { log_.push_back("ApplicationTitle " + text); }
  void SetObjectName(const std::string& text) override { log_.push_back("ObjectName " + text); }
  void SetCaption(const std::string& text) override { log_.push_back("Caption " + text); }
  void SetObjectDescription(const std::string& text) override { log_.push_back("ObjectDescription " + text); }
  void SetMessage(const std::string& text) override { log_.push_back("Message " + text); }
  void SetErrorNumber(const std::string& text) override { log_.push_back("ErrorNumber " + text); }
  void SetErrorDescription(const std::string& text) override { log_.push_back("ErrorDescription " + text); }
  void SetErrorSource(const std::string& text) override { log_.push_back("ErrorSource " + text); }

  std::string refusesToEnter;
  bool refusesToLeave = false;

 private:
  Log& log_;
};

/// A host of which nothing but ReportError is used.
class Host final : public host::Application {
 public:
  explicit Host(Log& log) : log_(log) {}
  std::shared_ptr<host::Dossier> Dossier() override { return nullptr; }
  std::shared_ptr<host::Uitgangspunten> Uitgangspunten() override { return nullptr; }
  std::shared_ptr<host::Hoofdvenster> Hoofdvenster() override { return nullptr; }
  std::shared_ptr<host::Codetabellen> Codetabellen() override { return nullptr; }
  void VulCombo(const std::shared_ptr<host::Codetabellen>&, std::string_view, host::ListBox&, const std::string&,
                const std::string&, std::optional<std::int32_t>) override {}
  std::string ZoekCode(const std::shared_ptr<host::Codetabellen>&, std::string_view, const std::string&) override {
    return {};
  }
  void ReportError(host::ProcedureTrace&) override {
    log_.emplace_back("report");
    if (fails) throw host::Error(1003, "geen melding", "host");
  }

  bool fails = false;

 private:
  Log& log_;
};

class TracingTest : public testing::Test {
 protected:
  /// The report of an error, as the tracer and the host hear it.
  [[nodiscard]] static Log Report(const std::string& procedure, const std::string& number,
                                  const std::string& description, const std::string& source) {
    return {"error " + procedure,
            "ApplicationTitle Dossier",
            "ObjectName VrijeKolom",
            "Caption Kwandero",
            "ObjectDescription Vrije kolom",
            "Message Er is een fout opgetreden.",
            "ErrorNumber " + number,
            "ErrorDescription " + description,
            "ErrorSource " + source,
            "report"};
  }
  static Log Then(Log first, const Log& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
  }

  Log log;
  memory::Desktop desktop;
  std::shared_ptr<Host> application = std::make_shared<Host>(log);
  std::shared_ptr<Tracer> tracer = std::make_shared<Tracer>(log);
  int made = 0;
  Tracing tracing{{.name = "VrijeKolom", .description = "Vrije kolom"},
                  {.MaakProcedureTrace =
                       [this](std::string_view control) {
                         EXPECT_EQ(control, "VrijeKolom");
                         ++made;
                         return tracer;
                       },
                   .MaakDossierControle = nullptr},
                  {.desktop = &desktop, .application = [this] { return application; }}};
};

}  // namespace

TEST_F(TracingTest, AProcedureEntersDoesItsWorkAndLeaves) {
  tracing.Handled("TxtOm_Validation", [this] { log.emplace_back("body"); });
  EXPECT_EQ(log, (Log{"enter TxtOm_Validation", "body", "leave"}));
}

TEST_F(TracingTest, TheFirstProcedureMakesTheTracerAndTheNextKeepIt) {
  EXPECT_EQ(made, 0);
  tracing.Handled("A", [] {});
  EXPECT_EQ(made, 1);
  tracing.Unhandled("B", [] {});
  tracing.Handled("C", [] { throw host::Error(host::ErrorNumber::Overflow); });
  EXPECT_EQ(made, 1);
}

TEST_F(TracingTest, AFactoryThatAnswersNothingFailsTheProcedureWith91) {
  tracer = nullptr;
  bool ran = false;
  try {
    tracing.Handled("A", [&] { ran = true; });
    ADD_FAILURE() << "no failure";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 91);
  }
  EXPECT_FALSE(ran);
}

TEST_F(TracingTest, AFailureIsReportedOnceInTheOrderOfItsFieldsAndNothingIsLeft) {
  tracing.Handled("TxtBd_Validation", [] { throw host::Error(13, "Verkeerd type", "Dossier"); });
  EXPECT_EQ(log, Then({"enter TxtBd_Validation"}, Report("TxtBd_Validation", "13", "Verkeerd type", "Dossier")));
  EXPECT_EQ(desktop.pointerResets, 1);
}

TEST_F(TracingTest, AFailureOfItsOwnHasADescriptionAndASource) {
  tracing.Handled("A", [] { throw host::Error(host::ErrorNumber::ObjectMissing); });
  EXPECT_EQ(log, Then({"enter A"}, Report("A", "91", "Object missing", "BrivaneVrijeKolom")));
}

TEST_F(TracingTest, AnyOtherExceptionIsNumber440WithItsText) {
  tracing.Handled("A", [] { throw std::runtime_error("schijf vol"); });
  EXPECT_EQ(log, Then({"enter A"}, Report("A", "440", "schijf vol", "BrivaneVrijeKolom")));
  log.clear();
  tracing.Handled("B", [] { throw 7; });
  EXPECT_EQ(log, Then({"enter B"}, Report("B", "440", "Unexpected failure", "BrivaneVrijeKolom")));
}

TEST_F(TracingTest, TheCallerOfAHandledProcedureGoesOn) {
  tracing.Handled("Outer", [this] {
    tracing.Handled("Inner", [] { throw host::Error(6, "Te groot", "x"); });
    log.emplace_back("outer goes on");
  });
  EXPECT_EQ(log, Then(Then({"enter Outer", "enter Inner"}, Report("Inner", "6", "Te groot", "x")),
                      {"outer goes on", "leave"}));
}

TEST_F(TracingTest, AFailureWithoutAHandlerIsThatOfTheCaller) {
  tracing.Handled("Outer", [this] {
    tracing.Unhandled("Inner", [] { throw host::Error(6, "Te groot", "x"); });
    log.emplace_back("not reached");
  });
  EXPECT_EQ(log, Then({"enter Outer", "enter Inner"}, Report("Outer", "6", "Te groot", "x")));
  log.clear();
  EXPECT_THROW(tracing.Unhandled("Alone", [] { throw host::Error(6, "Te groot", "x"); }), host::Error);
  EXPECT_EQ(log, Log{"enter Alone"});
}

TEST_F(TracingTest, AReportThatFailsIsAFailureOfTheProcedureAround) {
  application->fails = true;
  try {
    tracing.Handled("A", [] { throw host::Error(13, "Verkeerd type", "Dossier"); });
    ADD_FAILURE() << "no failure";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 1003);
  }
  EXPECT_EQ(log, Then({"enter A"}, Report("A", "13", "Verkeerd type", "Dossier")));

  log.clear();
  try {
    tracing.Handled("Outer",
                    [this] { tracing.Handled("Inner", [] { throw host::Error(13, "Verkeerd type", "Dossier"); }); });
    ADD_FAILURE() << "no failure";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 1003);
  }
  EXPECT_EQ(log, Then(Then({"enter Outer", "enter Inner"}, Report("Inner", "13", "Verkeerd type", "Dossier")),
                      Report("Outer", "1003", "geen melding", "host")));
}

TEST_F(TracingTest, WithoutAnApplicationTheTraceStandsAndNobodyIsTold) {
  application = nullptr;
  tracing.Handled("A", [] { throw host::Error(13, "Verkeerd type", "Dossier"); });
  Log expected = Then({"enter A"}, Report("A", "13", "Verkeerd type", "Dossier"));
  expected.pop_back();  // the report itself
  EXPECT_EQ(log, expected);
  EXPECT_EQ(desktop.pointerResets, 1);
}

TEST_F(TracingTest, ATracerThatRefusesToEnterFailsTheCaller) {
  tracer->refusesToEnter = "A";
  EXPECT_THROW(tracing.Handled("A", [this] { log.emplace_back("body"); }), host::Error);
  EXPECT_EQ(log, Log{"enter A"});
}

TEST_F(TracingTest, ATracerThatRefusesToLeaveIsReported) {
  tracer->refusesToLeave = true;
  tracing.Handled("A", [this] { log.emplace_back("body"); });
  EXPECT_EQ(log, Then({"enter A", "body", "leave"}, Report("A", "1002", "geen uitgang", "tracer")));
}

TEST_F(TracingTest, AGuardedPartTracesNothingUnlessItFails) {
  EXPECT_TRUE(tracing.Guarded("A", [this] { log.emplace_back("body"); }));
  EXPECT_EQ(log, Log{"body"});
  log.clear();
  EXPECT_FALSE(tracing.Guarded("A", [] { throw host::Error(13, "Verkeerd type", "Dossier"); }));
  EXPECT_EQ(log, Report("A", "13", "Verkeerd type", "Dossier"));
}

}  // namespace brivane::frame
