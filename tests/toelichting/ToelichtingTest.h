#pragma once

#include "tests/support/ControlTest.h"
#include <brivane/toelichting/Ontwerp.h>
#include <brivane/toelichting/Toelichting.h>

namespace brivane::test {

/// The explanation control by itself, bound to column 1 of the current loan by Bind.
class ToelichtingTest : public ControlTest {
 protected:
  ToelichtingTest() : ControlTest(toelichting::kOntwerp) {}

  void SetUp() override { Make(); }
  void Make() {
    control_.emplace(*surface_, toolkit_.Desktop(), host_.Factories());
    subscriptions_ += control_->Changed.Connect([this] { host_.calls.Add("event Changed"); });
    Forget();
  }
  void Bind(std::int16_t Vrij_Id = 1) { control_->SetApplication(application_, lening_, Vrij_Id); }
  /// Binds a column that counts on death, for 50 % until 1 January 2040.
  void BindOverlijden() {
    kolom_.velden.ScenarioOverlijden = true;
    kolom_.velden.PercentageOvergang = 50;
    kolom_.velden.EinddatumOvergang = D(2040, 1, 1);
    kolom_.velden.EindleeftijdOvergang = 65;
    Bind();
    Forget();
  }
  bool Validate(std::int32_t nummer, bool cancel = false) {
    control_->Validation(cancel, nummer);
    return cancel;
  }

  std::shared_ptr<host::Application> application_ = host_.application;
  std::shared_ptr<host::Lening> lening_ = host_.dossier.huidig;
  TestKolom& kolom_ = host_.Kolom(1);
  std::optional<brivane::Toelichting> control_;
  host::Subscriptions subscriptions_;
};

}  // namespace brivane::test
