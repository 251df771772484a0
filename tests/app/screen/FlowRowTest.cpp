#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/desk/FlowRow.h"

namespace brivane::app {
namespace {

TEST(FlowRowTest, GoesOnInANextRowWhereThereIsNoRoom) {
  using Rows = std::vector<int>;
  EXPECT_EQ(RowsFor({}, 5, 100), Rows{});
  // 40 + 5 + 55 fills a row of 100 to the last dot.
  EXPECT_EQ(RowsFor({40, 55}, 5, 100), (Rows{0, 0}));
  EXPECT_EQ(RowsFor({40, 56}, 5, 100), (Rows{0, 1}));
  EXPECT_EQ(RowsFor({30, 30, 30, 30}, 5, 100), (Rows{0, 0, 0, 1}));
  // Wider than a row: one to itself, also the first.
  EXPECT_EQ(RowsFor({150, 20, 150, 20}, 5, 100), (Rows{0, 1, 2, 3}));
  EXPECT_EQ(RowsFor({10, 10}, 5, 0), (Rows{0, 1}));
}

TEST(FlowRowTest, ALabelStaysWithItsBoxAndTheWindowMayBeNarrow) {
  QWidget window;
  auto* below = new QVBoxLayout(&window);
  auto* row = new FlowRow;
  auto* first = new QLineEdit;
  auto* second = new QLineEdit;
  auto* foremost = new QLineEdit;
  for (QLineEdit* box : {first, second, foremost}) box->setFixedWidth(100);
  row->AddPair(QStringLiteral("&Een"), first);
  row->AddPair(QStringLiteral("&Twee"), second);
  row->AddPair(QStringLiteral("&Nul"), foremost, 0);
  below->addLayout(row);
  below->addStretch();
  window.resize(900, 300);
  window.show();
  const auto labelOf = [&](const QWidget* box) -> const QLabel& {
    for (const auto* label : window.findChildren<QLabel*>())
      if (label->buddy() == box) return *label;
    throw std::logic_error("no label");
  };
  EXPECT_LT(foremost->x(), first->x());
  EXPECT_LT(first->x(), second->x());
  EXPECT_EQ(first->y(), second->y());
  EXPECT_LT(window.minimumSizeHint().width(), 250);
  window.resize(350, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(foremost->y(), first->y());
  EXPECT_GT(second->y(), first->geometry().bottom());
  for (const QWidget* box : {first, second, foremost}) {
    EXPECT_LT(labelOf(box).geometry().right(), box->x());
    EXPECT_LE(std::abs(labelOf(box).geometry().center().y() - box->geometry().center().y()), 2);
  }
}

}  // namespace
}  // namespace brivane::app
