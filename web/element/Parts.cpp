#include "web/element/Part.h"
#include "web/host/Adapters.h"
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/vrijekolom/Onderwerp.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::webelement {

namespace {

class EditorPart final : public Part {
 public:
  EditorPart(host::Surface& surface, web::Toolkit& toolkit, const host::HostFactories& factories, const Tell& tell)
      : editor_(surface, toolkit, factories) {
    toolkit.SetSubjectTeller([&surface, &toolkit] {
      const vrijekolom::Onderwerp onderwerp = vrijekolom::LeesOnderwerp(surface);
      const auto row = [aanvang = onderwerp.aanvang, &teksten = toolkit.Texts()](int rij) {
        return vrijekolom::Rijuitleg(rij, aanvang, {}, teksten);
      };
      return controls::FormSubject{.title = vrijekolom::Titel(onderwerp), .row = row};
    });
    subscriptions_ +=
        editor_.RefreshTopDisplay.Connect([tell](const std::string& text) { tell(Told::RefreshTopDisplay, text); });
    subscriptions_ += editor_.HeightChanged.Connect([tell] { tell(Told::HeightChanged, {}); });
    subscriptions_ += editor_.Toelichting().Changed.Connect([tell] { tell(Told::Changed, {}); });
  }

  void Bind(webhost::Session& session, const Subject& subject) override {
    editor_.SetApplication(session.Adapt<webhost::ApplicationAdapter>(subject.application), subject.Len_Id,
                           subject.Vrij_Id);
  }
  void Unbind() override { editor_.Unbind(); }
  void Validation(bool& cancel, std::int32_t ControleNr) override { editor_.Validation(cancel, ControleNr); }
  [[nodiscard]] host::Color BackColor() const override { return editor_.BackColor(); }
  void SetBackColor(host::Color color) override { editor_.SetBackColor(color); }
  [[nodiscard]] brivane::VrijeKolom* Editor() override { return &editor_; }

 private:
  VrijeKolom editor_;
  host::Subscriptions subscriptions_;
};

class ToelichtingPart final : public Part {
 public:
  ToelichtingPart(host::Surface& surface, web::Toolkit& toolkit, const host::HostFactories& factories, const Tell& tell)
      : control_(surface, toolkit.Desktop(), factories),
        changed_(control_.Changed.Connect([tell] { tell(Told::Changed, {}); })) {}

  void Bind(webhost::Session& session, const Subject& subject) override {
    std::shared_ptr<host::Application> application = session.Adapt<webhost::ApplicationAdapter>(subject.application);
    std::shared_ptr<host::Lening> lening = session.Adapt<webhost::LeningAdapter>(subject.lening);
    control_.SetApplication(application, lening, subject.Vrij_Id);
  }
  void Unbind() override { control_.Unbind(); }
  void Validation(bool& cancel, std::int32_t ControleNr) override { control_.Validation(cancel, ControleNr); }
  [[nodiscard]] host::Color BackColor() const override { return control_.BackColor(); }
  void SetBackColor(host::Color color) override { control_.SetBackColor(color); }

 private:
  Toelichting control_;
  host::Subscription changed_;
};

}  // namespace

const frame::Design& EditorDesign() { return vrijekolom::kOntwerp; }

std::unique_ptr<Part> MakeEditor(host::Surface& surface, web::Toolkit& toolkit, const host::HostFactories& factories,
                                 Tell tell) {
  return std::make_unique<EditorPart>(surface, toolkit, factories, tell);
}

const frame::Design& ToelichtingDesign() { return toelichting::kOntwerp; }

std::unique_ptr<Part> MakeToelichting(host::Surface& surface, web::Toolkit& toolkit,
                                      const host::HostFactories& factories, Tell tell) {
  return std::make_unique<ToelichtingPart>(surface, toolkit, factories, tell);
}

}  // namespace brivane::webelement
