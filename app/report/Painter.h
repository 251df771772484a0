#pragma once

#include <QFont>
#include <array>
#include <vector>

#include "app/report/Pages.h"
#include "app/report/Report.h"

class QPagedPaintDevice;
class QPrinter;

namespace brivane::app::report {

/// Measures letters as they are printed, whatever the device.
class PrintedRuler final : public Ruler {
 public:
  PrintedRuler();
  [[nodiscard]] double Width(std::string_view text, Letters letters) const override;
  [[nodiscard]] double LineHeight(Letters letters) const override;
  [[nodiscard]] const QFont& Font(Letters letters) const { return fonts_[static_cast<std::size_t>(letters)]; }

 private:
  std::array<QFont, 5> fonts_;
};

/// The sheet of a device: its paper, with the report's own margins.
[[nodiscard]] Sheet SheetOf(const QPagedPaintDevice& device);

/// The pages of a sheet on a device, dark on white. False where the device cannot be painted on, or ended half way.
[[nodiscard]] bool PaintPages(const std::vector<Page>& pages, QPagedPaintDevice& device);
/// The pages that the person chose to print, as often as asked.
[[nodiscard]] bool PrintPages(const std::vector<Page>& pages, QPrinter& printer);

}  // namespace brivane::app::report
