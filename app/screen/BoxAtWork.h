#pragma once

#include <QPointer>
#include <QString>

class QLineEdit;
class QWidget;

namespace brivane::app {

/// The box of an editor in which a person is at work, to be gone on with after the editor was bound anew: the focus,
/// the place in the text, and what was typed and not handed over.
class BoxAtWork {
 public:
  explicit BoxAtWork(QWidget& editor);

  void GoOn() const;

 private:
  QPointer<QWidget> focus_;
  QPointer<QLineEdit> line_;
  bool typed_ = false;
  QString text_;
  int cursor_ = 0;
  int from_ = -1;  ///< of what is selected; -1 for nothing
  int length_ = 0;
};

}  // namespace brivane::app
