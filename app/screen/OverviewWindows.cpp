#include "app/screen/OverviewWindows.h"

#include "app/overview/Choices.h"
#include "app/screen/DossierScreen.h"

namespace brivane::app {

OverviewWindows::OverviewWindows(QWidget& window) : QObject(&window), window_(window) {}

void OverviewWindows::Follow(DossierScreen& screen) {
  PutAway();
  screen_ = &screen;
  connect(&screen, &DossierScreen::stored, this, &OverviewWindows::Refresh);
  connect(&screen, &DossierScreen::reread, this, &OverviewWindows::Refresh);
  connect(&screen, &DossierScreen::placeChanged, this, &OverviewWindows::Refresh);
  connect(&screen, &QObject::destroyed, this, &OverviewWindows::PutAway);
}

void OverviewWindows::ShowOverview() { Show(overview_); }
void OverviewWindows::ShowVerloop() { Show(verloop_); }

template <class Window> void OverviewWindows::Show(QPointer<Window>& window) {
  if (!screen_) return;
  if (!window) {
    CaseView view{.read = [this] { return screen_->Dossier().Gegevens(); },
                  .shown = [this] { return std::pair(screen_->Shown().Len_Id, screen_->Shown().Vrij_Id); },
                  .goTo =
                      [this](std::int16_t Len_Id, std::int16_t Vrij_Id) {
                        window_.activateWindow();
                        if (screen_->GoTo({Len_Id, Vrij_Id})) screen_->Kolom().FocusFirst();
                      }};
    window = new Window(std::move(view), &window_);
    window->Refresh();
    // The situation of the loan that is worked in, and where that is the current one the first beside it.
    const std::int16_t shown = screen_->Shown().Len_Id;
    window->Choices().ChooseSituatie(shown == 0 && std::is_same_v<Window, VerloopWindow> ? 1 : shown);
  }
  window->show();
  window->raise();
  window->activateWindow();
}

void OverviewWindows::Refresh() {
  if (!screen_) return;
  if (overview_ && overview_->isVisible()) overview_->Refresh();
  if (verloop_ && verloop_->isVisible()) verloop_->Refresh();
}

void OverviewWindows::PutAway() {
  screen_.clear();
  delete overview_;
  delete verloop_;
}

}  // namespace brivane::app
