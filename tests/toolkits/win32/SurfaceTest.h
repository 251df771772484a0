#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/toolkits/conformance/TestDesign.h"
#include "tests/toolkits/win32/Person.h"
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Content.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/controls/BoxWindow.h>
#include <brivane/toolkits/win32/window/Text.h>

namespace brivane::test {

/// The design with every kind of control, on the screen. `log_` holds what its boxes hand over.
class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() : surface_(toolkit_.MakeSurface(kSurface)) {
    stage_.Show(*surface_);
    toolkit_.Desktop().answer = [this](const std::string& title, const std::string& text, host::MessageStyle) {
      log_.push_back("message " + title + ": " + text);
      return host::MessageAnswer::Ok;
    };
  }

  [[nodiscard]] controls::AnyControl& Control(std::string_view name, int index = frame::kNoIndex) {
    return *controls::Surface::Of(*surface_).Find(name, index);
  }
  [[nodiscard]] HWND WindowOf(std::string_view name, int index = frame::kNoIndex) {
    return Shown(Control(name, index)).Handle();
  }
  template <class Window = win32::BoxWindow> [[nodiscard]] Window& Entry(std::string_view name) {
    return dynamic_cast<Window&>(Shown(Control(name)));
  }
  [[nodiscard]] controls::TextBox& Box(std::string_view name) { return static_cast<controls::TextBox&>(Control(name)); }
  [[nodiscard]] std::string Typed(std::string_view name) { return win32::Narrow(win32::TextOf(WindowOf(name))); }
  [[nodiscard]] std::string Reason(std::string_view name) { return win32::Narrow(Entry(name).Reason()); }
  /// Notes each Validation of a box; refuses while `refuse_` stands.
  void Follow(std::string_view name) {
    controls::TextBox& box = Box(name);
    subscriptions_ += box.Validation.Connect([this, &box](bool& Cancel) {
      log_.push_back(box.ElementName() + " = " + controls::ShowContent(box.Content(), box.Format()));
      Cancel = refuse_;
    });
  }
  void Focus(std::string_view name) { Click(WindowOf(name), {8, 8}); }

  win32::Toolkit toolkit_{GetModuleHandleW(nullptr)};
  Stage stage_{toolkit_};
  std::unique_ptr<host::Surface> surface_;
  host::Subscriptions subscriptions_;
  std::vector<std::string> log_;
  bool refuse_ = false;
};

}  // namespace brivane::test
