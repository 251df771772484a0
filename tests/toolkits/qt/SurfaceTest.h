#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <string>
#include <vector>

#include "controls/TextBox.h"
#include "controls/entry/Content.h"
#include "tests/toolkits/conformance/TestDesign.h"
#include "tests/toolkits/qt/Person.h"
#include "toolkits/qt/Toolkit.h"
#include "toolkits/qt/widgets/Bubble.h"
#include "toolkits/qt/widgets/EntryBox.h"

namespace brivane::test {

/// The design with every kind of control, on the screen. `log` holds what its boxes hand over.
class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() : surface_(toolkit_.MakeSurface(kSurface)) {
    QWidget& area = qt::Toolkit::WidgetOf(*surface_);
    area.setParent(&window_);
    area.show();
    window_.resize(area.size());
    ShowActive(window_);
    toolkit_.Desktop().answer = [this](const std::string& title, const std::string& text, host::MessageStyle) {
      log_.push_back("message " + title + ": " + text);
      return host::MessageAnswer::Ok;
    };
  }

  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(*surface_).Find(name, index);
  }
  template <class Box = qt::EntryBox> [[nodiscard]] Box& Entry(std::string_view name) {
    return dynamic_cast<Box&>(*WidgetFor(Control(name)));
  }
  [[nodiscard]] controls::TextBox& Box(std::string_view name) { return static_cast<controls::TextBox&>(Control(name)); }
  /// Notes each Validation of a box; refuses while `refuse_` stands.
  void Follow(std::string_view name) {
    controls::TextBox& box = Box(name);
    box.Validation.Connect([this, &box](bool& Cancel) {
      log_.push_back(box.ElementName() + " = " + controls::ShowContent(box.Content(), box.Format()));
      Cancel = refuse_;
    });
  }
  void Focus(std::string_view name) { Click(*WidgetFor(Control(name))); }
  [[nodiscard]] static std::string Focused() {
    const QWidget* const widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName().toStdString() : "";
  }

  QWidget window_;
  qt::Toolkit toolkit_;
  std::unique_ptr<host::Surface> surface_;
  std::vector<std::string> log_;
  bool refuse_ = false;
};

}  // namespace brivane::test
