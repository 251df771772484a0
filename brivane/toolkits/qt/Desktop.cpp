#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <cmath>

#include <brivane/frame/Calendar.h>
#include <brivane/toolkits/qt/Desktop.h>
#include <brivane/toolkits/qt/Edge.h>
#include <brivane/toolkits/qt/Text.h>
#include <brivane/toolkits/qt/Texts.h>
#include <brivane/toolkits/qt/widgets/QuestionBox.h>

namespace brivane::qt {

using frame::TextId;

std::string Desktop::ApplicationTitle() const { return FromQt(QGuiApplication::applicationDisplayName()); }

host::MessageAnswer Desktop::MessageBox(const std::string& title, const std::string& text, host::MessageStyle style) {
  const controls::Life::Call call(life_);
  life_->Check();
  const host::MessageAnswer given =
      answer ? answer(title, text, style) : Show(title, text, Added(title, text, style), style);
  life_->Check();
  if (answered) answered(given);
  life_->Check();
  return given;
}

host::MessageAnswer Desktop::Ask(const std::string& title, const std::string& text, host::MessageStyle style) {
  return answer ? answer(title, text, style) : Show(title, text, {}, style);
}

Desktop::Additions Desktop::Added(const std::string& title, const std::string& text, host::MessageStyle style) const {
  const bool question = style == host::MessageStyle::YesNoQuestion;
  Additions added;
  if (question && details) added.below = details(title, text);
  if (!question && offer) added.offer = offer(title, text);
  return added;
}

host::MessageAnswer Desktop::Show(const std::string& title, const std::string& text, const Additions& added,
                                  host::MessageStyle style) const {
  const bool question = style == host::MessageStyle::YesNoQuestion;
  const host::MessageAnswer unanswered = question ? host::MessageAnswer::No : host::MessageAnswer::Ok;
  if (life_->Ended()) return unanswered;
  // The window that it belongs to may take it along.
  const QPointer<QuestionBox> box(new QuestionBox(pause, QApplication::activeWindow()));
  const auto done = qScopeGuard([&box] { delete box; });
  const controls::Life::AtEnd close(*life_, [box] {
    if (box) box->done(QDialog::Rejected);
  });
  box->setWindowTitle(ToQt(title));
  box->setText(ToQt(text).replace("\r\n", "\n"));
  box->setInformativeText(ToQt(added.below));
  if (!question) {
    box->setIcon(QMessageBox::Warning);
    QPushButton* const ok = box->addButton(Translated(TextId::Ok), QMessageBox::AcceptRole);
    const QPushButton* const offered =
        added.offer ? box->addButton(ToQt(added.offer->button), QMessageBox::DestructiveRole) : nullptr;
    box->setDefaultButton(ok);
    box->setEscapeButton(ok);
    box->exec();
    if (box && offered != nullptr && box->clickedButton() == offered) added.offer->taken();
    return unanswered;
  }
  box->setIcon(QMessageBox::Question);
  const QPushButton* const yes = box->addButton(Translated(TextId::Yes), QMessageBox::YesRole);
  QPushButton* const no = box->addButton(Translated(TextId::No), QMessageBox::NoRole);
  box->setDefaultButton(no);
  box->setEscapeButton(no);
  box->exec();
  return box && box->clickedButton() == yes ? host::MessageAnswer::Yes : unanswered;
}

float Desktop::TwipsPerPixelX() const { return kTwipsPerPixel; }
float Desktop::TwipsPerPixelY() const { return kTwipsPerPixel; }

/// The controls set no override cursor, and one of the host's is the host's to put back.
void Desktop::ResetMousePointer() {}

host::Date Desktop::Today() const {
  if (clock) {
    const host::Date given = clock();
    life_->Check();
    return given;
  }
  const QDate today = QDate::currentDate();
  return frame::MakeDate({today.year(), today.month(), today.day()});
}

void Desktop::DoPendingEvents() {
  life_->Check();
  QCoreApplication::processEvents();
  life_->Check();
}

std::string Desktop::FormatWhole(double number) const {
  QLocale locale;
  locale.setNumberOptions(QLocale::DefaultNumberOptions);
  const double whole = std::round(number);
  return FromQt(locale.toString(whole == 0 ? 0.0 : whole, 'f', 0));
}

}  // namespace brivane::qt
