#pragma once

#include <QDialog>
#include <array>
#include <vector>

#include "dossier/model/Gegevens.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace brivane::qt {
class DateBox;
}

namespace brivane::dossier {

/// The persons of a case and its age limit.
struct Client {
  std::vector<PersoonGegevens> personen;
  std::int16_t leeftijd = DossierGegevens().Leeftijd;
};

/// Asks for the applicant, the partner if there is one, and the age limit.
///
/// OK is refused, with the reason in the dialog, while a person lacks a surname or a birth date in the past.
class Clientvenster final : public QDialog {
 public:
  Clientvenster(const QString& titel, const Client& client, QWidget* parent);

  /// What stands in the dialog; valid once it was accepted.
  [[nodiscard]] Client Gegevens() const;

  void accept() override;

 private:
  struct Persoonsvelden {
    std::array<QLineEdit*, 3> naam{};
    qt::DateBox* geboortedatum = nullptr;
  };

  QWidget* MaakVelden(Persoonsvelden& velden, const QString& naam);
  void Vul(const Persoonsvelden& velden, const PersoonGegevens& persoon);
  [[nodiscard]] PersoonGegevens Lees(const Persoonsvelden& velden) const;
  /// Puts the focus in the first field that is not right and says why; false when there is one.
  bool Controleer(const Persoonsvelden& velden, const QString& wie);
  void Meld(const QString& reden, QLineEdit* veld);

  Persoonsvelden aanvrager_;
  Persoonsvelden partner_;
  QCheckBox* metPartner_;
  QSpinBox* leeftijd_;
  QLabel* reden_;
};

}  // namespace brivane::dossier
