#pragma once

#include <QString>

class QWidget;

/// The dialogs in which a file is chosen. They look at names alone: no file is opened to guess what it holds, none is
/// renamed or deleted, and nothing of where a person has been is kept outside the program's own settings.
namespace brivane::app {

struct FileQuestion {
  QString title;
  QString folder;  ///< where the dialog starts
  QString filter;
};

/// A name of something as the name of a file, without a folder or an ending.
[[nodiscard]] QString NameForFile(const QString& name);

/// The file that was chosen, or nothing.
[[nodiscard]] QString AskFileToOpen(QWidget* above, const FileQuestion& question);

/// A name that no file has, or nothing. A name that one has is told, and the dialog stays.
[[nodiscard]] QString AskNewFile(QWidget* above, const FileQuestion& question, const QString& suffix,
                                 const QString& name);

}  // namespace brivane::app
