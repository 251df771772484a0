#include <string>

#include <brivane/toelichting/Effecttabel.h>
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane {

using namespace toelichting;

namespace {

std::string Sleutel(std::size_t rij) { return "KEY" + std::to_string(rij); }

}  // namespace

void Toelichting::Fill_Listview() {
  tracing_.Unhandled("Fill_Listview", [this] {
    host::ListView& lijst = controls_[lstToelichting];
    lijst.ClearColumns();
    for (const std::string_view kop : kEffectkoppen)
      lijst.AddColumn(std::string(kop), {static_cast<float>(kKolomBreedte)});
    lijst.ClearItems();
    for (std::size_t rij = 1; rij <= kEffecten.size(); ++rij) {
      const auto& teksten = kEffecten[rij - 1].teksten;
      lijst.AddItem(rij, Sleutel(rij), std::string(teksten[0]));
      for (std::size_t kolom = 1; kolom < teksten.size(); ++kolom) lijst.AddSubItem(rij, std::string(teksten[kolom]));
    }
    lijst.Move({{static_cast<float>(kLijstPlaats.left)},
                {static_cast<float>(kLijstPlaats.top)},
                {static_cast<float>(kLijstPlaats.width)},
                {static_cast<float>(kLijstPlaats.height)}});
  });
}

void Toelichting::Show_Keuze() {
  tracing_.Unhandled("Show_Keuze", [this] {
    std::size_t rij = 0;
    if (Item_) {
      const std::int16_t correctieFiscaal = Item_->CorrectieFiscaal();
      rij = EffectRij(Item_->CorrectieLast(), correctieFiscaal);
    }
    host::ListView& lijst = controls_[lstToelichting];
    lijst.Select(0);
    const std::string sleutel = Sleutel(rij);
    for (std::size_t i = 1; i <= lijst.ItemCount(); ++i) {
      if (lijst.Key(i) == sleutel) lijst.Select(i);
      lijst.SetBold(i, lijst.Selected() == i);
      for (std::size_t kolom = 1; kolom <= lijst.SubItemCount(i); ++kolom)
        lijst.SetSubItemBold(i, kolom, lijst.Bold(i));
    }
  });
}

}  // namespace brivane
