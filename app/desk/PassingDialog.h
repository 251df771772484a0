#pragma once

#include <QDialog>

namespace brivane::app {

/// A dialog in which nothing of a case is filled in: what is looked for, where something is, a password. None of it is
/// kept for the next start when the program has to end.
class PassingDialog : public QDialog {
 public:
  using QDialog::QDialog;
};

}  // namespace brivane::app
