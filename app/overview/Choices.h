#pragma once

#include <QWidget>
#include <functional>

#include "dossier/sums/Overzicht.h"

class QComboBox;
class QDateEdit;

namespace brivane::app {

class FlowRow;

/// What an overview is asked for: a situation, a life scenario and a date of reference, today's at first.
class Choices final : public QWidget {
 public:
  explicit Choices(QWidget* parent = nullptr);

  /// Offers what the case has, and keeps what was chosen where it still has it.
  void Offer(const dossier::DossierGegevens& dossier);
  /// Puts another choice before the others.
  void AddFirst(const QString& label, QComboBox* box);

  [[nodiscard]] std::int16_t Situatie() const;
  [[nodiscard]] sums::Levensscenario Scenario() const;
  [[nodiscard]] host::Date Peildatum() const;
  [[nodiscard]] sums::Uitgangspunt Uitgangspunt(const dossier::DossierGegevens& dossier) const;
  void ChooseSituatie(std::int16_t situatie);

  /// Whether the situation matters to what is shown.
  void SetSituatieEnabled(bool enabled);

  std::function<void()> changed;

 private:
  void Tell() const;

  FlowRow* row_;
  QComboBox* situatie_;
  QComboBox* scenario_;
  QDateEdit* peildatum_;
};

}  // namespace brivane::app
