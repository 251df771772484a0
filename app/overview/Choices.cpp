#include "app/overview/Choices.h"

#include <QComboBox>
#include <QDateEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "app/desk/FlowRow.h"
#include "app/desk/Today.h"
#include "app/overview/Words.h"
#include <brivane/frame/Calendar.h>

namespace brivane::app {
namespace {

constexpr sums::Levensscenario kScenarios[] = {sums::Levensscenario::ZoalsNu,
                                               sums::Levensscenario::Arbeidsongeschikt,
                                               sums::Levensscenario::Werkloos,
                                               sums::Levensscenario::Langleven,
                                               sums::Levensscenario::OverlijdenAanvrager,
                                               sums::Levensscenario::OverlijdenPartner};

QDate ToQDate(host::Date date) {
  const frame::YearMonthDay day = frame::Split(date);
  return {day.year, day.month, day.day};
}

QStringList TextsOf(const QComboBox& box) {
  QStringList texts;
  for (int i = 0; i < box.count(); ++i) texts << box.itemText(i);
  return texts;
}

/// Fills a list anew; what was chosen by number stays chosen where there still is such a number.
void Fill(QComboBox& box, const QStringList& texts) {
  if (TextsOf(box) == texts) return;
  const QSignalBlocker silent(box);
  const int chosen = box.currentIndex();
  box.clear();
  box.addItems(texts);
  box.setCurrentIndex(chosen >= 0 && chosen < texts.size() ? chosen : 0);
}

}  // namespace

Choices::Choices(QWidget* parent)
    : QWidget(parent),
      row_(new FlowRow(this)),
      situatie_(new QComboBox),
      scenario_(new QComboBox),
      peildatum_(new QDateEdit) {
  situatie_->setObjectName(QStringLiteral("situatie"));
  situatie_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  scenario_->setObjectName(QStringLiteral("scenario"));
  scenario_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  peildatum_->setAccessibleName(QStringLiteral("Peildatum"));  // the label has a colon
  peildatum_->setObjectName(QStringLiteral("peildatum"));
  peildatum_->setDisplayFormat(QStringLiteral("dd-MM-yyyy"));
  peildatum_->setCalendarPopup(true);
  // What is half typed is no day to reckon on.
  peildatum_->setKeyboardTracking(false);
  peildatum_->setDateRange(QDate(1900, 1, 1), QDate(2199, 12, 31));
  peildatum_->setDate(ToQDate(Today()));
  row_->AddPair(QStringLiteral("&Situatie:"), situatie_);
  row_->AddPair(QStringLiteral("&Levensscenario:"), scenario_);
  row_->AddPair(QStringLiteral("&Peildatum:"), peildatum_);
  connect(situatie_, &QComboBox::currentIndexChanged, this, &Choices::Tell);
  connect(scenario_, &QComboBox::currentIndexChanged, this, &Choices::Tell);
  connect(peildatum_, &QDateEdit::dateChanged, this, &Choices::Tell);
}

void Choices::AddFirst(const QString& label, QComboBox* box) {
  row_->AddPair(label, box, 0);
  setTabOrder(box, situatie_);
  connect(box, &QComboBox::currentIndexChanged, this, &Choices::Tell);
}

void Choices::Offer(const dossier::DossierGegevens& dossier) {
  QStringList situaties;
  for (std::size_t situatie = 0; situatie <= dossier.Leningen.size(); ++situatie)
    situaties << SituatieText(dossier, static_cast<std::int16_t>(situatie));
  Fill(*situatie_, situaties);
  QStringList scenarios;
  for (const sums::Levensscenario scenario : kScenarios)
    if (scenario != sums::Levensscenario::OverlijdenPartner || dossier.Personen.size() > 1)
      scenarios << ScenarioText(scenario);
  Fill(*scenario_, scenarios);
}

void Choices::Tell() const {
  if (changed) changed();
}

std::int16_t Choices::Situatie() const { return static_cast<std::int16_t>(std::max(0, situatie_->currentIndex())); }

sums::Levensscenario Choices::Scenario() const { return kScenarios[std::max(0, scenario_->currentIndex())]; }

host::Date Choices::Peildatum() const {
  const QDate date = peildatum_->date();
  return frame::MakeDate({.year = date.year(), .month = date.month(), .day = date.day()});
}

sums::Uitgangspunt Choices::Uitgangspunt(const dossier::DossierGegevens& dossier) const {
  return {.peildatum = Peildatum(), .scenario = Scenario(), .tarieven = sums::TarievenVan(dossier.Personen)};
}

void Choices::ChooseSituatie(std::int16_t situatie) {
  if (situatie < situatie_->count()) situatie_->setCurrentIndex(situatie);
}

void Choices::SetSituatieEnabled(bool enabled) { situatie_->setEnabled(enabled); }

}  // namespace brivane::app
