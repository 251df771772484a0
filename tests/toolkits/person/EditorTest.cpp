#include "tests/support/TestHost.h"
#include "tests/toolkits/person/Hands.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/TextBox.h>
#include <brivane/frame/Calendar.h>
#include <brivane/vrijekolom/Ontwerp.h>
#include <brivane/vrijekolom/VrijeKolom.h>

/// The editor under the hands of a person, with columns of a host.
namespace brivane::test {
namespace {

class EditorByHand : public testing::Test {
 protected:
  EditorByHand() {
    Make(1, host::codes::kLast, host::codes::kFiscaalNeutraal);
    host_.dossier.huidig->Voeg(2);
    Make(2, host::codes::kBijdrage, host::codes::kBijtelling);
    host_.dossier.huidig->Voeg(3);
    Make(3, host::codes::kLastNeutraal, host::codes::kAftrekpost);
    const host::Place place = surface_->Place();
    controls::Surface::Of(*surface_).Size(place.width, place.height);
    hands_->Show(*surface_);
    hands_->GiveFocus(Get<controls::TextBox>("TxtOm"));
  }
  void Make(std::int16_t id, std::int16_t last, std::int16_t fiscaal) {
    KolomVelden& velden = host_.Kolom(id).velden;
    velden.DatumAanvang = frame::MakeDate({2031, 4, 1});
    velden.CorrectieLast = last;
    velden.CorrectieFiscaal = fiscaal;
  }
  void Bind(std::int16_t id) { editor_.SetApplication(host_.application, 0, id); }
  template <class T> [[nodiscard]] T& Get(std::string_view name) {
    return dynamic_cast<T&>(*controls::Surface::Of(*surface_).Find(name));
  }
  /// Goes to the groups of options from what stands after them, and back.
  void ExpectEntrances(const std::string& last, const std::string& fiscaal) {
    hands_->PressAlt('a');
    EXPECT_EQ(hands_->Focused(), "TxtDtAanvang");
    hands_->Press(Key::Tab, With::Shift);
    EXPECT_EQ(hands_->Focused(), fiscaal);
    hands_->Press(Key::Tab, With::Shift);
    EXPECT_EQ(hands_->Focused(), last);
    hands_->Press(Key::Tab);
    EXPECT_EQ(hands_->Focused(), fiscaal);
    hands_->Press(Key::Tab);
    EXPECT_EQ(hands_->Focused(), "TxtDtAanvang");
  }

  std::unique_ptr<Hands> hands_ = MakeHands();
  TestHost host_;
  std::unique_ptr<host::Surface> surface_ = hands_->Toolkit().MakeSurface(vrijekolom::kOntwerp);
  VrijeKolom editor_{*surface_, hands_->Toolkit(), host_.Factories()};
};

TEST_F(EditorByHand, EntersItsOptionsAtTheChosenOneAlsoAfterAnotherColumnWasBound) {
  Bind(1);
  ExpectEntrances("optLast(1)", "optFiscaal(3)");
  Bind(2);
  ExpectEntrances("optLast(2)", "optFiscaal(2)");
  // Also from within a group.
  hands_->Press(Key::Tab, With::Shift);
  Bind(3);
  ExpectEntrances("optLast(3)", "optFiscaal(1)");
  Bind(1);
  ExpectEntrances("optLast(1)", "optFiscaal(3)");
}

TEST_F(EditorByHand, EntersItsOptionsAtTheFirstOnTheScreenWhereNoneIsChosen) {
  ExpectEntrances("optLast(3)", "optFiscaal(1)");
}

TEST_F(EditorByHand, ItsGroupsAreReachedByTheirLettersAtWhatIsChosen) {
  Bind(1);
  const std::pair<char, const char*> kGroups[] = {
      {'l', "optLast(1)"}, {'f', "optFiscaal(3)"}, {'j', "optAanvrager(1)"}, {'n', "Toelichting.lstToelichting"}};
  for (const auto& [letter, entrance] : kGroups) {
    hands_->PressAlt('o');
    hands_->PressAlt(letter);
    EXPECT_EQ(hands_->Focused(), entrance) << letter;
  }
  // Going there chooses nothing.
  EXPECT_EQ(host_.Kolom(1).velden.CorrectieLast, host::codes::kLast);
  EXPECT_EQ(host_.Kolom(1).velden.CorrectieFiscaal, host::codes::kFiscaalNeutraal);
  Bind(3);
  hands_->PressAlt('l');
  EXPECT_EQ(hands_->Focused(), "optLast(3)");
  hands_->PressAlt('f');
  EXPECT_EQ(hands_->Focused(), "optFiscaal(1)");
}

TEST_F(EditorByHand, AnEmptiedAmountIsShownAsTheZeroThatItIs) {
  host_.Kolom(1).bedrag->bedrag = 12.5;
  Bind(1);
  hands_->PressAlt('b');
  EXPECT_EQ(hands_->FocusedText(), "[12,50]");
  hands_->Press(Key::Delete);
  hands_->Press(Key::Tab);
  EXPECT_EQ(host_.Kolom(1).bedrag->bedrag, 0);
  hands_->Press(Key::Tab, With::Shift);
  EXPECT_EQ(hands_->FocusedText(), "[0,00]");
}

TEST_F(EditorByHand, PassingOneOffInTheTermListTakesNothingAway) {
  host_.Kolom(1).velden.Looptijd = 12;
  Bind(1);
  const auto termijn = host_.Kolom(1).velden.Termijn;
  hands_->GiveFocus(Get<controls::ListBox>("cboTermijn"));
  for (const Key key : {Key::End, Key::Home, Key::End}) hands_->Press(key);
  hands_->Type("e");
  hands_->Press(Key::Escape);
  hands_->Press(Key::Tab);
  EXPECT_EQ(host_.Kolom(1).velden.Termijn, termijn);
  EXPECT_EQ(host_.Kolom(1).velden.Looptijd, 12);
}

TEST_F(EditorByHand, LettersOfWhatIsHiddenDoNothing) {
  host_.Kolom(1).velden.Omschrijving = "Kinderopvang";
  Bind(1);
  // A company and a product's name are shown for a product alone, and the proposals where the host says so.
  for (const char letter : {'m', 'p', 'c', 'u', '1', '2', '3'}) {
    hands_->PressAlt('o');
    EXPECT_EQ(hands_->FocusedText(), "[Kinderopvang]") << letter;
    hands_->PressAlt(letter);
    EXPECT_EQ(hands_->Focused(), "TxtOm") << letter;
    EXPECT_EQ(hands_->FocusedText(), "[Kinderopvang]") << letter;
  }
  hands_->Press(Key::Tab);
  EXPECT_EQ(host_.Kolom(1).velden.Omschrijving, "Kinderopvang");
  for (int index = 1; index <= 3; ++index)
    EXPECT_EQ(dynamic_cast<controls::CheckBox&>(*controls::Surface::Of(*surface_).Find("ChkVoorstel", index)).Value(),
              host::kUnticked);
}

}  // namespace
}  // namespace brivane::test
