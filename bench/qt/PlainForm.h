#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <vector>

namespace bench {

/// The yardstick of the year-by-year form: the same rows as plain Qt makes them, a QLineEdit for every box
/// and a QLabel for every text, at the same places.
class PlainForm : public QDialog {
 public:
  static constexpr int kRows = 80;
  static constexpr int kBoxes = 3;

  PlainForm() {
    constexpr int kColumns = 4;
    constexpr int kPerColumn = kRows / kColumns;
    constexpr int kPitch = 24;
    QFont font("Arial");
    font.setPixelSize(11);
    setFont(font);
    for (int row = 0; row < kRows; ++row) {
      const int left = 9 + row / kPerColumn * 282;
      const int top = 68 + row % kPerColumn * kPitch;
      (new QLabel(QString::number(row + 1), this))->setGeometry(left, top + 3, 28, 15);
      Box(left + 32, top, 98);
      Box(left + 134, top, 52);
      (new QLabel("%", this))->setGeometry(left + 190, top + 3, 12, 15);
      Box(left + 206, top, 52);
      (new QLabel("%", this))->setGeometry(left + 262, top + 3, 12, 15);
    }
    resize(1150, 620);
  }

  /// Fills every box, with other texts every other time.
  void Fill() {
    const QString text = (turn_ = !turn_) ? "1.234,56" : "1.240,78";
    for (QLineEdit* box : boxes_) box->setText(text);
  }

 private:
  void Box(int left, int top, int width) {
    auto* const box = new QLineEdit("1.234,56", this);
    box->setAlignment(Qt::AlignRight);
    box->setGeometry(left, top, width, 21);
    boxes_.push_back(box);
  }

  std::vector<QLineEdit*> boxes_;
  bool turn_ = false;
};

}  // namespace bench
