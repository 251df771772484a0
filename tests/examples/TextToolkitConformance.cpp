#include "examples/toolkit/TextToolkit.h"
#include "tests/toolkits/conformance/Conformance.h"

/// The toolkit of the example, held to what every toolkit does alike.
namespace brivane::test {
namespace {

class Text final : public ToolkitUnderTest {
 public:
  [[nodiscard]] controls::ToolkitBase& Toolkit() override { return toolkit_; }
  void WhileOpen(std::function<void(controls::Form&)> script) override { toolkit_.modal = std::move(script); }
  [[nodiscard]] std::vector<controls::ControlDump> Shown(const controls::Surface& surface) override {
    std::vector<controls::ControlDump> all;
    for (const auto& control : surface.Made()) {
      all.push_back(text::ShownOf(*control));
      if (control->ControlKind() != host::Kind::Surface) continue;
      for (const controls::ControlDump& inner : Shown(static_cast<const controls::Surface&>(*control)))
        all.push_back(inner);
    }
    return all;
  }

 private:
  text::Toolkit toolkit_;
};

}  // namespace

std::vector<Subject> Subjects() {
  return {{"Text", [] { return std::make_unique<Text>(); }, Way::Door}};
}

}  // namespace brivane::test
