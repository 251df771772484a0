// Loans and their columns: which loan is which, what a look-up finds, the order, and removing by position.

#include <brivane/hostkit/Suite.h>

namespace brivane::hostkit {

namespace {

/// A loan cannot be so long: a walk that finds no end is stopped.
constexpr std::int16_t kMostColumns = 100;

template <std::size_t count> std::vector<std::int16_t> AsList(const std::array<std::int16_t, count>& numbers) {
  return {numbers.begin(), numbers.end()};
}

/// The identifiers of a loan's columns by running position.
std::vector<std::int16_t> Columns(host::Lening& lening) {
  std::vector<std::int16_t> ids;
  for (std::int16_t position = 1; position <= kMostColumns; ++position) {
    const auto kolom = lening.VrijeKolomOp(position);
    if (!kolom) break;
    ids.push_back(kolom->Id());
  }
  return ids;
}

void CheckLening(Bench& bench) {
  const auto dossier = bench.Dossier();
  const auto huidig = bench.HuidigeLening();
  const std::string identity =
      "the loan of the current situation is one object, however it is asked for: the editor "
      "compares it by identity at the end of a complete check";
  const std::string hint = "keep the object; do not make one for each question";
  const auto compared = [&](const std::shared_ptr<host::Lening>& lening) {
    return std::string(lening == huidig ? "the same object" : "another object");
  };
  bench.Same({"Dossier.HuidigeLening", "asked twice", identity, hint}, "the same object",
             [&] { return compared(bench.Host().application->Dossier()->HuidigeLening()); });
  bench.Same({"Dossier.Lening", "asked for loan 0", identity, hint}, "the same object",
             [&] { return compared(dossier->Lening(0)); });
  for (std::int16_t number = 1; number <= 2; ++number)
    bench.Same({"Dossier.Lening", "asked for loan " + Show(number),
                "the loans of the new situation are other objects than that of the current one"},
               "another object", [&] { return compared(bench.Lening(number)); });
  for (const std::int16_t number : {std::int16_t{3}, kNiemand})
    bench.Nothing({"Dossier.Lening", "asked for loan " + Show(number),
                   "nothing past the last: the carry-over walks the loans until there is none",
                   "answer a null pointer; do not throw"},
                  [&] { return dossier->Lening(number); });
}

void CheckVrijeKolommen(Bench& bench) {
  struct Lookup {
    const char* member;
    std::shared_ptr<host::VrijeKolomItem> (host::Lening::*find)(std::int16_t);
  };
  for (const Lookup& lookup : {Lookup{"Lening.VrijeKolommen", &host::Lening::VrijeKolommen},
                               Lookup{"Lening.VrijeKolom", &host::Lening::VrijeKolom}}) {
    for (std::int16_t number = 0; number <= 1; ++number) {
      const auto lening = bench.Lening(number);
      const std::string of = " of loan " + Show(number);
      for (const std::int16_t id : kHuidigeLening)
        bench.Same({lookup.member, "asked for column " + Show(id) + of, "the column that has that identifier",
                    "a column is found by its own identifier, not by its position"},
                   id, [&] {
                     const auto kolom = ((*lening).*lookup.find)(id);
                     return kolom ? kolom->Id() : std::int16_t{0};
                   });
      for (const std::int16_t id : {kNiemand, std::int16_t{0}, std::int16_t{-1}})
        bench.Nothing(
            {lookup.member, "asked for column " + Show(id) + of, "nothing where no column has that identifier",
             "answer a null pointer; do not throw: the editor reports error 91 by itself"},
            [&] { return ((*lening).*lookup.find)(id); });
    }
  }
}

void CheckEenKolom(Bench& bench) {
  const auto lening = bench.HuidigeLening();
  const auto kolom = bench.Kolom(2);
  const std::string text = "Krant – één";
  bench.Done({"VrijeKolomItem.Omschrijving", Show(text), "a text is taken"}, [&] { kolom->SetOmschrijving(text); });
  const std::string contract = "every way to a column leads to the same record";
  bench.Same({"Lening.VrijeKolom", Show(text) + " into column 2", contract}, text,
             [&] { return lening->VrijeKolom(2)->Omschrijving(); });
  bench.Same({"Lening.VrijeKolomOp", Show(text) + " into column 2", contract}, text,
             [&] { return lening->VrijeKolomOp(2)->Omschrijving(); });
  bench.Same({"Lening.VrijeKolommen", Show(text) + " into column 2 of the current loan",
              "a column with the same identifier in another loan is a record of its own"},
             std::string(), [&] { return bench.Lening(1)->VrijeKolommen(2)->Omschrijving(); });
}

void CheckVrijeKolomOp(Bench& bench) {
  const std::string contract = "running positions count from 1 in an order that stays; nothing past the last";
  const std::string hint = "the position is a place in the list of columns, not an identifier and not counted from 0";
  bench.Same({"Lening.VrijeKolomOp", "walked the current loan", contract, hint}, AsList(kHuidigeLening),
             [&] { return Columns(*bench.HuidigeLening()); });
  bench.Same({"Lening.VrijeKolomOp", "walked loan 1", contract, hint}, AsList(kLening1),
             [&] { return Columns(*bench.Lening(1)); });
  bench.Same({"Lening.VrijeKolomOp", "walked loan 2", contract, hint}, AsList(kLening2),
             [&] { return Columns(*bench.Lening(2)); });
}

void CheckVerwijderVrijeKolom(Bench& bench) {
  const auto lening = bench.Lening(1);
  const std::vector<std::int16_t> huidig = Columns(*bench.HuidigeLening());
  const std::vector<std::int16_t> other = Columns(*bench.Lening(2));
  for (const std::int16_t position : {std::int16_t{2}, std::int16_t{1}, std::int16_t{1}}) {
    std::vector<std::int16_t> left = Columns(*lening);
    const std::string written = "removed position " + Show(position) + " of loan 1, which held " + Show(left);
    if (position <= static_cast<std::int16_t>(left.size())) left.erase(left.begin() + position - 1);
    bench.Same({"Lening.VerwijderVrijeKolom", written,
                "the column at that position, counted from 1, leaves the loan; the next ones move up",
                "in a list that counts from 0 it is the one before"},
               left, [&] {
                 lening->VerwijderVrijeKolom(position);
                 return Columns(*lening);
               });
  }
  const std::string contract = "removing a column from one loan changes no other loan";
  bench.Same({"Lening.VerwijderVrijeKolom", "emptied loan 1, looked at the current loan", contract}, huidig,
             [&] { return Columns(*bench.HuidigeLening()); });
  bench.Same({"Lening.VerwijderVrijeKolom", "emptied loan 1, looked at loan 2", contract}, other,
             [&] { return Columns(*bench.Lening(2)); });
}

}  // namespace

void AddLoanChecks(std::vector<NamedCheck>& checks) {
  checks.push_back({"Dossier.Lening", CheckLening});
  checks.push_back({"Lening.VrijeKolommen", CheckVrijeKolommen});
  checks.push_back({"one record for a column", CheckEenKolom});
  checks.push_back({"Lening.VrijeKolomOp", CheckVrijeKolomOp});
  checks.push_back({"Lening.VerwijderVrijeKolom", CheckVerwijderVrijeKolom});
}

}  // namespace brivane::hostkit
