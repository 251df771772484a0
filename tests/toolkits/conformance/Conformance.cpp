#include "tests/toolkits/conformance/Conformance.h"

#include <stdexcept>

namespace brivane::test {

INSTANTIATE_TEST_SUITE_P(Toolkit, Conformance, testing::ValuesIn(Subjects()), SubjectName);

Conformance::Conformance() : subject(GetParam().make()), surface(subject->Toolkit().MakeSurface(kSurface)) {
  subject->Show(Area());
  subject->Settle();
}

void Conformance::Act(headless::AnyControl& control, const headless::Action& action) {
  if (GetParam().way == Way::Gesture)
    subject->Gesture(control, action);
  else
    control.Perform(action);
  subject->Settle();
}

headless::Outcome Conformance::Door(headless::AnyControl& control, const headless::Action& action) {
  const headless::Outcome outcome = control.Perform(action);
  subject->Settle();
  return outcome;
}

headless::ControlDump Conformance::Shown(std::string_view elementName) {
  subject->Settle();
  for (const headless::ControlDump& dump : subject->Shown(Area()))
    if (dump.name == elementName) return dump;
  throw std::logic_error("not shown: " + std::string(elementName));
}

}  // namespace brivane::test
