#pragma once

#include <QDialog>
#include <cstdint>

#include "app/desk/UnfinishedText.h"

namespace brivane::app {

/// Shows what could not be stored when the program had to end, and asks what is to become of it. Escape and Enter keep
/// it for the next start.
class UnfinishedDialog final : public QDialog {
 public:
  enum class Choice : std::uint8_t { Later, GoOn, ThrowAway };

  UnfinishedDialog(const UnfinishedText& unfinished, QWidget* parent);

  [[nodiscard]] Choice Ask();

 private:
  Choice choice_ = Choice::Later;
};

}  // namespace brivane::app
