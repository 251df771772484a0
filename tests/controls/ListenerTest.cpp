#include <gtest/gtest.h>

#include "tests/toolkits/conformance/TestDesign.h"
#include <brivane/controls/Choices.h>
#include <brivane/controls/Plain.h>
#include <brivane/controls/TextBox.h>
#include <brivane/host/Error.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::controls {

namespace {

class Recorder final : public ActionListener {
 public:
  Recorder(std::string name, std::vector<std::string>& lines) : name_(std::move(name)), lines_(lines) {}
  void Before(AnyControl& control, const Action&) override { lines_.push_back(name_ + " > " + control.ElementName()); }
  void After(AnyControl& control, const Action&, std::optional<Outcome> outcome) override {
    static constexpr const char* kNames[] = {"done", "ignored", "refused"};
    lines_.push_back(name_ + " < " + control.ElementName() + " " +
                     (outcome ? kNames[static_cast<std::size_t>(*outcome)] : "failed"));
  }

 private:
  std::string name_;
  std::vector<std::string>& lines_;
};

}  // namespace

class Listener : public testing::Test {
 protected:
  memory::Toolkit toolkit;
  std::unique_ptr<host::Surface> surface = toolkit.MakeSurface(test::kSurface);
  Surface& area = Surface::Of(*surface);
  std::vector<std::string> lines;
};

TEST_F(Listener, HearsEveryActionBeforeAndAfter) {
  Recorder recorder("r", lines);
  toolkit.AddListener(recorder);
  area.Find("optSoort", 2)->Perform(Select{});
  area.Find("cmdDoen")->Host().SetEnabled(false);
  area.Find("cmdDoen")->Perform(Press{});
  auto& box = static_cast<TextBox&>(*area.Find("txtNaam"));
  const host::Subscription refusing = box.Validation.Connect([](bool& Cancel) { Cancel = true; });
  box.Perform(Enter{std::string("x")});
  EXPECT_EQ(lines, (std::vector<std::string>{"r > optSoort(2)", "r < optSoort(2) done", "r > cmdDoen",
                                             "r < cmdDoen ignored", "r > txtNaam", "r < txtNaam refused"}));
}

TEST_F(Listener, HearsAFailureWhichGoesOnToTheCaller) {
  Recorder recorder("r", lines);
  toolkit.AddListener(recorder);
  const host::Subscription failing =
      static_cast<Button&>(*area.Find("cmdDoen")).Click.Connect([] { throw host::Error(host::ErrorNumber::Overflow); });
  EXPECT_THROW(area.Find("cmdDoen")->Perform(Press{}), host::Error);
  EXPECT_EQ(lines, (std::vector<std::string>{"r > cmdDoen", "r < cmdDoen failed"}));
}

TEST_F(Listener, HearsActionsInsideActions) {
  Recorder recorder("r", lines);
  toolkit.AddListener(recorder);
  const host::Subscription toggling = static_cast<Button&>(*area.Find("cmdDoen")).Click.Connect([&] {
    area.Find("jnDiep")->Perform(Toggle{host::kJa});
  });
  area.Find("cmdDoen")->Perform(Press{});
  EXPECT_EQ(lines, (std::vector<std::string>{"r > cmdDoen", "r > jnDiep", "r < jnDiep done", "r < cmdDoen done"}));
}

TEST_F(Listener, SeveralStandAroundEachOtherUntilRemoved) {
  Recorder outer("outer", lines);
  Recorder inner("inner", lines);
  toolkit.AddListener(outer);
  toolkit.AddListener(inner);
  area.Find("cmdDoen")->Perform(Press{});
  EXPECT_EQ(lines, (std::vector<std::string>{"outer > cmdDoen", "inner > cmdDoen", "inner < cmdDoen done",
                                             "outer < cmdDoen done"}));
  lines.clear();
  toolkit.RemoveListener(outer);
  area.Find("cmdDoen")->Perform(Press{});
  EXPECT_EQ(lines, (std::vector<std::string>{"inner > cmdDoen", "inner < cmdDoen done"}));
}

TEST_F(Listener, HearsNothingOfWhatCodeDoes) {
  Recorder recorder("r", lines);
  toolkit.AddListener(recorder);
  static_cast<JaNee&>(*area.Find("jnDiep")).SetValue(host::kJa);
  EXPECT_TRUE(lines.empty());
}

}  // namespace brivane::controls
