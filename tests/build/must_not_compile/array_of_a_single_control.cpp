// error: the control is not an array

#include <brivane/frame/Handle.h>

using namespace brivane;
using frame::Kind;

constexpr frame::Row kRijen[] = {
    {.name = "lblOm", .kind = Kind::Label, .place = {0, 0, 1500, 300}},
    {.name = "TxtOm",
     .kind = Kind::TextBox,
     .place = {1500, 0, 3000, 300},
     .tab = 1,
     .label = "Omschrijving",
     .format = frame::Format::Text},
    {.name = "jnAO", .kind = Kind::JaNee, .place = {0, 300, 1500, 300}, .tab = 2, .label = "AO"},
};
constexpr frame::Design kOntwerp{.name = "Proef", .rows = kRijen, .width = 6000, .height = 900};
static_assert(frame::Check(kOntwerp) == frame::Fault::None);

#ifdef FAULT
constexpr auto TxtOm = frame::FindArray<Kind::TextBox>(kOntwerp, "TxtOm");
#else
constexpr auto TxtOm = frame::Find<Kind::TextBox>(kOntwerp, "TxtOm");
#endif
