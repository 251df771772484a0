#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <string>
#include <vector>

#include "tests/toolkits/conformance/TestDesign.h"
#include "tests/toolkits/qt/Person.h"
#include <brivane/controls/TextBox.h>
#include <brivane/toolkits/qt/Toolkit.h>
#include <brivane/toolkits/qt/widgets/Bubble.h>
#include <brivane/toolkits/qt/widgets/EntryBox.h>

namespace brivane::test {

/// The design with every kind of control, on the screen.
class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() : surface_(toolkit_.MakeSurface(kSurface)) {
    QWidget& area = qt::Toolkit::WidgetOf(*surface_);
    area.setParent(&window_);
    area.show();
    window_.resize(area.size());
    ShowActive(window_);
  }

  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(*surface_).Find(name, index);
  }
  template <class Box = qt::EntryBox> [[nodiscard]] Box& Entry(std::string_view name) {
    return dynamic_cast<Box&>(*WidgetFor(Control(name)));
  }
  void Focus(std::string_view name) { Click(*WidgetFor(Control(name))); }
  [[nodiscard]] static std::string Focused() {
    const QWidget* const widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName().toStdString() : "";
  }

  QWidget window_;
  qt::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
  host::Subscriptions subscriptions_;
  std::vector<std::string> log_;
};

}  // namespace brivane::test
