#include "scenario/Groei.h"

#include "frame/Conversions.h"

namespace brivane::scenario {

double Gegroeid(double bedrag, double percentage) {
  return bedrag * (static_cast<double>(frame::ToSingle(percentage)) / 100) + bedrag;
}

}  // namespace brivane::scenario
