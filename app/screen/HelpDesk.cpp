#include "app/screen/HelpDesk.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <optional>

#include "app/screen/FindingsList.h"
#include "app/screen/HelpTexts.h"
#include "app/screen/KolomScreen.h"
#include "app/screen/ListPanel.h"
#include "app/screen/StartPage.h"
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/rows/CellPeer.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>

namespace brivane::app {
namespace {

constexpr QSize kSize{460, 560};

template <class Widget> const Widget* Around(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const auto* found = dynamic_cast<const Widget*>(widget)) return found;
  }
  return nullptr;
}

HelpPlace PlaceOf(const QWidget* focus) {
  if (Around<qt::FormWindow::Window>(focus) != nullptr) return HelpPlace::YearForm;
  if (Around<KolommenTree>(focus) != nullptr) return HelpPlace::List;
  if (Around<ListPanel>(focus) != nullptr) return HelpPlace::Filter;
  if (Around<KolomScreen>(focus) != nullptr) return HelpPlace::Column;
  if (Around<FindingsList>(focus) != nullptr) return HelpPlace::Findings;
  if (Around<StartPage>(focus) != nullptr) return HelpPlace::Start;
  return focus != nullptr && qobject_cast<const QDialog*>(focus->window()) ? HelpPlace::Dialog : HelpPlace::Start;
}

/// The field that a widget is, or is a part of.
std::optional<FieldHelp> FieldOf(const QWidget* focus) {
  const auto* canvas = Around<qt::RowCanvas>(focus);
  if (canvas != nullptr && canvas->Current() != nullptr)
    return HelpOfField(qt::ToQt(canvas->Current()->Control().DesignName()));
  for (; focus != nullptr && !focus->isWindow(); focus = focus->parentWidget()) {
    if (const auto help = HelpOfField(focus->objectName())) return help;
  }
  return std::nullopt;
}

QString KeyRows(std::span<const HelpKey> keys) {
  QString rows;
  for (const HelpKey& key : keys) {
    rows += QStringLiteral("<tr><td width='38%'><b>%1</b></td><td>%2</td></tr>")
                .arg(QString::fromUtf8(key.key).toHtmlEscaped(), QString::fromUtf8(key.does).toHtmlEscaped());
  }
  return QStringLiteral("<table width='100%' cellspacing='4'>%1</table>").arg(rows);
}

QString Heading(const QString& text) { return QStringLiteral("<h3>%1</h3>").arg(text.toHtmlEscaped()); }

}  // namespace

QString HelpPage(const QWidget* focus) {
  QString page;
  if (const auto field = FieldOf(focus)) {
    page += Heading(QString::fromUtf8(field->title)) +
            QStringLiteral("<p>%1</p>").arg(QString::fromUtf8(field->text).toHtmlEscaped());
  }
  const HelpPlace place = PlaceOf(focus);
  page += Heading(PlaceTitle(place)) + KeyRows(KeysOf(place));
  // In front of the window these reach nothing.
  if (place != HelpPlace::YearForm && place != HelpPlace::Dialog)
    page += Heading(QStringLiteral("Overal")) + KeyRows(KeysEverywhere());
  return page;
}

HelpDesk::HelpDesk(QMainWindow& window) : QObject(&window), window_(window) {
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) { Follow(now); });
}

void HelpDesk::Show() {
  if (dialog_ && dialog_->isActiveWindow()) {
    dialog_->close();
    return;
  }
  const QWidget* focus = QApplication::focusWidget();
  QWidget* front = QApplication::activeModalWidget();
  QWidget* above = front != nullptr ? front : &window_;
  if (!dialog_ || dialog_->parentWidget() != above) MakeWindow(above);
  text_->setHtml(HelpPage(focus));
  dialog_->show();
  dialog_->raise();
  dialog_->activateWindow();
  text_->setFocus();
}

void HelpDesk::MakeWindow(QWidget* above) {
  delete dialog_;
  dialog_ = new QDialog(above);
  dialog_->setObjectName(QStringLiteral("uitleg"));
  dialog_->setWindowTitle(QStringLiteral("Toetsen en uitleg"));
  text_ = new QTextBrowser;
  text_->setAccessibleName(QStringLiteral("Uitleg"));
  text_->setOpenLinks(false);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, dialog_, &QDialog::reject);
  auto* again = new QShortcut(Qt::Key_F1, dialog_);
  connect(again, &QShortcut::activated, dialog_, &QDialog::reject);
  auto* layout = new QVBoxLayout(dialog_);
  layout->addWidget(text_);
  layout->addWidget(buttons);
  dialog_->resize(kSize.boundedTo(dialog_->screen()->availableSize()));
}

void HelpDesk::Follow(const QWidget* focus) {
  if (!dialog_ || !dialog_->isVisible() || focus == nullptr || focus->window() == dialog_) return;
  text_->setHtml(HelpPage(focus));
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const QWidget* front = QApplication::activeModalWidget();
  const bool asked = key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
  if (!asked || front == nullptr || qobject_cast<const QMessageBox*>(front))
    return QObject::eventFilter(watched, event);
  Show();
  return true;
}

}  // namespace brivane::app
