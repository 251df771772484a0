#include <gtest/gtest.h>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/TextBox.h>
#include <brivane/host/Error.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::controls {

TEST(MemoryForm, TheWindowFrameIsTheSameOnEveryMachine) {
  memory::Toolkit toolkit;
  const auto form = toolkit.MakeForm(test::kForm);
  EXPECT_EQ(form->Place(), (host::Place{{0}, {0}, {6120 + 240}, {3600 + 585}}));
}

TEST(MemoryForm, WithoutAScriptItClosesAtOnce) {
  memory::Toolkit toolkit;
  const auto form = toolkit.MakeForm(test::kForm);
  form->ShowModal(nullptr);
  EXPECT_TRUE(dynamic_cast<Form&>(*form).IsUnloaded());
}

TEST(MemoryForm, AnElementIsMadeOnce) {
  memory::Toolkit toolkit;
  const auto form = toolkit.MakeForm(test::kForm);
  constexpr auto txtBedrag = frame::Find<frame::Kind::TextBox>(test::kForm, "txtBedrag");
  form->Create(txtBedrag.row, 1);
  for (const int index : {1, 0, -1}) EXPECT_THROW(form->Create(txtBedrag.row, index), host::Error) << index;
  EXPECT_EQ(form->Controls().size(), std::size(test::kFormRows) + 1);
}

TEST(MemoryForm, AnElementCopiesTheContentOfItsTemplate) {
  memory::Toolkit toolkit;
  const auto form = toolkit.MakeForm(test::kForm);
  constexpr auto txtBedrag = frame::Find<frame::Kind::TextBox>(test::kForm, "txtBedrag");
  static_cast<TextBox&>(form->At(txtBedrag.row)).SetNumber(5);
  EXPECT_EQ(static_cast<TextBox&>(form->Create(txtBedrag.row, 1)).Number(), 5);
}

}  // namespace brivane::controls
