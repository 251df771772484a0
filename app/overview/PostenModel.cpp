#include "app/overview/PostenModel.h"

#include <QTextDocument>
#include <algorithm>
#include <iterator>
#include <utility>

#include "app/overview/Words.h"
#include <brivane/host/model/Codes.h>

namespace brivane::app {
namespace {

using Cell = PostenModel::Cell;
using Kind = PostenModel::Kind;

bool IsNumber(Cell cell) {
  return cell == Cell::Bedrag || cell == Cell::PerMaand || cell == Cell::Last || cell == Cell::Inkomen ||
         cell == Cell::Belasting;
}

QString Heading(Cell cell, Kind kind) {
  const bool once = kind == Kind::Eenmalig;
  switch (cell) {
    case Cell::Naam: return once ? QStringLiteral("Eenmalig") : QStringLiteral("Kolom");
    case Cell::Herkomst: return QStringLiteral("Situatie");
    case Cell::Bedrag: return QStringLiteral("Bedrag");
    case Cell::Termijn: return QStringLiteral("Termijn");
    case Cell::PerMaand: return QStringLiteral("Per maand");
    case Cell::Aanvang: return once ? QStringLiteral("Datum") : QStringLiteral("Aanvang");
    case Cell::Einde: return QStringLiteral("Einde");
    case Cell::Persoon: return QStringLiteral("Persoon");
    case Cell::Last: return once ? QStringLiteral("Lasten") : QStringLiteral("Maandlast");
    case Cell::Inkomen: return once ? QStringLiteral("Bel. inkomen") : QStringLiteral("Bel. inkomen p.j.");
    case Cell::Belasting: return once ? QStringLiteral("Belasting") : QStringLiteral("Belasting p.j.");
    case Cell::Opmerking: return QStringLiteral("Opmerking");
  }
  return {};
}

/// The heading without abbreviations, for a tip and a screen reader.
QString FullHeading(Cell cell, Kind kind) {
  if (cell == Cell::Inkomen)
    return kind == Kind::Eenmalig ? QStringLiteral("Belastbaar inkomen in het jaar")
                                  : QStringLiteral("Belastbaar inkomen per jaar");
  if (cell == Cell::Belasting)
    return kind == Kind::Eenmalig ? QStringLiteral("Inkomstenbelasting over het jaar")
                                  : QStringLiteral("Inkomstenbelasting per jaar");
  return Heading(cell, kind);
}

QString Tip(const QString& text) {
  return Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()) : text;
}

}  // namespace

PostenModel::PostenModel(Kind kind, QObject* parent) : QAbstractTableModel(parent), kind_(kind) {
  if (kind == Kind::Eenmalig)
    cells_ = {Cell::Naam, Cell::Herkomst, Cell::Bedrag,    Cell::Aanvang,  Cell::Persoon,
              Cell::Last, Cell::Inkomen,  Cell::Belasting, Cell::Opmerking};
  else
    cells_ = {Cell::Naam,  Cell::Herkomst, Cell::Bedrag, Cell::Termijn, Cell::PerMaand,  Cell::Aanvang,
              Cell::Einde, Cell::Persoon,  Cell::Last,   Cell::Inkomen, Cell::Belasting, Cell::Opmerking};
}

void PostenModel::Show(std::shared_ptr<const sums::Overzicht> overzicht, std::int16_t situatie) {
  beginResetModel();
  overzicht_ = std::move(overzicht);
  rows_ = overzicht_->Regels(situatie);
  std::erase_if(rows_, [&](const auto& row) { return row.post->Eenmalig() != (kind_ == Kind::Eenmalig); });
  endResetModel();
}

int PostenModel::RowOf(std::int16_t Len_Id, std::int16_t Vrij_Id) const {
  const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const auto& candidate) {
    return candidate.post->Len_Id == Len_Id && candidate.post->Vrij_Id == Vrij_Id;
  });
  return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

int PostenModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int PostenModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(cells_.size());
}

QString PostenModel::Text(const sums::Overzicht::Regel& row, Cell cell) const {
  const sums::Post& post = *row.post;
  const bool counts = post.stand == sums::Stand::Telt;
  const auto ifCounts = [counts](const QString& text) { return counts ? text : QString(); };
  switch (cell) {
    case Cell::Naam: return QString::fromStdString(post.naam);
    case Cell::Herkomst: return HerkomstText(row.herkomst);
    case Cell::Bedrag: return BedragText(post);
    case Cell::Termijn: {
      const std::string_view words = host::codes::WordsFor(post.termijn, host::codes::kTermijnen);
      return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
    }
    case Cell::PerMaand: return ifCounts(Euros(post.perMaand));
    case Cell::Aanvang: return DateText(post.looptijd.aanvang);
    case Cell::Einde: return DateText(post.looptijd.einde);
    case Cell::Persoon: return PersoonText(post.persoon);
    case Cell::Last: return ifCounts(SignedEuros(post.effect.last));
    case Cell::Inkomen: return ifCounts(SignedEuros(post.effect.inkomen));
    case Cell::Belasting: return ifCounts(SignedEuros(post.effect.belasting));
    case Cell::Opmerking: return StandText(post);
  }
  return {};
}

QVariant PostenModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Cell cell = cells_[static_cast<std::size_t>(index.column())];
  const auto& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole: return Text(row, cell);
    case Qt::ToolTipRole: return Tip(Text(row, cell));
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignVCenter | (IsNumber(cell) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::AccessibleTextRole: {
      const QString text = Text(row, cell);
      return FullHeading(cell, kind_) + QStringLiteral(": ") + (text.isEmpty() ? QStringLiteral("leeg") : text);
    }
    default: return {};
  }
}

QVariant PostenModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const Cell cell = cells_[static_cast<std::size_t>(section)];
  switch (role) {
    case Qt::DisplayRole: return Heading(cell, kind_);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: return FullHeading(cell, kind_);
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignVCenter | (IsNumber(cell) ? Qt::AlignRight : Qt::AlignLeft));
    default: return {};
  }
}

}  // namespace brivane::app
