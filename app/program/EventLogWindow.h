#pragma once

#include <QDialog>

namespace brivane::dossier {

class Logboek;

/// Shows the log, its end first in sight.
class Logboekvenster final : public QDialog {
 public:
  Logboekvenster(const Logboek& logboek, QWidget* parent);
};

}  // namespace brivane::dossier
