#include <gtest/gtest.h>

#include <QLabel>

#include "examples/host/SampleCase.h"
#include "tests/designer/LoadForm.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

/// A program and the plugin on one shared library.
namespace brivane::test {
namespace {

TEST(LoadedForm, ItsEditorIsBoundLikeAnyOther) {
  const std::unique_ptr<QWidget> form = LoadForm();
  ASSERT_NE(form, nullptr);
  auto* const editor = form->findChild<qt::VrijeKolomWidget*>("editor");
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->Control(), nullptr);
  EXPECT_TRUE(editor->BeeindigenZichtbaar());
  editor->SetHostFactories(memory_host::Factories());
  EXPECT_EQ(editor->SetApplication(memory_host::SampleCase(), 0, 1), controls::BindingResult::Bound);
  EXPECT_EQ(form->findChild<QLabel*>("header")->text(), "Vereniging");
}

}  // namespace
}  // namespace brivane::test
