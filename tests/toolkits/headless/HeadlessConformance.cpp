#include "tests/toolkits/conformance/Conformance.h"

namespace brivane::test {

namespace {

class Headless final : public ToolkitUnderTest {
 public:
  [[nodiscard]] headless::ToolkitBase& Toolkit() override { return toolkit_; }
  void WhileOpen(std::function<void(headless::Form&)> script) override { toolkit_.modal = std::move(script); }

 private:
  headless::Toolkit toolkit_;
};

}  // namespace

std::vector<Subject> Subjects() {
  return {{"Headless", [] { return std::make_unique<Headless>(); }, Way::Door}};
}

}  // namespace brivane::test
