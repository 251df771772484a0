#include "app/screen/CaseCheck.h"

#include <map>
#include <memory>
#include <utility>

#include "dossier/model/Application.h"
#include "dossier/model/Tracer.h"
#include <brivane/controls/Binding.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::app {
namespace {

/// An editor without a screen that tells what its checks say.
class Checker {
 public:
  Checker(const std::shared_ptr<dossier::Dossier>& dossier, host::Date today)
      : application_(std::make_shared<dossier::Application>(dossier)),
        surface_(toolkit_.MakeSurface(vrijekolom::kOntwerp)),
        editor_(
            *surface_, toolkit_,
            {.MaakProcedureTrace = [](std::string_view) { return std::make_shared<dossier::Tracer>(); },
             // The host's check runs once over the whole case, not after every column.
             .MaakDossierControle = [](std::string_view) { return std::make_shared<host::GeenDossierControle>(); }}) {
    toolkit_.Desktop().today = today;
    toolkit_.Desktop().answer = [this](const std::string&, const std::string& text, host::MessageStyle) {
      messages_.push_back(text);
      return host::MessageAnswer::Ok;
    };
    errors_ = application_->FoutGemeld.Connect([this](const host::ErrorRecord& error) {
      messages_.push_back("De post kan niet worden gecontroleerd: " + error.ErrorDescription + ".");
    });
  }

  std::vector<std::string> Check(std::int16_t Len_Id, std::int16_t Vrij_Id) {
    messages_.clear();
    const auto bound = binding_.Bind([&] { editor_.SetApplication(application_, Len_Id, Vrij_Id); });
    // The report says so; the checks would be of the column before it.
    if (bound != controls::BindingResult::Bound) return std::move(messages_);
    bool cancel = false;
    editor_.Validation(cancel);
    cancel = false;
    editor_.Toelichting().Validation(cancel);
    return std::move(messages_);
  }

 private:
  std::vector<std::string> messages_;
  std::shared_ptr<dossier::Application> application_;
  memory::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
  brivane::VrijeKolom editor_;
  controls::Binding binding_{*surface_};
  host::Subscription errors_;
};

}  // namespace

std::vector<dossier::Finding> CheckAll(const dossier::Dossier& dossier, host::Date today) {
  const auto copy = std::make_shared<dossier::Dossier>(dossier.Gegevens(), std::make_shared<dossier::Environment>());
  std::map<std::pair<std::int16_t, std::int16_t>, std::vector<std::string>> fromHost;
  for (dossier::Finding& finding : dossier::ControleerDossier(*copy, today)) {
    fromHost[{finding.Len_Id, finding.Vrij_Id}].push_back(std::move(finding.text));
  }

  std::vector<dossier::Finding> findings;
  Checker checker(copy, today);
  for (std::int16_t Len_Id = dossier::Dossier::kHuidig; Len_Id <= copy->AantalLeningen(); ++Len_Id) {
    for (const auto& kolom : copy->FindLening(Len_Id)->Kolommen()) {
      const auto add = [&](std::vector<std::string> texts) {
        for (std::string& text : texts) findings.push_back({Len_Id, kolom->Id(), std::move(text)});
      };
      add(checker.Check(Len_Id, kolom->Id()));
      if (auto lines = fromHost.extract({Len_Id, kolom->Id()})) add(std::move(lines.mapped()));
    }
  }
  // What is left is about a column that is not there.
  for (auto& [place, texts] : fromHost) {
    for (std::string& text : texts) findings.push_back({place.first, place.second, std::move(text)});
  }
  return findings;
}

}  // namespace brivane::app
