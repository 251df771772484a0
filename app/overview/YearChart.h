#pragma once

#include <QWidget>
#include <functional>

#include "app/overview/YearPicture.h"

namespace brivane::app {

/// A picture of years to walk through: the arrow keys, Home, End and Page Up and Down go from year to year, as the
/// pointer does that passes over it. What stands in the year is told.
class YearChart final : public QWidget {
 public:
  explicit YearChart(QWidget* parent = nullptr);

  /// Shows other years; where the year that was pointed at is among them, it still is.
  void Show(YearData years);
  [[nodiscard]] const YearData& Data() const { return data_; }
  [[nodiscard]] int Year() const { return year_; }  ///< from 0; -1 where there is none
  void GoTo(int year);
  /// The year that is pointed at, in words: "2031 · aanvrager 53 jaar · Huidige situatie € -7.452,55".
  [[nodiscard]] QString YearText() const;

  std::function<void(int year)> yearChanged;

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void PointAt(double x);
  void Announce();

  YearData data_;
  int year_ = -1;
};

}  // namespace brivane::app
