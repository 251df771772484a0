#pragma once

#include <QStackedWidget>
#include <memory>

#include "app/screen/Place.h"
#include "dossier/model/Application.h"
#include "toolkits/qt/VrijeKolomWidget.h"

namespace brivane::dossier {

class Kopregel;
class Opname;

/// One free column on the screen: its header text above the editor, which is as high as it says. Where the
/// window is smaller it scrolls.
class Kolomscherm final : public QStackedWidget {
 public:
  /// `opname` outlives the screen.
  Kolomscherm(std::shared_ptr<Application> application, const host::HostFactories& factories, Opname& opname,
              QWidget* parent = nullptr);

  /// Binds the editor to a column; for a loan without one a hint is shown in its place.
  void Toon(const Plek& plek);
  /// Binds it anew to the column that is shown.
  void Herbind() { Toon(plek_); }
  [[nodiscard]] const Plek& Getoond() const { return plek_; }

  /// Whether the column may be left: hands over the box that is being edited, then asks the editor. Refused,
  /// the focus is in the box that has to be mended.
  [[nodiscard]] bool MagVerlaten();
  /// The header text as the record has it now.
  void VernieuwKop();

  /// Puts the focus in the description, or in the first field.
  void FocusOmschrijving();
  void FocusEerste();
  /// Whether the focus is somewhere in the editor.
  [[nodiscard]] bool HeeftFocus() const;

  [[nodiscard]] qt::VrijeKolomWidget& Editor() { return *editor_; }

 private:
  void FocusGeweigerd();
  void ZetFocus(host::TextBox& vak);

  std::shared_ptr<Application> application_;
  Opname& opname_;
  Plek plek_;
  QWidget* leeg_;
  QWidget* kolom_;
  Kopregel* kop_;
  qt::VrijeKolomWidget* editor_;
};

}  // namespace brivane::dossier
