#include "app/program/OfficeSession.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <stdexcept>

#include "app/office/ClientAddress.h"
#include "app/office/ClientListDialog.h"
#include "app/program/DarkPalette.h"
#include "app/program/MessageBoxes.h"
#include "app/program/Pictures.h"
#include "app/screen/MainWindow.h"
#include "dossier/office/Office.h"
#include "dossier/office/OfficeConnection.h"
#include "dossier/office/OfficeGate.h"

namespace brivane::app {
namespace {

constexpr int kPatience = 60000;  ///< milliseconds
constexpr int kLook = 20;         ///< milliseconds
constexpr int kGap = 8;           ///< pixels between the windows

void Need(bool done, const char* what) {
  if (!done) throw std::runtime_error(std::string("not done: ") + what);
}

bool Soon(const std::function<bool()>& comes) {
  QElapsedTimer clock;
  clock.start();
  while (!comes()) {
    if (clock.hasExpired(kPatience)) return false;
    QEventLoop loop;
    QTimer::singleShot(kLook, &loop, &QEventLoop::quit);
    loop.exec();
  }
  return true;
}

class OfficeShow {
 public:
  OfficeShow(const QDir& folder, const QString& log, OfficeSessionWords words)
      : folder_(folder), log_(log), words_(std::move(words)), manager_(words_.manager), first_(log_), second_(log_) {
    manager_.Open();
    for (MainWindow* window : {&first_, &second_}) {
      window->resize(MainWindow::kFirstSize);
      window->show();
    }
  }

  void Play() {
    dossier::OfficeConnection office(words_.first);
    office.OpenOffice();
    dossier::OfficeGate gate(manager_, dossier::DatabaseOf(office));
    const auto lines = dossier::SearchClients(office, QString(), 1);
    Need(!lines.empty(), "finding a client");
    Need(first_.OpenClient({words_.first, lines.front().nummer}), "opening the client");
    Need(second_.OpenClient({words_.second, lines.front().nummer}), "opening it a second time");
    Need(Soon([&] { return Bar(second_).startsWith(QStringLiteral("Alleen lezen: ")); }), "the lease");
    Picture("kantoor-1-lezen");

    Type(first_, QStringLiteral("Kinderopvang na school"));
    Need(Soon([&] { return Box(second_)->text() == QStringLiteral("Kinderopvang na school"); }), "reading along");
    Picture("kantoor-2-meelezen");

    ShowList();

    second_.Actions().office.ask->trigger();
    Need(Soon([&] { return Bar(first_).contains(QStringLiteral("vraagt om deze cliënt")); }), "asking");
    Picture("kantoor-3-vragen");

    first_.Actions().office.handOver->trigger();
    Need(Soon([&] { return Bar(second_).isEmpty() && !Bar(first_).isEmpty(); }), "handing over");
    Picture("kantoor-4-overgedragen");

    gate.Shut();
    Type(second_, QStringLiteral("Naschoolse opvang"));
    Need(Soon([&] { return Bar(second_).startsWith(QStringLiteral("Geen verbinding")); }), "losing the connection");
    Need(Label(second_, "nietOpgeslagen")->text().endsWith(QStringLiteral("Naschoolse opvang")),
         "keeping what was typed");
    Need(Soon([&] { return Bar(first_).startsWith(QStringLiteral("Geen verbinding")); }), "telling who reads along");
    Picture("kantoor-5-verbroken");

    gate.Open();
    Need(Soon([&] { return Bar(second_).isEmpty(); }), "coming back");
    Picture("kantoor-6-terug");
    Need(Soon([&] { return !Bar(first_).startsWith(QStringLiteral("Geen verbinding")); }), "coming back to read");
    for (QPushButton* button : second_.findChildren<QPushButton*>())
      if (button->text() == QStringLiteral("Terugzetten")) button->click();
    Need(second_.Screen()->Kolom().Editor().CommitPending(), "putting back what was typed");
    Need(Soon([&] { return Box(first_)->text() == QStringLiteral("Naschoolse opvang"); }), "reading along again");
    Picture("kantoor-7-verder");
    Need(second_.CloseDossier() && first_.CloseDossier(), "closing the client");
  }

 private:
  /// The list of clients as the second adviser sees it.
  void ShowList() {
    ClientListDialog list({words_.second, {}, nullptr}, nullptr);
    list.show();
    auto* lines = list.findChild<QTreeWidget*>(QStringLiteral("clienten"));
    list.findChild<QLineEdit*>(QStringLiteral("zoeken"))->setText(QStringLiteral("school"));
    Need(Soon([&] { return lines->topLevelItemCount() == 1; }), "looking up what was just stored");
    list.findChild<QLineEdit*>(QStringLiteral("zoeken"))->setText(QStringLiteral("van"));
    Need(Soon([&] { return lines->topLevelItemCount() > 1; }), "looking up a name");
    Need(TakePictures(list, folder_, QStringLiteral("kantoor-0-clienten")), "writing the picture of the list");
  }
  static QLabel* Label(MainWindow& window, const char* name) {
    return window.findChild<QLabel*>(QString::fromLatin1(name));
  }
  static QString Bar(MainWindow& window) { return Label(window, "stand")->text(); }
  /// The description of the column.
  static QLineEdit* Box(MainWindow& window) {
    auto* around = window.Screen()->Kolom().Editor().findChild<QWidget*>(QStringLiteral("TxtOm"));
    auto* box = qobject_cast<QLineEdit*>(around);
    if (box == nullptr && around != nullptr) box = around->findChild<QLineEdit*>();
    Need(box != nullptr, "finding the description");
    return box;
  }

  static void Type(MainWindow& window, const QString& text) {
    window.activateWindow();
    QLineEdit* box = Box(window);
    Need(Soon([&] {
           box->setFocus();
           return box->hasFocus();
         }),
         "going to the description");
    box->selectAll();
    QInputMethodEvent typing;
    typing.setCommitString(text);
    QApplication::sendEvent(box, &typing);
    window.Screen()->Kolom().Editor().CommitPending();
  }

  void Picture(const char* name) {
    const QPalette palette = QApplication::palette();
    Save(QLatin1String(name) + QStringLiteral("-light.png"));
    QApplication::setPalette(DarkPalette());
    Save(QLatin1String(name) + QStringLiteral("-dark.png"));
    QApplication::setPalette(palette);
  }
  void Save(const QString& name) {
    QApplication::processEvents();
    const QPixmap left = first_.grab();
    const QPixmap right = second_.grab();
    QImage both(left.width() + kGap + right.width(), std::max(left.height(), right.height()), QImage::Format_RGB32);
    both.fill(Qt::gray);
    QPainter painter(&both);
    painter.drawPixmap(0, 0, left);
    painter.drawPixmap(left.width() + kGap, 0, right);
    painter.end();
    Need(both.save(folder_.filePath(name)), "writing a picture");
  }

  QDir folder_;
  EventLog log_;
  OfficeSessionWords words_;
  const MessageBoxes boxes_;
  dossier::OfficeConnection manager_;
  MainWindow first_;
  MainWindow second_;
};

}  // namespace

QString PlayOfficeSession(const QString& outputFolder, const OfficeSessionWords& words) {
  const QTemporaryDir aside;
  if (!QDir().mkpath(outputFolder)) return QStringLiteral("cannot make the folder '%1'").arg(outputFolder);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, aside.path());
  try {
    OfficeShow(QDir(outputFolder), aside.filePath(QStringLiteral("logboek")), words).Play();
  } catch (const std::exception& error) {
    return QString::fromUtf8(error.what());
  }
  return {};
}

}  // namespace brivane::app
