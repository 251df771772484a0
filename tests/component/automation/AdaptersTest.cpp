#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <vector>

#include "component/automation/ApplicationAdapter.h"
#include "component/automation/CaseAdapter.h"
#include "component/automation/HostWindow.h"
#include "component/automation/LateBound.h"
#include "component/automation/TraceAdapter.h"
#include "tests/component/automation/FakeObject.h"
#include <brivane/host/Error.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::component {
namespace {

class AdaptersTest : public testing::Test {
 protected:
  template <class A> std::shared_ptr<A> Adapt(const ComPtr<FakeObject>& object) {
    return session_->Adapt<A>(object->Dispatch());
  }
  static std::int32_t NumberOf(const std::function<void()>& body) {
    try {
      body();
    } catch (const host::Error& error) {
      return error.Number();
    }
    return 0;
  }

  std::shared_ptr<HostSession> session_ = std::make_shared<HostSession>();
};

TEST_F(AdaptersTest, AnObjectHasOneAdapterHoweverItCame) {
  const auto loan = FakeObject::Make();
  const auto other = FakeObject::Make();
  const auto dossier = FakeObject::Make();
  dossier->Answers(L"HuidigeLening", Variant(loan->Dispatch().Get()));
  dossier->members[L"Lening"] = [&](const std::vector<Variant>& arguments) {
    return Variant(As<std::int16_t>(arguments.at(0)) == 0 ? loan->Dispatch().Get() : other->Dispatch().Get());
  };
  const auto adapter = Adapt<DossierAdapter>(dossier);
  const auto current = adapter->HuidigeLening();
  EXPECT_EQ(adapter->Lening(0), current);
  EXPECT_NE(adapter->Lening(1), current);
}

TEST_F(AdaptersTest, NothingIsNoAdapter) {
  const auto dossier = FakeObject::Make();
  dossier->Answers(L"Persoon", Variant(static_cast<IDispatch*>(nullptr)));
  dossier->Answers(L"Lening", Variant());
  const auto adapter = Adapt<DossierAdapter>(dossier);
  EXPECT_EQ(adapter->Persoon(2), nullptr);
  EXPECT_EQ(adapter->Lening(9), nullptr);
}

TEST_F(AdaptersTest, AnAdapterThatNobodyHoldsLetsItsObjectGo) {
  const int before = FakeObject::alive;
  {
    const auto adapter = Adapt<LeningAdapter>(FakeObject::Make());
    EXPECT_EQ(FakeObject::alive, before + 1);
  }
  EXPECT_EQ(FakeObject::alive, before);
}

TEST_F(AdaptersTest, AllAreLetGoAtOnceAndFailFromThenOn) {
  const int before = FakeObject::alive;
  const auto record = Adapt<RecordAdapter>(FakeObject::Make());
  const auto loan = Adapt<LeningAdapter>(FakeObject::Make());
  session_->LetGo();
  EXPECT_EQ(FakeObject::alive, before);
  EXPECT_EQ(NumberOf([&] { (void)record->Termijn(); }), 91);
  EXPECT_EQ(NumberOf([&] { (void)loan->VrijeKolom(1); }), 91);
}

TEST_F(AdaptersTest, WhatTheControlMadeItselfIsMadeAnewAfterwards) {
  std::vector<ComPtr<FakeObject>> made;
  const auto trace = session_->Make<TraceAdapter>([&] {
    made.push_back(FakeObject::Make());
    made.back()->Answers(L"LeaveProcedure", Variant());
    return made.back()->Dispatch();
  });
  trace->LeaveProcedure();
  session_->LetGo();
  trace->LeaveProcedure();
  trace->LeaveProcedure();
  ASSERT_EQ(made.size(), 2U);
  EXPECT_EQ(made[0]->accesses.size(), 1U);
  EXPECT_EQ(made[1]->accesses.size(), 2U);
}

TEST_F(AdaptersTest, ANameIsAnArrayOfThree) {
  const auto person = FakeObject::Make();
  const std::array names{Variant("J."), Variant("van"), Variant("Dam")};
  person->Answers(L"Naam", Variant(std::span<const Variant>(names)));
  person->Answers(L"Geboortedatum", Variant(host::Date(27759)));
  const auto adapter = Adapt<PersoonAdapter>(person);
  EXPECT_EQ(adapter->Naam(), (std::array<std::string, 3>{"J.", "van", "Dam"}));
  EXPECT_EQ(adapter->Geboortedatum(), host::Date(27759));
}

TEST_F(AdaptersTest, EachFieldOfTheRecordIsPutWithItsType) {
  const auto record = FakeObject::Make();
  for (const wchar_t* name : {L"Termijn", L"Looptijd", L"Omschrijving", L"InDagloon", L"DatumAanvang",
                              L"PercentageOvergang", L"EindleeftijdOvergang"})
    record->Answers(name, Variant());
  const auto adapter = Adapt<RecordAdapter>(record);
  adapter->SetTermijn(12);
  adapter->SetLooptijd(400);
  adapter->SetOmschrijving("Krant");
  adapter->SetInDagloon(true);
  adapter->SetDatumAanvang(host::Date(47939));
  adapter->SetPercentageOvergang(62.5F);
  adapter->SetEindleeftijdOvergang(65);
  std::vector<VARTYPE> types;
  for (const Access& access : record->accesses) types.push_back(access.arguments.at(0).Type());
  EXPECT_EQ(types, (std::vector<VARTYPE>{VT_I2, VT_I4, VT_BSTR, VT_BOOL, VT_DATE, VT_R4, VT_I2}));
}

TEST_F(AdaptersTest, TheAmountIsOneObjectUnderTwoNames) {
  const auto amount = FakeObject::Make();
  amount->Answers(L"Basisbedrag", Variant(12.5));
  amount->Answers(L"Bedrag", Variant(13.5));
  amount->Answers(L"NieuwePeriode", Variant(std::int16_t{4}));
  const auto adapter = Adapt<BedragAdapter>(amount);
  EXPECT_EQ(adapter->Basisbedrag(), 12.5);
  EXPECT_EQ(adapter->Bedrag(), 13.5);
  EXPECT_EQ(adapter->NieuwePeriode(), 4);
}

TEST_F(AdaptersTest, TheHostFillsTheListThatItIsLent) {
  memory::Toolkit toolkit;
  const auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
  frame::Controls controls(*surface);
  host::ListBox& list = controls[vrijekolom::cboMaatschappij];

  const auto application = FakeObject::Make();
  application->Answers(L"Codetabellen", Variant("tabellen"));
  ComPtr<IDispatch> kept;
  std::vector<Variant> given;
  application->members[L"VulCombo"] = [&](const std::vector<Variant>& arguments) {
    given = arguments;
    kept = As<ComPtr<IDispatch>>(arguments.at(2));
    LateBound combo(kept);
    combo.Call(L"AddItem", std::array{Variant("Alfa Bank")});
    combo.Call(L"AddItem", std::array{Variant("Beta"), Variant(std::int32_t{70000})});
    combo.Put(L"ListIndex", Variant(std::int32_t{1}));
    EXPECT_EQ(As<std::int32_t>(combo.Get(L"ListCount")), 2);
    EXPECT_EQ(As<std::string>(combo.Get(L"List", std::array{Variant(std::int32_t{0})})), "Alfa Bank");
    EXPECT_EQ(As<std::int32_t>(combo.Get(L"ItemData", std::array{Variant(std::int32_t{1})})), 70000);
    EXPECT_EQ(As<std::string>(combo.Get(L"Text")), "Beta");
    return Variant();
  };
  const auto adapter = Adapt<ApplicationAdapter>(application);
  adapter->VulCombo(adapter->Codetabellen(), "MaatschappijType", list, "BV", "", std::nullopt);

  ASSERT_EQ(given.size(), 6U);
  EXPECT_EQ(As<std::string>(given[0]), "tabellen");
  EXPECT_EQ(As<std::string>(given[1]), "MaatschappijType");
  EXPECT_EQ(As<std::string>(given[3]), "BV");
  EXPECT_EQ(As<std::string>(given[4]), "");
  EXPECT_TRUE(IsMissing(given[5].Raw()));
  EXPECT_EQ(list.ListCount(), 2);
  EXPECT_EQ(list.ListIndex(), 1);
  // The host has no use of it after the call.
  LateBound late(kept);
  EXPECT_EQ(NumberOf([&] { late.Call(L"Clear"); }), 91);
  EXPECT_EQ(list.ListCount(), 2);
}

TEST_F(AdaptersTest, AListEntryThatIsNotThereFailsTheHostsCall) {
  memory::Toolkit toolkit;
  const auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
  frame::Controls controls(*surface);
  const auto application = FakeObject::Make();
  std::int32_t number = 0;
  application->members[L"VulCombo"] = [&](const std::vector<Variant>& arguments) {
    LateBound combo(As<ComPtr<IDispatch>>(arguments.at(2)));
    number = NumberOf([&] { combo.Put(L"ListIndex", Variant(std::int32_t{5})); });
    return Variant();
  };
  Adapt<ApplicationAdapter>(application)
      ->VulCombo(nullptr, "MaatschappijType", controls[vrijekolom::cboMaatschappij], "", "", 3);
  EXPECT_EQ(number, 381);
  EXPECT_EQ(As<std::int32_t>(application->accesses.at(0).arguments.at(5)), 3);
}

TEST_F(AdaptersTest, TheTracerThatTheHostPutsInPlaceIsUsedFromThenOn) {
  const auto first = FakeObject::Make();
  const auto second = FakeObject::Make();
  first->Answers(L"LeaveProcedure", Variant());
  second->Answers(L"LeaveProcedure", Variant());
  const auto trace = session_->Make<TraceAdapter>([&] { return first->Dispatch(); });
  const auto application = FakeObject::Make();
  application->Answers(L"ReportError", Variant());
  application->raw = [&](DISPPARAMS& parameters) {
    IDispatch** const place = parameters.rgvarg[0].ppdispVal;
    EXPECT_EQ(*place, first.Get());
    (*place)->Release();
    second.CopyTo(reinterpret_cast<FakeObject**>(place));
  };
  Adapt<ApplicationAdapter>(application)->ReportError(*trace);
  trace->LeaveProcedure();
  EXPECT_TRUE(first->accesses.empty());
  EXPECT_EQ(second->accesses.size(), 1U);
}

TEST_F(AdaptersTest, TheHostsCheckIsHandedItsOwnApplication) {
  const auto application = FakeObject::Make();
  const auto check = FakeObject::Make();
  check->Answers(L"Controleer", Variant());
  const auto adapter = session_->Make<ControleAdapter>([&] { return check->Dispatch(); });
  adapter->Controleer(Adapt<ApplicationAdapter>(application), 1);
  const auto& arguments = check->accesses.at(0).arguments;
  EXPECT_EQ(As<ComPtr<IDispatch>>(arguments.at(0)).Get(), application.Get());
  EXPECT_EQ(arguments.at(1).Type(), VT_I2);
  EXPECT_EQ(As<std::int16_t>(arguments.at(1)), 1);
}

TEST_F(AdaptersTest, AnOwnerIsAHandleOrAnObjectThatHasOne) {
  const HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  const auto handle = static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(window));
  EXPECT_EQ(HandleNamedBy(Variant(handle).Raw()), window);
  const auto object = FakeObject::Make();
  object->Answers(L"hWnd", Variant(handle));
  EXPECT_EQ(HandleNamedBy(Variant(object->Dispatch().Get()).Raw()), window);
  EXPECT_EQ(HandleNamedBy(Variant(FakeObject::Make()->Dispatch().Get()).Raw()), nullptr);
  EXPECT_EQ(HandleNamedBy(Variant(static_cast<IDispatch*>(nullptr)).Raw()), nullptr);
  EXPECT_EQ(HandleNamedBy(Variant::Missing().Raw()), nullptr);
  DestroyWindow(window);
  EXPECT_EQ(HandleNamedBy(Variant(handle).Raw()), nullptr);
}

}  // namespace
}  // namespace brivane::component
