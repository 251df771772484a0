#pragma once

#include <QLayout>
#include <QList>
#include <QString>
#include <vector>

namespace brivane::app {

/// The number of the row that each of some parts stands in, by their widths, the gap between two of them and the room
/// of a row. A part that is wider than a row has one to itself.
[[nodiscard]] std::vector<int> RowsFor(const std::vector<int>& widths, int gap, int room);

/// Lays what stands beside one another in a row, and goes on in a next one where a window is narrow: so a bar of
/// choices never makes a window wider than the screen. A label stays with its box.
///
///     auto* bar = new FlowRow;
///     bar->AddPair(QStringLiteral("&Situatie:"), situatie);
///     bar->addWidget(button);
class FlowRow final : public QLayout {
 public:
  /// Without margins: it is a part of another layout, or fills a widget of its own.
  FlowRow() { setContentsMargins(0, 0, 0, 0); }
  explicit FlowRow(QWidget* parent) : QLayout(parent) { setContentsMargins(0, 0, 0, 0); }
  ~FlowRow() override;

  /// Takes over both; `at` counts the parts before it, -1 puts it last.
  void AddPair(const QString& label, QWidget* box, int at = -1);

  void addItem(QLayoutItem* item) override { parts_.append(item); }
  [[nodiscard]] int count() const override { return static_cast<int>(parts_.size()); }
  [[nodiscard]] QLayoutItem* itemAt(int index) const override { return parts_.value(index); }
  QLayoutItem* takeAt(int index) override;
  [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), Apply::No); }
  [[nodiscard]] QSize minimumSize() const override;
  [[nodiscard]] QSize sizeHint() const override;
  void setGeometry(const QRect& rect) override;

 private:
  enum class Apply : bool { No, Yes };
  /// Answers the height that it takes.
  int Arrange(const QRect& rect, Apply apply) const;
  [[nodiscard]] int Gap() const;

  QList<QLayoutItem*> parts_;
};

}  // namespace brivane::app
