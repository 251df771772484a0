#pragma once

#include <QWidget>
#include <functional>
#include <vector>

namespace bench {

/// The yardstick of the editor: the same widgets at the same places, tied to nothing, and set by hand.
class PlainEditor {
 public:
  /// What a widget shows; kept for each of the states that the yardstick is switched between.
  using State = std::vector<std::function<void()>>;

  /// Copies the widgets of an area.
  explicit PlainEditor(const QWidget& original);

  [[nodiscard]] QWidget& Window() { return *copies_.front(); }
  /// What the original shows now, as the calls that make the copies show it.
  [[nodiscard]] State Capture() const;
  /// The copy of the widget of that name.
  [[nodiscard]] QWidget& Find(const QString& name) const;
  ~PlainEditor() { delete copies_.front(); }
  PlainEditor(const PlainEditor&) = delete;
  PlainEditor& operator=(const PlainEditor&) = delete;

 private:
  void Copy(const QWidget& original, QWidget* parent);

  std::vector<const QWidget*> originals_;
  std::vector<QWidget*> copies_;
};

}  // namespace bench
