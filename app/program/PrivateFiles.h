#pragma once

#include <QString>

namespace brivane::app {

/// From here on every file and folder that the process makes is its owner's alone, whatever it was given.
void KeepPrivate();

/// Takes away what others may do with a folder of the program's own and the files in it, made by an earlier version.
void MakePrivate(const QString& folder);

}  // namespace brivane::app
