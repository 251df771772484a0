#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <optional>
#include <random>
#include <string>

#include "dossier/store/DossierFile.h"

/// One try of what can happen to a loan file while a program works in it.
namespace brivane::faults {

/// What the child has accepted: the number that stands in the first column as its duration.
using Number = int;

/// A program that writes ever higher numbers into the duration of the first column, one edit each, and says each one
/// once it was accepted; then "refused" once a change was refused, and what file it could keep in place of it.
class Worker {
 public:
  /// `fault`: what file_worker is told of a disk that fails, or nothing.
  explicit Worker(const QString& file, Number from, const QStringList& fault = {});
  ~Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  /// Waits until it works.
  [[nodiscard]] bool Works();
  /// Waits until a change was refused, or so many were accepted that none will be.
  void WaitForRefusal();
  void Kill();
  /// Lets it go on until a change is refused, or asks it to stop and close the file in order.
  void Finish();

  [[nodiscard]] Number Accepted() const { return accepted_; }
  [[nodiscard]] bool Refused() const { return refused_; }
  /// Opening was refused for the fault that was asked for, and for nothing else.
  [[nodiscard]] bool NotOpened() const { return notOpened_; }

 private:
  bool Read();

  QProcess process_;
  Number accepted_ = 0;
  bool refused_ = false;
  bool notOpened_ = false;
};

/// One folder with a loan file, and chance.
class Try {
 public:
  explicit Try(unsigned seed);

  [[nodiscard]] QString Path(const char* name = "k.dossier") const { return folder_.filePath(QLatin1String(name)); }
  /// Lets some time pass: this many milliseconds at most.
  void Wait(int most);
  [[nodiscard]] bool Toss() { return std::bernoulli_distribution()(chance_); }
  [[nodiscard]] int Pick(int most) { return std::uniform_int_distribution<int>(1, most)(chance_); }

 private:
  QTemporaryDir folder_;
  std::mt19937 chance_;
};

/// The number in a file that opens and is whole.
[[nodiscard]] Number NumberIn(const QString& file);
/// The problem that opening meets, or nothing.
[[nodiscard]] std::optional<dossier::OpeningProblem> Problem(const QString& file);
/// A copy of the file alone, as a mail or a backup takes it.
[[nodiscard]] QString CopyOf(const Try& one, const char* name = "kopie.dossier");

/// A hundred tries, each with chance of its own; prints how often each answer of `body` came.
void TryOften(const char* what, const std::function<std::string(Try&)>& body);

}  // namespace brivane::faults
