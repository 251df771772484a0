#include "app/screen/SearchText.h"

#include <algorithm>

#include "dossier/model/Kopteksten.h"
#include <brivane/frame/Dates.h>
#include <brivane/host/model/Codes.h>
#include <brivane/toolkits/qt/Text.h>

namespace brivane::app {
namespace {

QString InputWords(std::int16_t invoersoort) {
  switch (invoersoort) {
    case 1: return QStringLiteral("bedragen");
    case 2: return QStringLiteral("percentages");
    case 3: return QStringLiteral("bedragen met groei");
    default: return {};
  }
}

}  // namespace

QString Folded(const QString& text) {
  QString folded = text.toCaseFolded();
  const bool plain = std::all_of(folded.cbegin(), folded.cend(), [](QChar c) { return c.unicode() < 0x80; });
  if (plain) return folded;
  folded = folded.normalized(QString::NormalizationForm_D);
  folded.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
  return folded;
}

QStringList SearchWords(const QString& typed) { return Folded(typed).simplified().split(u' ', Qt::SkipEmptyParts); }

QString SearchText(const dossier::KolomGegevens& kolom, const QString& company) {
  const QString amount = qt::ToQt(dossier::Basisbedrag(kolom));
  QString text = Folded(qt::ToQt(kolom.Omschrijving));
  // No word may begin in one field and end in the next.
  const auto add = [&text](const QString& part) {
    if (!part.isEmpty()) text += u'\n' + part;
  };
  add(Folded(qt::ToQt(kolom.Productnaam)));
  add(Folded(qt::ToQt(kolom.ProductsoortOmschrijving)));
  add(Folded(qt::ToQt(kolom.MaatschappijNaam)));
  add(Folded(company));
  add(amount);
  add(QString(amount).remove(u'.'));
  add(qt::ToQt(host::codes::WordsFor(kolom.Termijn, host::codes::kTermijnen)));
  add(InputWords(kolom.Bedrag.Invoersoort));
  add(qt::ToQt(frame::ShowDate(kolom.DatumAanvang)));
  return text;
}

bool IsFound(const QString& text, const QStringList& words) {
  return std::all_of(words.cbegin(), words.cend(), [&](const QString& word) { return text.contains(word); });
}

}  // namespace brivane::app
