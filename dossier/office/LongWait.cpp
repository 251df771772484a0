#include "dossier/office/LongWait.h"

#include <QCoreApplication>
#include <QThread>
#include <utility>

namespace brivane::dossier {
namespace {

/// Used by the program's own thread alone.
LongWait& Shown() {
  static LongWait shown;
  return shown;
}

}  // namespace

void LongWait::ShowBy(LongWait shown) { Shown() = std::move(shown); }

const LongWait* LongWait::Here() {
  const QCoreApplication* program = QCoreApplication::instance();
  if (program == nullptr || program->thread() != QThread::currentThread() || !Shown().goes_on) return nullptr;
  return &Shown();
}

Waiting::~Waiting() {
  if (shown_ != nullptr && shown_->over) shown_->over();
}

std::chrono::milliseconds Waiting::SoFar() const {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - since_);
}

void Waiting::Show() {
  const auto so_far = std::chrono::duration_cast<std::chrono::seconds>(SoFar());
  shown_at_ = so_far + std::chrono::seconds(1);
  const LongWait* shown = LongWait::Here();
  if (shown == nullptr) return;
  shown_ = shown;
  shown_->goes_on(so_far);
}

}  // namespace brivane::dossier
