#include "app/office/WaitNotice.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>

#include "dossier/office/LongWait.h"

namespace brivane::app {
namespace {

constexpr int kMargin = 12;

/// The window in front, or one that can be seen.
QWidget* InFront() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active->window();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() == Qt::Window) return window;
  }
  return nullptr;
}

}  // namespace

WaitNotice::WaitNotice(QWidget* window) : QFrame(window), text_(new QLabel) {
  setObjectName(QStringLiteral("wacht"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  text_->setForegroundRole(QPalette::ToolTipText);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, kMargin);
  layout->addWidget(text_);
}

void WaitNotice::Say(std::chrono::seconds so_far) {
  text_->setText(QStringLiteral("Wacht op het kantoor… (%1 s)").arg(so_far.count()));
  // No event is handled that would lay it out.
  layout()->activate();
  resize(sizeHint());
  const QRect room = parentWidget()->rect();
  move((room.width() - width()) / 2, (room.height() - height()) / 2);
  raise();
  show();
  repaint();
}

void WaitNotice::Install() {
  static QPointer<WaitNotice> shown;
  dossier::LongWait::ShowBy({.goes_on =
                                 [](std::chrono::seconds so_far) {
                                   QWidget* window = InFront();
                                   if (window == nullptr) return;
                                   if (!shown) {
                                     shown = new WaitNotice(window);
                                     QGuiApplication::setOverrideCursor(Qt::WaitCursor);
                                   }
                                   shown->Say(so_far);
                                 },
                             .over =
                                 [] {
                                   if (!shown) return;
                                   QGuiApplication::restoreOverrideCursor();
                                   shown->hide();
                                   shown->deleteLater();
                                   shown.clear();
                                 }});
}

}  // namespace brivane::app
