#include "app/program/Settings.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace brivane::dossier {
namespace {

constexpr char kVensterplaats[] = "venster/plaats";
constexpr char kVerdeling[] = "venster/verdeling";
constexpr char kLaatsteBestand[] = "laatsteBestand";

QVariant Lees(const char* sleutel) { return QSettings().value(QLatin1String(sleutel)); }
void Schrijf(const char* sleutel, const QVariant& waarde) { QSettings().setValue(QLatin1String(sleutel), waarde); }

}  // namespace

QByteArray Instellingen::Vensterplaats() { return Lees(kVensterplaats).toByteArray(); }
void Instellingen::SetVensterplaats(const QByteArray& plaats) { Schrijf(kVensterplaats, plaats); }
QByteArray Instellingen::Verdeling() { return Lees(kVerdeling).toByteArray(); }
void Instellingen::SetVerdeling(const QByteArray& verdeling) { Schrijf(kVerdeling, verdeling); }
QString Instellingen::LaatsteBestand() { return Lees(kLaatsteBestand).toString(); }
void Instellingen::SetLaatsteBestand(const QString& bestand) { Schrijf(kLaatsteBestand, bestand); }

QString Instellingen::Map() {
  const QString laatste = LaatsteBestand();
  return laatste.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                           : QFileInfo(laatste).absolutePath();
}

}  // namespace brivane::dossier
