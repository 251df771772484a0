#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace brivane::test {

/// A file system of a few megabytes that a server of PostgreSQL may write in; gone with this object, also where the
/// test is killed. Only root may have one.
class SmallDisk {
 public:
  explicit SmallDisk(int megabytes);
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk();

  /// This machine lets the test have one.
  [[nodiscard]] bool IsThere() const { return there_; }
  [[nodiscard]] QString Folder() const { return folder_.path(); }
  /// Takes all the room that is left, and gives it back.
  void TakeRoom();
  void GiveRoom();

 private:
  QTemporaryDir folder_;
  bool there_ = false;
  /// Waits for the end of this process.
  QProcess guard_;
};

}  // namespace brivane::test
