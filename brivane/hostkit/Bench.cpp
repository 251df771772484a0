#include <algorithm>
#include <exception>

#include <brivane/hostkit/Bench.h>

namespace brivane::hostkit {

namespace {

constexpr const char* kWayContract = "the case that the kit asks for has it (brivane/hostkit/Case.h)";

}  // namespace

Bench::Bench(std::string_view check, const HostFactory& factory, const Options& options, Report& report)
    : check_(check), factory_(factory), options_(options), report_(report) {}

const hostkit::Host& Bench::Host() {
  if (host_.application) return host_;
  Question question{"the factory", "", "it answers an application with the case of brivane/hostkit/Case.h"};
  Guarded(question, [&] { host_ = factory_(); });
  if (!host_.application) {
    Find(question, "no application", "an application");
    throw Stop{};
  }
  return host_;
}

std::shared_ptr<host::Dossier> Bench::Dossier() {
  return Object({"Application.Dossier", "", "the application has a case as long as a control is bound to it"},
                [&] { return Host().application->Dossier(); });
}

std::shared_ptr<host::Lening> Bench::HuidigeLening() {
  const auto dossier = Dossier();
  return Object({"Dossier.HuidigeLening", "", "a case has a loan of the current situation, be it without columns"},
                [&] { return dossier->HuidigeLening(); });
}

std::shared_ptr<host::Lening> Bench::Lening(std::int16_t number) {
  const auto dossier = Dossier();
  return Object({"Dossier.Lening", "asked for loan " + Show(number), kWayContract,
                 "the loans of the new situation count from 1; 0 is the loan of the current one"},
                [&] { return dossier->Lening(number); });
}

std::shared_ptr<host::VrijeKolomItem> Bench::Kolom(std::int16_t Vrij_Id) {
  const auto lening = HuidigeLening();
  return Object({"Lening.VrijeKolommen", "asked for column " + Show(Vrij_Id) + " of the current loan", kWayContract,
                 "a column is found by its own identifier, not by its position"},
                [&] { return lening->VrijeKolommen(Vrij_Id); });
}

std::shared_ptr<host::BedragObject> Bench::Bedrag(std::int16_t Vrij_Id) {
  const auto kolom = Kolom(Vrij_Id);
  return Object({"VrijeKolomItem.Bedrag", "", "each column has an amount object, which lives as long as its record"},
                [&] { return kolom->Bedrag(); });
}

void Bench::Find(const Question& question, std::string cameBack, std::string wanted) {
  for (Finding& known : report_.findings) {
    if (known.check != check_ || known.member != question.member || known.contract != question.contract) continue;
    ++known.alike;
    return;
  }
  report_.findings.push_back({check_, question.member, question.written, std::move(cameBack), std::move(wanted),
                              question.contract, question.hint});
}

bool Bench::Tries(std::string_view value) {
  const std::string name = check_ + '/' + std::string(value);
  const auto excepted = std::find_if(options_.cannot.begin(), options_.cannot.end(),
                                     [&](const Exception& exception) { return exception.what == name; });
  if (excepted == options_.cannot.end()) return true;
  report_.leftOut.push_back(*excepted);
  return false;
}

void Bench::LeaveOut(std::string why) { report_.leftOut.push_back({check_, std::move(why)}); }

bool Bench::Guarded(const Question& question, const std::function<void()>& ask) {
  try {
    ask();
    return true;
  } catch (const Stop&) {
    throw;
  } catch (const host::Error& error) {
    Find(question, "a failure: " + Show(error), "no failure");
  } catch (const std::exception& error) {
    Find(question, "an exception: " + Show(std::string(error.what())), "no failure");
  } catch (...) {
    Find(question, "an exception of an unknown kind", "no failure");
  }
  return false;
}

}  // namespace brivane::hostkit
