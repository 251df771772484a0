#include "tests/toolkits/conformance/Conformance.h"

/// The state of a fresh surface.
namespace brivane::test {

TEST_P(Conformance, EveryRowIsMadeWithItsNameKindAndPlace) {
  const std::vector<controls::ControlDump> shown = subject->Shown(Area());
  // The embedded surface is followed by its own two controls.
  ASSERT_EQ(shown.size(), std::size(kSurfaceRows) + std::size(kInnerRows));
  for (std::size_t i = 0; i < std::size(kSurfaceRows); ++i) {
    const frame::Row& row = kSurfaceRows[i];
    SCOPED_TRACE(shown[i].name);
    EXPECT_EQ(shown[i].name.substr(0, row.name.size()), row.name);
    EXPECT_EQ(shown[i].kind, row.kind);
    EXPECT_EQ(shown[i].place.left.value, static_cast<float>(row.place.left));
    EXPECT_EQ(shown[i].place.top.value, static_cast<float>(row.place.top));
    EXPECT_EQ(shown[i].place.width.value, static_cast<float>(row.place.width));
    EXPECT_EQ(shown[i].place.height.value, static_cast<float>(row.place.height));
  }
  EXPECT_EQ(shown[12].name, "optSoort(1)");
  EXPECT_EQ(shown[14].name, "optSoort(3)");
  EXPECT_EQ(shown[24].name, "Binnenste.fraBinnen");
  EXPECT_EQ(shown[25].name, "Binnenste.jnBinnen");
}

TEST_P(Conformance, EverythingStartsEnabledAndVisible) {
  for (const controls::ControlDump& dump : subject->Shown(Area())) {
    EXPECT_TRUE(dump.enabled) << dump.name;
    EXPECT_TRUE(dump.visible) << dump.name;
  }
}

TEST_P(Conformance, BoxesStartEmptyAndOpen) {
  EXPECT_EQ(Shown("txtNaam").value, controls::DumpValue(std::string()));
  EXPECT_EQ(Shown("txtBedrag").value, controls::DumpValue(0.0));
  EXPECT_EQ(Shown("txtJaren").value, controls::DumpValue(0.0));
  EXPECT_EQ(Shown("txtDatum").value, controls::DumpValue(host::kNoDate));
  EXPECT_EQ(Shown("txtNaam").locked, false);
  EXPECT_EQ(Shown("txtTotaal").locked, true);
}

TEST_P(Conformance, TogglesStartAtNeeAndNothingIsTickedOrSelected) {
  EXPECT_EQ(Shown("jnDiep").value, controls::DumpValue(1));
  EXPECT_EQ(Shown("Binnenste.jnBinnen").value, controls::DumpValue(1));
  EXPECT_EQ(Shown("chkVinkje").value, controls::DumpValue(0));
  for (const char* option : {"optSoort(1)", "optSoort(2)", "optSoort(3)", "optAnder(1)", "optAnder(2)"})
    EXPECT_EQ(Shown(option).value, controls::DumpValue(false)) << option;
}

TEST_P(Conformance, AListStartsWithItsDesignedEntriesAndNoneSelected) {
  const auto termijn = Shown("cboTermijn").list;
  ASSERT_TRUE(termijn);
  EXPECT_EQ(termijn->entries,
            (std::vector<controls::ListBox::Entry>{{"per maand", 1}, {"per kwartaal", 3}, {"per jaar", 12}}));
  EXPECT_EQ(termijn->index, -1);
  const auto leeg = Shown("cboLeeg").list;
  ASSERT_TRUE(leeg);
  EXPECT_TRUE(leeg->entries.empty());
  EXPECT_EQ(leeg->index, -1);
}

TEST_P(Conformance, CaptionsAreThoseOfTheDesign) {
  EXPECT_EQ(Shown("fraBoxen").caption, "Boxen");
  EXPECT_EQ(Shown("lblNaam").caption, "&Naam");
  EXPECT_EQ(Shown("optSoort(2)").caption, "Twee");
  EXPECT_EQ(Shown("chkVinkje").caption, "Vinkje");
  EXPECT_EQ(Shown("cmdDoen").caption, "&Doen");
  for (const char* bare : {"txtNaam", "jnDiep", "hntDiep", "cboTermijn", "lvwLijst", "Binnenste"})
    EXPECT_FALSE(Shown(bare).caption) << bare;
  EXPECT_EQ(Get<controls::Hint>("hntDiep").HelpText(), "Zo diep als het kan.");
}

TEST_P(Conformance, BoxesAndListsHaveTheWindowBackgroundAndTheRestTheButtonFace) {
  for (const char* name : {"txtNaam", "txtTotaal", "cboTermijn", "lvwLijst"})
    EXPECT_EQ(Shown(name).backColor, host::Color{-2147483643}) << name;
  for (const char* name :
       {"fraBoxen", "lblNaam", "jnDiep", "hntDiep", "optSoort(1)", "chkVinkje", "cmdDoen", "Binnenste"})
    EXPECT_EQ(Shown(name).backColor, host::Color{-2147483633}) << name;
  EXPECT_EQ(surface->BackColor(), host::Color{-2147483633});
}

TEST_P(Conformance, TheTableGivesEachControlByItsRowAndInOrder) {
  ASSERT_EQ(surface->Controls().size(), std::size(kSurfaceRows));
  for (std::size_t i = 0; i < std::size(kSurfaceRows); ++i) {
    EXPECT_EQ(surface->Controls()[i], &surface->At(i));
    EXPECT_EQ(surface->At(i).Name(), kSurfaceRows[i].name);
  }
  const frame::Controls controls(*surface);
  constexpr auto optSoort = frame::FindArray<Kind::OptionButton>(kSurface, "optSoort");
  EXPECT_EQ(controls(optSoort, 3).Caption(), "Drie");
  EXPECT_EQ(ErrorOf([&] { (void)controls(optSoort, 0); }), 340);
  EXPECT_EQ(ErrorOf([&] { (void)controls(optSoort, 4); }), 340);
}

}  // namespace brivane::test
