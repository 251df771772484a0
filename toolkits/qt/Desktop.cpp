#include "toolkits/qt/Desktop.h"

#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <cmath>

#include "frame/Calendar.h"
#include "toolkits/qt/Edge.h"
#include "toolkits/qt/Text.h"

namespace brivane::qt {

std::string Desktop::ApplicationTitle() const { return FromQt(QGuiApplication::applicationDisplayName()); }

host::MessageAnswer Desktop::MessageBox(const std::string& title, const std::string& text, host::MessageStyle style) {
  const host::MessageAnswer given = Ask(title, text, style);
  if (answered) answered(given);
  return given;
}

host::MessageAnswer Desktop::Ask(const std::string& title, const std::string& text, host::MessageStyle style) {
  if (answer) return answer(title, text, style);
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(ToQt(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(text).replace("\r\n", "\n"));
  if (style == host::MessageStyle::OkExclamation) {
    box.setIcon(QMessageBox::Warning);
    box.addButton("OK", QMessageBox::AcceptRole);
    box.exec();
    return host::MessageAnswer::Ok;
  }
  box.setIcon(QMessageBox::Question);
  const QPushButton* const yes = box.addButton("&Ja", QMessageBox::YesRole);
  box.setEscapeButton(box.addButton("&Nee", QMessageBox::NoRole));
  box.exec();
  return box.clickedButton() == yes ? host::MessageAnswer::Yes : host::MessageAnswer::No;
}

float Desktop::TwipsPerPixelX() const { return kTwipsPerPixel; }
float Desktop::TwipsPerPixelY() const { return kTwipsPerPixel; }

void Desktop::ResetMousePointer() {
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
}

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
