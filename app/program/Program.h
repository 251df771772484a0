#pragma once

class QApplication;

namespace brivane::app {

/// Names, version, language and number format of the running program. Style and palette stay the system's.
void SetUpProgram(QApplication& program);

}  // namespace brivane::app
