#include "tests/toolkits/conformance/Conformance.h"

namespace brivane::test {

namespace {

class Memory final : public ToolkitUnderTest {
 public:
  [[nodiscard]] controls::ToolkitBase& Toolkit() override { return toolkit_; }
  void WhileOpen(std::function<void(controls::Form&)> script) override { toolkit_.modal = std::move(script); }

 private:
  memory::Toolkit toolkit_;
};

}  // namespace

std::vector<Subject> Subjects() {
  return {{"Memory", [] { return std::make_unique<Memory>(); }, Way::Door}};
}

}  // namespace brivane::test
