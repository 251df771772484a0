#pragma once

#include <QTranslator>

namespace brivane::app {

/// Dutch for the texts of Qt's own dialogs, buttons and box menus that this program shows.
class DutchTranslator final : public QTranslator {
 public:
  using QTranslator::QTranslator;
  [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                                  int n = -1) const override;
  [[nodiscard]] bool isEmpty() const override { return false; }
};

}  // namespace brivane::app
