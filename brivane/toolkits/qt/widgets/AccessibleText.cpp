#include <brivane/toolkits/qt/widgets/AccessibleText.h>

namespace brivane::qt {

void AccessibleText::selection(int /*index*/, int* start, int* end) const { *start = *end = 0; }

QString AccessibleText::text(int start, int end) const { return Content().mid(start, end - start); }

QString AccessibleText::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

}  // namespace brivane::qt
