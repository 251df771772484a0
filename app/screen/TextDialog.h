#pragma once

#include <QInputDialog>
#include <functional>

namespace brivane::app {

/// Asks for one text. It stays, with what was typed, until that was taken or it is put away.
class TextDialog final : public QInputDialog {
 public:
  struct Question {
    QString title;
    QString label;
    QString text;  ///< that stands there at first
  };

  /// `take` does what the text is for, says why where it cannot, and answers whether it was done.
  TextDialog(const Question& question, std::function<bool(const QString& text)> take, QWidget* parent);

  void accept() override;

 private:
  std::function<bool(const QString&)> take_;
};

}  // namespace brivane::app
