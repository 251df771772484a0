#include <brivane/frame/Conversions.h>
#include <brivane/scenario/Groei.h>

namespace brivane::scenario {

double Gegroeid(double bedrag, double percentage) {
  return bedrag * (static_cast<double>(frame::ToSingle(percentage)) / 100) + bedrag;
}

}  // namespace brivane::scenario
