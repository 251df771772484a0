#include "app/program/SessionEnd.h"

#include <QGuiApplication>

#include "app/screen/MainWindow.h"

namespace brivane::app {

SessionEnd::SessionEnd(MainWindow& window) : signals_([&window] { window.EndInOrder(); }) {
  // The session waits for the answer of these two: what is done is done when they return.
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &window, &MainWindow::PrepareForLogOut,
                   Qt::DirectConnection);
  QObject::connect(qApp, &QGuiApplication::saveStateRequest, &window, &MainWindow::RememberPlace, Qt::DirectConnection);
}

}  // namespace brivane::app
