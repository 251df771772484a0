#include <exception>
#include <utility>

#include <brivane/controls/WhatIsMissing.h>
#include <brivane/host/Error.h>
#include <brivane/host/model/Codes.h>

namespace brivane::controls {

namespace {

/// What is wrong, found.
struct Found {
  std::string text;
};

std::string Called(const char* member, std::int16_t argument) {
  return std::string(member) + '(' + std::to_string(argument) + ')';
}

/// Asks a member; a failure of it is what is wrong.
template <class Ask> auto Answer(const std::string& member, Ask&& ask) {
  try {
    return ask();
  } catch (const host::Error& error) {
    throw Found{member + " fails: " + std::to_string(error.Number()) + ", " + error.Description()};
  } catch (const std::exception& error) {
    throw Found{member + " fails: " + error.what()};
  }
}

/// Asks for an object that must be there.
template <class Ask> auto Object(const std::string& member, const char* why, Ask&& ask) {
  auto object = Answer(member, std::forward<Ask>(ask));
  if (!object) throw Found{member + " answers nothing: " + why};
  return object;
}

template <class Ask> void Code(const char* member, std::int16_t last, Ask&& ask) {
  const std::int16_t code = Answer(member, std::forward<Ask>(ask));
  if (code < 1 || code > last)
    throw Found{std::string(member) + " answers " + std::to_string(code) + ": the editor knows 1 to " +
                std::to_string(last)};
}

void Walk(const std::shared_ptr<host::Application>& application, std::int16_t Len_Id, std::int16_t Vrij_Id) {
  using namespace host::codes;
  if (!application) throw Found{"there is no application"};
  const auto dossier = Object("Application.Dossier", "the application has a case as long as a control is bound to it",
                              [&] { return application->Dossier(); });
  const auto huidig = Answer("Dossier.HuidigeLening", [&] { return dossier->HuidigeLening(); });
  const std::string numbered = Called("Dossier.Lening", Len_Id);
  const auto genummerd = Answer(numbered, [&] { return dossier->Lening(Len_Id); });
  const bool isHuidig = Len_Id == kHuidigeSituatie;
  const auto& lening = isHuidig ? huidig : genummerd;
  if (!lening && isHuidig)
    throw Found{"Dossier.HuidigeLening answers nothing: a case has a loan of the current situation"};
  if (!lening) throw Found{numbered + " answers nothing: the loans of the new situation count from 1"};
  const char* const noColumn = "the loan has no column with that identifier";
  const auto kolom =
      Object(Called("Lening.VrijeKolommen", Vrij_Id), noColumn, [&] { return lening->VrijeKolommen(Vrij_Id); });
  Code("VrijeKolomItem.CorrectieLast", kLastNeutraal, [&] { return kolom->CorrectieLast(); });
  Code("VrijeKolomItem.CorrectieFiscaal", kFiscaalNeutraal, [&] { return kolom->CorrectieFiscaal(); });
  Object("VrijeKolomItem.Bedrag", "every column has an amount object", [&] { return kolom->Bedrag(); });
  Object(Called("Dossier.Persoon", kAanvrager), "every case has an applicant",
         [&] { return dossier->Persoon(kAanvrager); });
  Code("VrijeKolomItem.HeffingBij", kPartner, [&] { return kolom->HeffingBij(); });
  Object(Called("Lening.VrijeKolom", Vrij_Id), noColumn, [&] { return lening->VrijeKolom(Vrij_Id); });
}

}  // namespace

std::string WhatIsMissing(const std::shared_ptr<host::Application>& application, std::int16_t Len_Id,
                          std::int16_t Vrij_Id) {
  try {
    Walk(application, Len_Id, Vrij_Id);
    return {};
  } catch (const Found& found) {
    return found.text;
  }
}

}  // namespace brivane::controls
