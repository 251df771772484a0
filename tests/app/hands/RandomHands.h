#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <map>
#include <random>
#include <string>

class QDialog;
class QWidget;
class QWindow;

namespace brivane::app {

/// Hands that know nothing of the program: each action is a key, a click or a turn of the wheel in whatever window has
/// the focus. The same seed acts alike in the same windows.
///
/// Files are chosen within `folder` alone, so that nothing outside it is met.
class RandomHands {
 public:
  RandomHands(unsigned seed, QString folder);

  /// One action. Returns when the program has done with it, also with the windows that it brought up.
  void Act(QWidget& front);

  /// What was done last, for whoever looks for a fault.
  [[nodiscard]] const QStringList& Last() const { return last_; }
  /// How often each kind of action was done.
  [[nodiscard]] const std::map<std::string, int>& Counts() const { return counts_; }

 private:
  void InFileDialog(QDialog& dialog);
  void PressButton(QWidget& box);
  void Key(QWindow& window);
  void Word(QWindow& window);
  void Click(QWidget& front, QWindow& window);
  void Wheel(QWidget& front, QWindow& window);
  void Note(const std::string& kind, const QString& what);
  [[nodiscard]] int Pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(chance_); }

  std::mt19937 chance_;
  QString folder_;
  int names_ = 0;
  QStringList last_;
  std::map<std::string, int> counts_;
};

}  // namespace brivane::app
