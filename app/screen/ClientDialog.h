#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <vector>

#include "dossier/model/Gegevens.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QScrollArea;
class QSpinBox;

namespace brivane::qt {
class DateBox;
class EntryBox;
}  // namespace brivane::qt

namespace brivane::app {

/// The persons of a case and its age limit.
struct Client {
  std::vector<dossier::PersoonGegevens> personen;
  std::int16_t leeftijd = dossier::DossierGegevens().Leeftijd;
};

/// Asks for the applicant, the partner if there is one, and the age limit.
///
/// OK is refused, with the reason in the dialog, while a person lacks a surname or a birth date in the past. It stays,
/// with what was filled in, until that was taken or it is put away.
/// On a low screen the fields scroll; the buttons and the reason stay in sight.
class ClientDialog final : public QDialog {
 public:
  /// `take` does what is to be done with the contents, says why where it cannot, and answers whether it was done.
  ClientDialog(const QString& title, const Client& client, std::function<bool(const Client&)> take, QWidget* parent);

  /// What stands in the dialog; right once it was taken.
  [[nodiscard]] Client Contents() const;

  void accept() override;

 private:
  struct PersoonFields {
    std::array<QLineEdit*, 3> name{};
    qt::DateBox* geboortedatum = nullptr;
    qt::EntryBox* belastingtarief = nullptr;
  };

  QWidget* MakeFields(PersoonFields& fields, const QString& name);
  void Fill(const PersoonFields& fields, const dossier::PersoonGegevens& persoon);
  [[nodiscard]] dossier::PersoonGegevens Read(const PersoonFields& fields) const;
  /// Puts the focus in the first field that is not right and says why; false when there is one.
  bool Check(const PersoonFields& fields, const QString& who);
  void Tell(const QString& reason, QLineEdit* field);

  std::function<bool(const Client&)> take_;
  PersoonFields aanvrager_;
  PersoonFields partner_;
  QCheckBox* withPartner_;
  QSpinBox* leeftijd_;
  QLabel* reason_;
  QScrollArea* scroller_;  ///< around the fields
};

}  // namespace brivane::app
