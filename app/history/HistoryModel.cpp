#include "app/history/HistoryModel.h"

#include <QDateTime>
#include <algorithm>
#include <array>

#include "app/history/FieldWords.h"
#include <brivane/host/Error.h>

namespace brivane::app {
namespace {

constexpr int kPage = 200;      ///< rows that are read at once
constexpr int kMostPages = 50;  ///< that are kept

constexpr std::array<const char*, HistoryModel::kColumns> kHeadings = {"Wanneer", "Wie",   "Lening", "Vrije kolom",
                                                                       "Wat",     "Soort", "Van",    "Naar"};

QString KindText(const dossier::HistoryLine& line) {
  switch (line.step.kind) {
    case dossier::StepKind::Undo: return QStringLiteral("ongedaan gemaakt");
    case dossier::StepKind::Redo: return QStringLiteral("opnieuw gedaan");
    case dossier::StepKind::CarryOver: return QStringLiteral("overgenomen");
    case dossier::StepKind::Edit: break;
  }
  if (line.entry.Added()) return QStringLiteral("toegevoegd");
  return line.entry.Removed() ? QStringLiteral("verwijderd") : QStringLiteral("gewijzigd");
}

QString TextOf(const dossier::HistoryLine& line, int column) {
  switch (column) {
    case HistoryModel::When:
      return QDateTime::fromMSecsSinceEpoch(line.step.time).toString(QStringLiteral("dd-MM-yyyy HH:mm:ss"));
    case HistoryModel::Who: return QString::fromStdString(line.step.who);
    case HistoryModel::Lening: return QString::fromStdString(line.entry.lening_naam);
    case HistoryModel::Kolom: return QString::fromStdString(line.entry.kolom_naam);
    case HistoryModel::What: return SubjectText(line.entry);
    case HistoryModel::Kind: return KindText(line);
    case HistoryModel::Before: return BeforeText(line.entry);
    case HistoryModel::After: return AfterText(line.entry);
    default: return {};
  }
}

}  // namespace

HistoryModel::HistoryModel(dossier::HistoryView& view, QObject* parent)
    : QAbstractTableModel(parent), view_(view), pages_(kMostPages) {}

void HistoryModel::Show(const dossier::HistoryFilter& filter) {
  std::vector<std::int64_t> numbers = view_.Find(filter);
  beginResetModel();
  numbers_ = std::move(numbers);
  pages_.clear();
  endResetModel();
}

const dossier::HistoryLine& HistoryModel::LineAt(int row) const {
  const int page = row / kPage;
  if (!pages_.contains(page)) {
    const auto first = numbers_.begin() + std::ptrdiff_t{page} * kPage;
    const auto count = std::min<std::ptrdiff_t>(kPage, numbers_.end() - first);
    pages_.insert(page, new Page(view_.Lines({first, first + count})));
  }
  return (*pages_.object(page))[static_cast<std::size_t>(row % kPage)];
}

QStringList HistoryModel::Texts(int row) {
  const dossier::HistoryLine& line = LineAt(row);
  QStringList texts;
  for (int column = 0; column < kColumns; ++column) texts << TextOf(line, column);
  return texts;
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(numbers_.size());
}

int HistoryModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int{kColumns}; }

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  try {
    return TextOf(LineAt(index.row()), index.column());
  } catch (const host::Error&) {
    return QStringLiteral("(niet te lezen)");
  }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return Heading(section);
}

QString HistoryModel::Heading(int column) { return QString::fromUtf8(kHeadings[static_cast<std::size_t>(column)]); }

}  // namespace brivane::app
