// In a source of its own: who does not need it should not carry the streams of the standard library along.

#include <limits>
#include <locale>
#include <sstream>
#include <string>

#include <brivane/frame/Doubles.h>

namespace brivane::frame {

double NearestDoubleByStream(std::string_view digits) {
  std::istringstream stream{std::string(digits)};
  stream.imbue(std::locale::classic());
  double value = 0;
  // Out of range the stream fails and stores the largest number.
  if (stream >> value) return value;
  return value == 0 ? 0 : std::numeric_limits<double>::infinity();
}

}  // namespace brivane::frame
