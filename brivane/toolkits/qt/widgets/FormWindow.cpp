#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <brivane/controls/RowChanges.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/rows/RowCanvas.h>
#include <brivane/toolkits/qt/widgets/DesignFont.h>
#include <brivane/toolkits/qt/widgets/FormWindow.h>
#include <brivane/toolkits/qt/widgets/SurfaceWidget.h>

namespace brivane::qt {

using controls::Aspect;

FormWindow::FormWindow(controls::Form& form, Toolkit& toolkit)
    : form_(form),
      toolkit_(toolkit),
      dialog_(std::make_unique<Window>(*this)),
      scroll_(new QScrollArea(dialog_.get())),
      area_(new QWidget) {
  auto* const layout = new QVBoxLayout(dialog_.get());
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll_);
  dialog_->setLayoutDirection(Qt::LeftToRight);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(area_);
  SetDesignFont(*area_, toolkit.Edge().Font(form.Table(), form.Table().fontSize));
  Refresh(Aspect::Caption);
  Refresh(Aspect::Place);
}

FormWindow::~FormWindow() = default;

QSize FormWindow::Inside() const { return toolkit_.Edge().Pixels(form_.ScaleWidth(), form_.ScaleHeight()); }

void FormWindow::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption: dialog_->setWindowTitle(ToQt(controls::WindowTitle(form_.Caption(), subject_))); break;
    case Aspect::Enabled: area_->setEnabled(form_.Enabled()); break;
    case Aspect::Place:
      area_->resize(Inside());
      if (dialog_->isVisible()) Fit();
      break;
    case Aspect::BackColor: ShowBackColor(); break;
    default: break;
  }
}

void FormWindow::ShowBackColor() {
  const std::optional<host::Color> asked = form_.BackColor();
  const std::optional<QColor> color = asked ? ToQt(*asked) : std::nullopt;
  QPalette palette;
  if (color) {
    palette.setColor(QPalette::Window, *color);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
      palette.setColor(group, QPalette::WindowText, TextOn(*color));
  }
  area_->setPalette(palette);
}

/// As large as the form, but no larger than the screen.
void FormWindow::Fit() {
  const QRect screen = dialog_->screen()->availableGeometry();
  const QSize around = dialog_->isVisible() ? dialog_->frameGeometry().size() - dialog_->size() : QSize(8, 40);
  const QSize room = screen.size() - around;
  const QSize inside = Inside();
  const int bar = dialog_->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroll_);
  const bool tooHigh = inside.height() > room.height();
  const bool tooWide = inside.width() > room.width();
  const QSize wanted = inside + QSize(tooHigh ? bar : 0, tooWide ? bar : 0);
  dialog_->resize(wanted.boundedTo(room));
  if (dialog_->parentWidget() == nullptr) return;
  // In the middle of its owner, kept on the screen.
  QRect place(QPoint(), dialog_->size() + around);
  place.moveCenter(dialog_->parentWidget()->window()->frameGeometry().center());
  place.moveRight(qMin(place.right(), screen.right()));
  place.moveBottom(qMin(place.bottom(), screen.bottom()));
  dialog_->move(qMax(place.left(), screen.left()), qMax(place.top(), screen.top()));
}

/// What the form is about stands fixed while it is open.
void FormWindow::TellSubject() {
  subject_ = toolkit_.Subject();
  Refresh(Aspect::Caption);
  for (RowCanvas* const canvas : Canvases(form_)) canvas->TellRows(subject_.row);
}

void FormWindow::ShowModal(host::Hoofdvenster* eigenaar) {
  const auto* const owner = dynamic_cast<const qt::Hoofdvenster*>(eigenaar);
  QWidget* const window = owner != nullptr ? owner->Venster() : QApplication::activeWindow();
  QMetaObject::Connection owned;
  if (window != nullptr) {
    dialog_->setParent(window->window(), dialog_->windowFlags());
    // An owner that goes takes no part of the form with it: somebody still runs on that.
    owned = QObject::connect(window->window(), &QObject::destroyed, dialog_.get(), [this] {
      LeaveOwner();
      form_.Unload();
    });
  }
  ChainTabOrder(form_, nullptr);
  TellSubject();
  for (const auto& control : form_.Made())
    if (control->ControlKind() == host::Kind::Button) {
      auto& button = static_cast<QPushButton&>(*dynamic_cast<WidgetPeer&>(*control->GetPeer()).Widget());
      button.setDefault(true);
      break;
    }
  Fit();
  for (RowCanvas* const canvas : Canvases(form_))
    if (canvas->GoToFirst()) break;
  dialog_->exec();
  QObject::disconnect(owned);
  LeaveOwner();
}

void FormWindow::LeaveOwner() { dialog_->setParent(nullptr, dialog_->windowFlags()); }

void FormWindow::Unload() {
  if (dialog_->isVisible()) dialog_->done(QDialog::Accepted);
  if (toolkit_.Life()->Ended()) LeaveOwner();
}

void FormWindow::Close() { controls::RowChanges::Close(form_, toolkit_); }

}  // namespace brivane::qt
