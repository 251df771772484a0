#pragma once

#include <QString>
#include <functional>

class QMenu;

namespace brivane::app {

/// What is done with a recent file.
struct RecentChoice {
  std::function<void(const QString& file)> open;
  std::function<void()> clear;
};

/// Fills a menu with the recent files each time that it opens: a number as letter for each, told where it is gone, and
/// below them the way to empty the list.
void FillWithRecentFiles(QMenu& menu, const RecentChoice& choice);

}  // namespace brivane::app
