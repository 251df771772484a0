// error: static assertion failed

#include <brivane/frame/Design.h>

using namespace brivane;
using frame::Kind;

#ifdef FAULT
constexpr int kBreedte = 6001;  // sticks out of its surface
#else
constexpr int kBreedte = 6000;
#endif
constexpr frame::Row kRijen[] = {{.name = "fraLast", .kind = Kind::Frame, .place = {0, 0, kBreedte, 900}}};
constexpr frame::Design kOntwerp{.name = "Proef", .rows = kRijen, .width = 6000, .height = 900};
static_assert(frame::Check(kOntwerp) == frame::Fault::None);
