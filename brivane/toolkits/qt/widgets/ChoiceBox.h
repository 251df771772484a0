#pragma once

#include <QComboBox>
#include <chrono>
#include <functional>

#include <brivane/controls/entry/TypeAhead.h>

namespace brivane::qt {

/// A drop-down list in which passing by is not choosing: what the keys lead to while it is closed is shown as a
/// choice under way, and handed over by Enter or when the list is left. Picking in the open list hands over at once.
/// Escape puts back what stood there; so does closing the open list without picking.
///
/// The wheel never chooses in a closed list: it scrolls what the list stands in.
///
///     auto* box = new ChoiceBox(parent);
///     box->SetOnChoose([](int index) { ... });
///     box->ShowEntries({"per maand", "per jaar"}, 0);
class ChoiceBox final : public QComboBox {
 public:
  explicit ChoiceBox(QWidget* parent = nullptr);

  /// A person chose another entry than stood there.
  void SetOnChoose(std::function<void(int index)> chosen) { chosen_ = std::move(chosen); }

  /// These show what code sets; a choice under way is gone.
  void ShowEntries(const QStringList& texts, int index);
  void ShowOneMore(const QString& text, int index);
  void ShowIndex(int index);

  /// Another entry is shown than stands, and was not handed over yet.
  [[nodiscard]] bool IsUnderWay() const { return currentIndex() != standing_; }
  /// Its list of entries is open.
  [[nodiscard]] bool IsOpen() const { return open_; }
  void HandOver();
  void PutBack() { ShowIndex(standing_); }

  /// The list within a widget that has a choice under way, or nothing.
  [[nodiscard]] static ChoiceBox* UnderWayWithin(const QWidget& area);

  void showPopup() override;
  void hidePopup() override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void GoTo(int index);
  [[nodiscard]] bool TakesTyped(const QKeyEvent& event) const;
  [[nodiscard]] int EntryTyped(const QString& text, int current);

  std::function<void(int)> chosen_;
  controls::TypeAhead typed_;
  int standing_ = -1;
  bool open_ = false;
};

}  // namespace brivane::qt
