#include "tests/toolkits/conformance/Conformance.h"

#include <stdexcept>

namespace brivane::test {

INSTANTIATE_TEST_SUITE_P(Toolkit, Conformance, testing::ValuesIn(Subjects()), SubjectName);

Conformance::Conformance() : subject(GetParam().make()), surface(subject->Toolkit().MakeSurface(kSurface)) {
  subject->Show(Area());
  subject->Settle();
}

void Conformance::Act(controls::AnyControl& control, const controls::Action& action) {
  if (GetParam().way == Way::Gesture)
    subject->Gesture(control, action);
  else
    control.Perform(action);
  subject->Settle();
}

controls::Outcome Conformance::Door(controls::AnyControl& control, const controls::Action& action) {
  const controls::Outcome outcome = control.Perform(action);
  subject->Settle();
  return outcome;
}

controls::ControlDump Conformance::Shown(std::string_view elementName) {
  subject->Settle();
  for (const controls::ControlDump& dump : subject->Shown(Area()))
    if (dump.name == elementName) return dump;
  throw std::logic_error("not shown: " + std::string(elementName));
}

}  // namespace brivane::test
