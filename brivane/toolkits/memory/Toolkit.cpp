#include <brivane/toolkits/memory/TextMeasure.h>
#include <brivane/toolkits/memory/Toolkit.h>

namespace brivane::memory {

host::Twips Toolkit::MeasureText(const frame::Design& design, std::string_view text, bool bold) const {
  return TextWidth(text, design.fontSize, bold);
}

}  // namespace brivane::memory
