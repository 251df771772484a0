#include "app/overview/FigureTable.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

namespace brivane::app {
namespace {

/// No cell breaks out of its place, and no text is taken for a formula; a number with its sign is none.
QString CellText(const QModelIndex& index) {
  QString text = index.data().toString();
  text.replace(u'\t', u' ').replace(u'\n', u' ').replace(u'\r', u' ');
  const bool number = index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
  if (!number && !text.isEmpty() && QStringLiteral("=+-@").contains(text.front())) text.prepend(u'\'');
  return text;
}

}  // namespace

QString RowsAsText(const QAbstractItemModel& model, QList<int> rows) {
  std::sort(rows.begin(), rows.end());
  QStringList lines;
  QStringList cells;
  for (int column = 0; column < model.columnCount(); ++column)
    cells << model.headerData(column, Qt::Horizontal).toString();
  lines << cells.join(u'\t');
  for (const int row : rows) {
    cells.clear();
    for (int column = 0; column < model.columnCount(); ++column) cells << CellText(model.index(row, column));
    lines << cells.join(u'\t');
  }
  return lines.join(u'\n') + u'\n';
}

FigureTable::FigureTable(QAbstractItemModel& model, const QString& name, const char* objectName) {
  setObjectName(QString::fromLatin1(objectName));
  setAccessibleName(name);
  setModel(&model);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setResizeContentsPrecision(100);
  horizontalHeader()->setStretchLastSection(true);
  connect(this, &QTableView::activated, this, [this](const QModelIndex& index) {
    if (chosen) chosen(index.row());
  });
}

void FigureTable::FitColumns() {
  resizeColumnsToContents();
  const int widest = fontMetrics().averageCharWidth() * 34;
  if (columnWidth(0) > widest) setColumnWidth(0, widest);
}

void FigureTable::SetCurrentRow(int row) {
  if (row >= 0 && row < model()->rowCount()) setCurrentIndex(model()->index(row, std::max(0, currentIndex().column())));
}

void FigureTable::CopyRows() const {
  QList<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) rows << index.row();
  if (!rows.isEmpty()) QApplication::clipboard()->setText(RowsAsText(*model(), rows));
}

void FigureTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return CopyRows();
  QTableView::keyPressEvent(event);
}

void FigureTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (currentRowChanged && current.isValid() && current.row() != previous.row()) currentRowChanged(current.row());
}

}  // namespace brivane::app
