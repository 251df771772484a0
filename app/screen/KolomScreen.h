#pragma once

#include <QStackedWidget>
#include <cstdint>
#include <memory>

#include "app/screen/EditorHost.h"
#include "app/screen/Place.h"
#include "dossier/model/Dossier.h"
#include <brivane/toolkits/qt/VrijeKolomWidget.h>

namespace brivane::app {

class EffectLabel;
class KopregelLabel;
class Recording;

/// What comes of the wish to leave a column: it may be left, it stays on the screen to be mended, or it is to be
/// removed.
enum class Leaving : std::uint8_t { May, Stays, Remove };

/// One free column on the screen: its header text, and what it does in euros, above the editor, which is as high as it
/// says. Where the window is smaller it scrolls.
class KolomScreen final : public QStackedWidget {
 public:
  /// `recording` outlives the screen.
  KolomScreen(std::shared_ptr<dossier::Dossier> dossier, EditorHost host, Recording& recording,
              QWidget* parent = nullptr);

  /// Binds the editor to a column; for a loan without one a hint is shown in its place.
  void Show(const Place& place);
  /// Binds it anew to the column that is shown.
  void Rebind() { Show(place_); }
  [[nodiscard]] const Place& Shown() const { return place_; }

  /// Hands over the box that is being edited, then asks the editor. Where the column stays, the focus is in the box
  /// that has to be mended. The refusal of a column that was never complete offers to remove it.
  [[nodiscard]] Leaving Leave();
  /// The header text and what the column does, as the record has it now.
  void RefreshHeader();

  /// Puts the focus in the description, or in the first field.
  void FocusOmschrijving();
  void FocusFirst();
  /// Whether the focus is somewhere in the editor.
  [[nodiscard]] bool HasFocus() const;

  [[nodiscard]] qt::VrijeKolomWidget& Editor() { return *editor_; }

 private:
  /// A new column has no start date, and is not left before it has one.
  [[nodiscard]] bool IsIncomplete() const;
  void FocusRefused();

  std::shared_ptr<dossier::Dossier> dossier_;
  std::shared_ptr<host::Application> application_;
  Recording& recording_;
  Place place_;
  QWidget* empty_;
  QWidget* kolom_;
  KopregelLabel* header_;
  EffectLabel* effect_;
  qt::VrijeKolomWidget* editor_;
  bool leaving_ = false;
  bool remove_ = false;  ///< a refusal was answered by removing the column
};

}  // namespace brivane::app
