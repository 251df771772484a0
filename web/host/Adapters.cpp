#include "web/host/Adapters.h"

#include "web/host/Keuzelijst.h"

namespace brivane::webhost {

namespace {

/// The source of the code tables, of whatever type the host has it: handed back as it came.
class HeldCodetabellen final : public host::Codetabellen {
 public:
  explicit HeldCodetabellen(webhost::Value value) : value_(std::move(value)) {}
  [[nodiscard]] const webhost::Value& Value() const { return value_; }

 private:
  webhost::Value value_;
};

class PageWindow final : public host::Hoofdvenster {};

Value Handed(const std::shared_ptr<host::Codetabellen>& bron) {
  const auto* const held = dynamic_cast<const HeldCodetabellen*>(bron.get());
  return held != nullptr ? held->Value() : Value();
}

}  // namespace

std::string ItemAdapter::Voorstel(std::int16_t nummer) const {
  const auto voorstellen = Get<webhost::Object>("Voorstel");
  return As<std::string>(Asked([&](const webhost::Object&) { return Element(voorstellen, nummer - 1); }));
}

std::array<std::string, 3> PersoonAdapter::Naam() const {
  const auto delen = Get<webhost::Object>("Naam");
  std::array<std::string, 3> naam;
  for (std::size_t i = 0; i < naam.size(); ++i)
    naam[i] = As<std::string>(Asked([&](const webhost::Object&) { return Element(delen, static_cast<int>(i)); }));
  return naam;
}

std::shared_ptr<host::Hoofdvenster> ApplicationAdapter::Hoofdvenster() {
  const Value venster = Asked([](const webhost::Object& object) { return webhost::Get(object, "Hoofdvenster"); });
  return venster.type == Value::Type::Nothing ? nullptr : std::make_shared<PageWindow>();
}

std::shared_ptr<host::Codetabellen> ApplicationAdapter::Codetabellen() {
  return std::make_shared<HeldCodetabellen>(
      Asked([](const webhost::Object& object) { return webhost::Get(object, "Codetabellen"); }));
}

void ApplicationAdapter::VulCombo(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                  host::ListBox& lijst, const std::string& code, const std::string& leeg,
                                  std::optional<std::int32_t> keuze) {
  const LentKeuzelijst lent(lijst);
  Asked([&](const webhost::Object& object) {
    webhost::Call(object, "VulCombo",
                  {Handed(bron), Value(std::string(tabel)), Value(std::int32_t{lent.Number()}), Value(code),
                   Value(leeg), keuze ? Value(*keuze) : Value()});
    return 0;
  });
}

std::string ApplicationAdapter::ZoekCode(const std::shared_ptr<host::Codetabellen>& bron, std::string_view tabel,
                                         const std::string& tekst) {
  return As<std::string>(Asked([&](const webhost::Object& object) {
    return webhost::Get(object, "ZoekCode", {Handed(bron), Value(std::string(tabel)), Value(tekst)});
  }));
}

void ApplicationAdapter::ReportError(host::ProcedureTrace& trace) {
  Call("ReportError", dynamic_cast<TraceAdapter&>(trace).Object());
}

void ControleAdapter::Controleer(const std::shared_ptr<host::Application>& application, std::int16_t soort) {
  const auto* const adapter = dynamic_cast<const ApplicationAdapter*>(application.get());
  Call("Controleer", adapter != nullptr ? adapter->Object() : nullptr, soort);
}

}  // namespace brivane::webhost
