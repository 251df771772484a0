#include <QFontMetricsF>
#include <QPointer>

#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/Toolkit.h>
#include <brivane/toolkits/qt/peers/Peers.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/widgets/AccessibleWidgets.h>
#include <brivane/toolkits/qt/widgets/ChoiceBox.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::qt {

namespace {

/// What a control ran on, until the event loop has come back to where it was: whoever delivered the event in which the
/// control ended still stands in its widgets.
class Remains final : public QObject {
 public:
  explicit Remains(std::shared_ptr<void> remains) : remains_(std::move(remains)) {}

 private:
  std::shared_ptr<void> remains_;
};

}  // namespace

Toolkit::Toolkit() {
  InstallAccessibleWidgets();
  Life()->bury = [](std::shared_ptr<void> remains) { (new Remains(std::move(remains)))->deleteLater(); };
}

const frame::Texts& Toolkit::Texts() const { return TranslatedTexts(); }

host::MessageAnswer Toolkit::Ask(const std::string& caption, const std::string& text, host::MessageStyle style) {
  return desktop_.Ask(caption, text, style);
}

bool Toolkit::Act(controls::AnyControl& control, const controls::Action& action, const QWidget& widget) {
  const QPointer<const QWidget> alive(&widget);
  ChoiceBox* const list = ChoiceBox::UnderWayWithin(*widget.window());
  if (list != nullptr && list != &widget) list->HandOver();
  if (!alive) return true;  // it went with what was handed over, and nothing is left to put right
  EntryBox* const elsewhere = EntryBox::PendingWithin(*widget.window());
  if (elsewhere != nullptr && elsewhere != &widget && !elsewhere->CommitPending()) return false;
  if (!alive) return true;
  return Hand(control, action) == controls::Outcome::Done;
}

host::Twips Toolkit::MeasureText(const frame::Design& design, std::string_view text, bool bold) const {
  QFont font = qt::Edge(1).Font(design, design.fontSize);
  font.setBold(bold);
  return {static_cast<float>(QFontMetricsF(font).horizontalAdvance(ToQt(text)) * kTwipsPerPixel)};
}

QWidget& Toolkit::WidgetOf(host::Surface& surface) {
  return *dynamic_cast<AreaHolder&>(*controls::Surface::Of(surface).GetPeer()).Area();
}

std::unique_ptr<controls::Peer> Toolkit::MakePeer(controls::AnyControl& control) {
  // The many rows of a form are painted by what they stand on.
  if (control.IsRowElement()) return std::make_unique<CellPeer>(control, *this);
  return MakeWidgetPeer(control, *this);
}

std::unique_ptr<controls::FormPeer> Toolkit::MakeFormPeer(controls::Form& form) {
  return std::make_unique<FormWindow>(form, *this);
}

}  // namespace brivane::qt
