// error: declared with attribute 'nodiscard'

#include <brivane/host/Event.h>

// As the project's own build has it.
#pragma GCC diagnostic error "-Wunused-result"

using namespace brivane;

host::Subscription Volg(host::Event<>& event) {
#ifdef FAULT
  event.Connect([] {});
#endif
  return event.Connect([] {});
}
