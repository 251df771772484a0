#include "app/report/Painter.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <utility>

namespace brivane::app::report {
namespace {

/// Letters are measured and painted in these parts of a point, so fine that a device's own pixels do not matter.
constexpr double kParts = 20;
constexpr double kPointsPerInch = 72;
constexpr double kSpacing = 1.2;  ///< from line to line, in heights of a letter

constexpr QRgb kInk = 0xff000000;
constexpr QRgb kNoteInk = 0xff404040;
constexpr QRgb kBandColor = 0xffe8ecf0;
constexpr QRgb kStrokeColor = 0xffb0b8c0;
constexpr double kStrokeWidth = 0.5;  ///< points

struct LettersLook {
  double points;
  QFont::Weight weight;
};

/// In the order of Letters.
constexpr std::array<LettersLook, 5> kLooks{
    {{16, QFont::Bold}, {11, QFont::Bold}, {8.5, QFont::Bold}, {8.5, QFont::Normal}, {7.5, QFont::Normal}}};

double PointsOf(Letters letters) { return kLooks[static_cast<std::size_t>(letters)].points; }

class PagePainter {
 public:
  PagePainter(QPainter& painter, const QPagedPaintDevice& device) : painter_(painter) {
    painter_.resetTransform();
    painter_.scale(device.logicalDpiX() / (kPointsPerInch * kParts), device.logicalDpiY() / (kPointsPerInch * kParts));
  }

  void Paint(const Page& page) {
    for (const Band& band : page.bands)
      painter_.fillRect(Rect(band.left, band.top, band.width, band.height), QColor::fromRgba(kBandColor));
    for (const Stroke& stroke : page.strokes)
      painter_.fillRect(Rect(stroke.left, stroke.top, stroke.width, kStrokeWidth), QColor::fromRgba(kStrokeColor));
    for (const Line& line : page.lines) Paint(line);
  }

 private:
  static QRectF Rect(double left, double top, double width, double height) {
    return {left * kParts, top * kParts, width * kParts, height * kParts};
  }

  void Paint(const Line& line) {
    QFont font = ruler_.Font(line.letters);
    font.setPixelSize(std::max(1, qRound(PointsOf(line.letters) * kParts * line.scale)));
    painter_.setFont(font);
    painter_.setPen(QColor::fromRgba(line.letters == Letters::Note ? kNoteInk : kInk));
    const QFontMetricsF metrics(font);
    const QString text = QString::fromStdString(line.text);
    const double x = line.x * kParts - (line.align == Align::Right ? metrics.horizontalAdvance(text) : 0);
    const double height = ruler_.LineHeight(line.letters) * line.scale * kParts;
    const double baseline = line.top * kParts + (height - metrics.height()) / 2 + metrics.ascent();
    painter_.drawText(QPointF(x, baseline), text);
  }

  QPainter& painter_;
  PrintedRuler ruler_;
};

}  // namespace

PrintedRuler::PrintedRuler() {
  for (std::size_t i = 0; i < fonts_.size(); ++i) {
    QFont& font = fonts_[i];
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    font.setStyleHint(QFont::SansSerif);
    font.setWeight(kLooks[i].weight);
    font.setPixelSize(qRound(kLooks[i].points * kParts));
    // As on paper: not fitted to the pixels of a screen.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
  }
}

double PrintedRuler::Width(std::string_view text, Letters letters) const {
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return QFontMetricsF(Font(letters)).horizontalAdvance(shown) / kParts;
}

double PrintedRuler::LineHeight(Letters letters) const { return PointsOf(letters) * kSpacing; }

Sheet SheetOf(const QPagedPaintDevice& device) {
  const QSizeF size = device.pageLayout().fullRect(QPageLayout::Point).size();
  return {.width = size.width(), .height = size.height()};
}

bool PaintPages(const std::vector<Page>& pages, QPagedPaintDevice& device) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  bool first = true;
  for (const Page& page : pages) {
    if (!std::exchange(first, false) && !device.newPage()) return false;
    PagePainter(painter, device).Paint(page);
  }
  return painter.end();
}

bool PrintPages(const std::vector<Page>& pages, QPrinter& printer) {
  const int count = static_cast<int>(pages.size());
  const int from = printer.fromPage() == 0 ? 1 : std::clamp(printer.fromPage(), 1, count);
  const int to = printer.toPage() == 0 ? count : std::clamp(printer.toPage(), from, count);
  std::vector<Page> chosen(pages.begin() + (from - 1), pages.begin() + to);
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(chosen.begin(), chosen.end());
  std::vector<Page> all;
  const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
  for (int copy = 0; copy < copies; ++copy) all.insert(all.end(), chosen.begin(), chosen.end());
  return PaintPages(all, printer);
}

}  // namespace brivane::app::report
