#include "app/overview/TotalenModel.h"

#include <array>

#include "app/overview/Words.h"

namespace brivane::app {
namespace {

/// The figure of a column; each stands before its difference with the current situation.
struct Figure {
  const char* heading;
  const char* fullHeading;
  std::optional<double> (*of)(const sums::Totalen&);
};

constexpr std::array<Figure, 6> kFigures{{
    {"Maandlast", "Maandlast", [](const sums::Totalen& t) { return std::optional(t.doorlopend.effect.last); }},
    {"Bel. inkomen p.j.", "Belastbaar inkomen per jaar",
     [](const sums::Totalen& t) { return std::optional(t.doorlopend.effect.inkomen); }},
    {"Belasting p.j.", "Inkomstenbelasting per jaar",
     [](const sums::Totalen& t) { return t.doorlopend.effect.belasting; }},
    {"Eenm. lasten", "Eenmalige lasten in het jaar van de peildatum",
     [](const sums::Totalen& t) { return std::optional(t.eenmalig.effect.last); }},
    {"Eenm. inkomen", "Eenmalig belastbaar inkomen in het jaar van de peildatum",
     [](const sums::Totalen& t) { return std::optional(t.eenmalig.effect.inkomen); }},
    {"Eenm. belasting", "Eenmalige inkomstenbelasting over het jaar van de peildatum",
     [](const sums::Totalen& t) { return t.eenmalig.effect.belasting; }},
}};

const Figure& FigureAt(int column) { return kFigures[static_cast<std::size_t>((column - 1) / 2)]; }
bool IsDifference(int column) { return column > 0 && column % 2 == 0; }

QString FullHeading(int column) {
  if (column == 0) return QStringLiteral("Totaal");
  const QString text = QString::fromUtf8(FigureAt(column).fullHeading);
  return IsDifference(column) ? QStringLiteral("Verschil met huidig, %1").arg(text) : text;
}

}  // namespace

void TotalenModel::Show(const sums::Overzicht& overzicht, const QStringList& names) {
  beginResetModel();
  rows_.clear();
  const sums::Totalen huidig = overzicht.TotalenVan(0);
  for (qsizetype situatie = 0; situatie < names.size(); ++situatie) {
    const sums::Totalen totalen = overzicht.TotalenVan(static_cast<std::int16_t>(situatie));
    rows_.push_back({names[situatie], totalen, sums::Verschil(huidig, totalen)});
  }
  endResetModel();
}

int TotalenModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TotalenModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1 + 2 * static_cast<int>(kFigures.size());
}

QString TotalenModel::Text(int row, int column) const {
  const Row& shown = rows_[static_cast<std::size_t>(row)];
  if (column == 0) return shown.name;
  // The current situation does not differ from itself.
  if (IsDifference(column) && row == 0) return {};
  return SignedEuros(FigureAt(column).of(IsDifference(column) ? shown.verschil : shown.totalen));
}

QVariant TotalenModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole: return Text(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter | (index.column() == 0 ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::AccessibleTextRole: {
      const QString text = Text(index.row(), index.column());
      return FullHeading(index.column()) + QStringLiteral(": ") + (text.isEmpty() ? QStringLiteral("leeg") : text);
    }
    default: return {};
  }
}

QVariant TotalenModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  switch (role) {
    case Qt::DisplayRole:
      if (section == 0) return QStringLiteral("Totaal");
      return IsDifference(section) ? QStringLiteral("Verschil") : QString::fromUtf8(FigureAt(section).heading);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: return FullHeading(section);
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignVCenter | (section == 0 ? Qt::AlignLeft : Qt::AlignRight));
    default: return {};
  }
}

}  // namespace brivane::app
