#include <gtest/gtest.h>

#include <QStandardItemModel>

#include "app/overview/FigureTable.h"

namespace brivane::app {
namespace {

TEST(FigureTable, CopiesNoCellThatBreaksOutOrStartsAFormula) {
  QStandardItemModel model(2, 2);
  model.setHorizontalHeaderLabels({"Kolom", "Bedrag"});
  model.setItem(0, 0, new QStandardItem("=1+1\tx\ny"));
  auto* number = new QStandardItem("-12,50");
  number->setTextAlignment(Qt::AlignRight);
  model.setItem(0, 1, number);
  model.setItem(1, 0, new QStandardItem("Krant"));
  model.setItem(1, 1, new QStandardItem("@"));
  EXPECT_EQ(RowsAsText(model, {1, 0}), "Kolom\tBedrag\n'=1+1 x y\t-12,50\nKrant\t'@\n");
}

}  // namespace
}  // namespace brivane::app
