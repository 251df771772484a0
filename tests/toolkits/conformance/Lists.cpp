#include "tests/toolkits/conformance/Conformance.h"

/// The drop-down list and the report list.
namespace brivane::test {

using controls::Choose;
using controls::ListBox;
using controls::ListView;

TEST_P(Conformance, AListRaisesClickWhenAPersonPicksAnotherEntry) {
  auto& list = Get<ListBox>("cboTermijn");
  subscriptions += list.Click.Connect([&] { log.push_back(list.Text()); });
  Act(list, Choose{2});
  Act(list, Choose{2});
  Act(list, Choose{0});
  EXPECT_EQ(log, (std::vector<std::string>{"per jaar", "per maand"}));
  EXPECT_EQ(Shown("cboTermijn").list->index, 0);
}

TEST_P(Conformance, AListRaisesClickWhenCodeChangesTheIndexToNoneToo) {
  auto& list = Get<ListBox>("cboTermijn");
  subscriptions += list.Click.Connect([&] { log.push_back("Click " + std::to_string(list.ListIndex())); });
  list.SetListIndex(-1);
  log.emplace_back("still none");
  list.SetListIndex(1);
  list.SetListIndex(1);
  list.SetListIndex(-1);
  EXPECT_EQ(log, (std::vector<std::string>{"still none", "Click 1", "Click -1"}));
  EXPECT_EQ(Shown("cboTermijn").list->index, -1);
}

TEST_P(Conformance, ClearingAndAddingRaiseNothingAndClearingSelectsNone) {
  auto& list = Get<ListBox>("cboTermijn");
  list.SetListIndex(1);
  subscriptions += list.Click.Connect([&] { log.emplace_back("Click"); });
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.ListCount(), 0);
  list.Add("AEGON", 7);
  list.Add("Zoë", -2147483647 - 1);
  list.Add("zonder");
  EXPECT_EQ(list.ListIndex(), -1);
  subject->Settle();
  EXPECT_EQ(log, std::vector<std::string>{});
  EXPECT_EQ(Shown("cboTermijn").list->entries,
            (std::vector<ListBox::Entry>{{"AEGON", 7}, {"Zoë", -2147483647 - 1}, {"zonder", 0}}));
  EXPECT_EQ(Shown("cboTermijn").list->index, -1);
}

TEST_P(Conformance, ItemDataAndTextAreThoseOfTheirEntry) {
  auto& list = Get<ListBox>("cboTermijn");
  EXPECT_EQ(list.ListCount(), 3);
  EXPECT_EQ(list.ItemData(2), 12);
  EXPECT_EQ(list.List(1), "per kwartaal");
  list.SetListIndex(0);
  EXPECT_EQ(list.Text(), "per maand");
  EXPECT_EQ(list.ItemData(list.ListIndex()), 1);
}

TEST_P(Conformance, AnEntryThatIsNotThereFailsWith381) {
  auto& list = Get<ListBox>("cboTermijn");
  EXPECT_EQ(ErrorOf([&] { (void)list.Text(); }), 381);
  EXPECT_EQ(ErrorOf([&] { (void)list.ItemData(-1); }), 381);
  EXPECT_EQ(ErrorOf([&] { (void)list.List(3); }), 381);
  EXPECT_EQ(ErrorOf([&] { list.SetListIndex(3); }), 381);
  EXPECT_EQ(ErrorOf([&] { list.SetListIndex(-2); }), 381);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST_P(Conformance, AddingKeepsTheSelection) {
  auto& list = Get<ListBox>("cboTermijn");
  list.SetListIndex(1);
  list.Add("eenmalig", 99);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(Shown("cboTermijn").list->index, 1);
}

TEST_P(Conformance, TheReportListHoldsColumnsRowsAndBoldMarks) {
  auto& list = Get<ListView>("lvwLijst");
  list.AddColumn("Last", {1500});
  list.AddColumn("Box 1", {1800});
  list.AddItem(1, "a", "Last");
  list.AddSubItem(1, "Aftrek");
  list.AddItem(2, "b", "Bijdrage");
  list.AddSubItem(2, "Geen");
  list.Select(2);
  list.SetBold(2, true);
  list.SetSubItemBold(2, 1, true);
  list.SetSubItemBold(1, 1, true);
  list.SetSubItemBold(1, 1, false);
  const auto shown = Shown("lvwLijst").listView;
  ASSERT_TRUE(shown);
  EXPECT_EQ(shown->columns, (std::vector<ListView::Column>{{"Last", {1500}}, {"Box 1", {1800}}}));
  EXPECT_EQ(shown->items, (std::vector<ListView::Item>{{"a", {{"Last", false}, {"Aftrek", false}}},
                                                       {"b", {{"Bijdrage", true}, {"Geen", true}}}}));
  EXPECT_EQ(shown->selected, 2U);
  EXPECT_EQ(list.ItemCount(), 2U);
  EXPECT_EQ(list.SubItemCount(2), 1U);
  EXPECT_EQ(list.Key(1), "a");
  EXPECT_TRUE(list.Bold(2));
  EXPECT_FALSE(list.Bold(1));
}

TEST_P(Conformance, ARowInsertedAboveTheSelectedOneLeavesItSelected) {
  auto& list = Get<ListView>("lvwLijst");
  list.AddColumn("Last", {1500});
  list.AddItem(1, "b", "Bijdrage");
  list.Select(1);
  list.AddItem(1, "a", "Last");
  EXPECT_EQ(list.Selected(), 2U);
  EXPECT_EQ(list.Key(2), "b");
  EXPECT_EQ(Shown("lvwLijst").listView->selected, 2U);
}

TEST_P(Conformance, ClearingTheReportListSelectsNone) {
  auto& list = Get<ListView>("lvwLijst");
  list.AddColumn("Last", {1500});
  list.AddItem(1, "a", "Last");
  list.Select(1);
  list.ClearItems();
  EXPECT_EQ(list.ItemCount(), 0U);
  EXPECT_EQ(list.Selected(), 0U);
  list.ClearColumns();
  const auto shown = Shown("lvwLijst").listView;
  ASSERT_TRUE(shown);
  EXPECT_EQ(*shown, controls::ControlDump::ListViewContent{});
}

TEST_P(Conformance, ARowThatIsNotThereFailsWith9) {
  auto& list = Get<ListView>("lvwLijst");
  EXPECT_EQ(ErrorOf([&] { list.Select(1); }), 9);
  EXPECT_EQ(ErrorOf([&] { list.AddItem(2, "b", "te ver"); }), 9);
  EXPECT_EQ(ErrorOf([&] { list.AddItem(0, "b", "te vroeg"); }), 9);
  list.AddItem(1, "a", "Last");
  EXPECT_EQ(ErrorOf([&] { (void)list.Key(2); }), 9);
  EXPECT_EQ(ErrorOf([&] { list.SetSubItemBold(1, 1, true); }), 9);
}

}  // namespace brivane::test
