#include "toolkits/qt/Desktop.h"

#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QPushButton>
#include <cmath>

#include "frame/Calendar.h"
#include "toolkits/qt/Edge.h"
#include "toolkits/qt/Text.h"
#include "toolkits/qt/widgets/QuestionBox.h"

namespace brivane::qt {

std::string Desktop::ApplicationTitle() const { return FromQt(QGuiApplication::applicationDisplayName()); }

host::MessageAnswer Desktop::MessageBox(const std::string& title, const std::string& text, host::MessageStyle style) {
  const bool question = style == host::MessageStyle::YesNoQuestion;
  const host::MessageAnswer given =
      answer ? answer(title, text, style) : Show(title, text, question && details ? details(title, text) : "", style);
  if (answered) answered(given);
  return given;
}

host::MessageAnswer Desktop::Ask(const std::string& title, const std::string& text, host::MessageStyle style) {
  return answer ? answer(title, text, style) : Show(title, text, "", style);
}

host::MessageAnswer Desktop::Show(const std::string& title, const std::string& text, const std::string& below,
                                  host::MessageStyle style) const {
  QuestionBox box(pause, QApplication::activeWindow());
  box.setWindowTitle(ToQt(title));
  box.setText(ToQt(text).replace("\r\n", "\n"));
  box.setInformativeText(ToQt(below));
  if (style == host::MessageStyle::OkExclamation) {
    box.setIcon(QMessageBox::Warning);
    box.addButton("OK", QMessageBox::AcceptRole);
    box.exec();
    return host::MessageAnswer::Ok;
  }
  box.setIcon(QMessageBox::Question);
  const QPushButton* const yes = box.addButton("&Ja", QMessageBox::YesRole);
  QPushButton* const no = box.addButton("&Nee", QMessageBox::NoRole);
  box.setDefaultButton(no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes ? host::MessageAnswer::Yes : host::MessageAnswer::No;
}

float Desktop::TwipsPerPixelX() const { return kTwipsPerPixel; }
float Desktop::TwipsPerPixelY() const { return kTwipsPerPixel; }

/// The controls set no override cursor, and one of the host's is the host's to put back.
void Desktop::ResetMousePointer() {}

host::Date Desktop::Today() const {
  if (clock) return clock();
  const QDate today = QDate::currentDate();
  return frame::MakeDate({today.year(), today.month(), today.day()});
}

void Desktop::DoPendingEvents() { QCoreApplication::processEvents(); }

std::string Desktop::FormatWhole(double number) const {
  QLocale locale;
  locale.setNumberOptions(QLocale::DefaultNumberOptions);
  const double whole = std::round(number);
  return FromQt(locale.toString(whole == 0 ? 0.0 : whole, 'f', 0));
}

}  // namespace brivane::qt
