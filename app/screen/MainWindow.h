#pragma once

#include <QMainWindow>
#include <QPointer>
#include <memory>

#include "app/recording/Recording.h"
#include "app/screen/Actions.h"
#include "app/screen/DossierScreen.h"

class QLabel;
class QStackedWidget;

namespace brivane::dossier {

class Bevindingenlijst;
class Startpagina;

/// The program's window: one loan file at a time, or the page that offers to open one.
///
/// Closing it, or the file, asks the open column first; refused, everything stays.
class Hoofdvenster final : public QMainWindow {
  Q_OBJECT

 public:
  /// Size at the very first start, where the screen is large enough: the editor fits without scrolling.
  static constexpr QSize kEersteMaat{1220, 760};

  /// `logboek` outlives the window.
  explicit Hoofdvenster(Logboek& logboek);
  ~Hoofdvenster() override;

  /// Opens a loan file in place of the open one. Where that cannot be it says why, and all stays as it was.
  bool Open(const QString& bestand);
  /// Shows a loan file that is open already, in place of the page that offers to open one.
  void Toon(std::unique_ptr<DossierBestand> bestand);
  /// Makes a loan file and opens it; the same holds.
  bool Maak(const QString& bestand, const DossierGegevens& gegevens);
  /// Closes the open file. False when its column must be mended first.
  bool SluitDossier();

  /// The open file's screen, or nothing.
  [[nodiscard]] Dossierscherm* Scherm() const { return scherm_; }
  [[nodiscard]] const Acties& Opdrachten() const { return acties_; }

  /// Writes all that is stored to a new file, and goes on in that one. Where the open file was moved or deleted this is
  /// how nothing of it is lost.
  void SaveCopy();

  /// Hands over what is being typed; where it is refused it is kept for the next start. Shows nothing.
  void HandOverTyped();
  /// Ends the program as soon as what stands in front has been closed: hands over or keeps what is being typed, and
  /// closes the file. Shows nothing and asks nothing.
  void EndInOrder();
  /// Offers what the last time could not be stored.
  void OfferUnfinished();

  /// Opens the file anew and records what is done in its columns, until it is closed or the recording stopped.
  bool NeemOp(const QString& bestand);
  /// Ends the recording, if any, and writes it.
  void StopOpname();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Verbind();
  void VraagNieuw();
  void VraagOpenen();
  void OpenVoorbeeld();
  void VraagClient();
  void VraagLening();
  void Controleer();
  void ToonOver();
  void VraagOpname();
  void OpnameGebroken();
  [[nodiscard]] QString VraagNieuwBestand(const QString& titel, const QString& naam);
  /// The file stands where it was, or the person gives it up.
  [[nodiscard]] bool MayLoseFile();
  void LetGoOfFile();
  void FinishEnd();
  void ToonAandachtspunten(std::size_t aantal);
  void WerkActiesBij();
  void VulLeningmenus();

  Logboek& logboek_;
  Acties acties_;
  std::shared_ptr<host::Hoofdvenster> eigenaar_;
  QStackedWidget* stapel_;
  Startpagina* start_;
  Bevindingenlijst* bevindingen_;
  QLabel* aandachtspunten_;
  QLabel* bestandsnaam_;
  Opname opname_;
  QPointer<Dossierscherm> scherm_;
  bool ending_ = false;
};

}  // namespace brivane::dossier
