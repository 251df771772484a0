#include "app/overview/YearsModel.h"

#include <utility>

#include "app/overview/Words.h"

namespace brivane::app {

void YearsModel::Show(YearData data) {
  beginResetModel();
  data_ = std::move(data);
  endResetModel();
}

int YearsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : data_.Years(); }

int YearsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1 + Persons() + static_cast<int>(data_.series.size());
}

QString YearsModel::Heading(int column) const {
  if (column == 0) return QStringLiteral("Jaar");
  if (column == 1 && Persons() > 0) return QStringLiteral("Leeftijd aanvrager");
  if (column <= Persons()) return QStringLiteral("Leeftijd partner");
  return QStringLiteral("%1 (%2)").arg(data_.series[static_cast<std::size_t>(column - 1 - Persons())].name, data_.unit);
}

QString YearsModel::Text(int row, int column) const {
  if (column == 0) return QString::number(data_.firstYear + row);
  if (column <= Persons()) return data_.ages[static_cast<std::size_t>(column - 1)].value(row);
  const auto& values = data_.series[static_cast<std::size_t>(column - 1 - Persons())].values;
  const auto& value = values[static_cast<std::size_t>(row)];
  return value ? Euros(*value) : QString();
}

QVariant YearsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole: return Text(index.row(), index.column());
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignVCenter | Qt::AlignRight);
    case Qt::AccessibleTextRole: {
      const QString text = Text(index.row(), index.column());
      return Heading(index.column()) + QStringLiteral(": ") + (text.isEmpty() ? QStringLiteral("leeg") : text);
    }
    default: return {};
  }
}

QVariant YearsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return Heading(section);
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignVCenter | Qt::AlignRight);
  return {};
}

}  // namespace brivane::app
