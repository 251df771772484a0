#pragma once

namespace brivane::faults {

/// Stands between SQLite and the disk, for every file that this process opens by SQLite from the moment that it is
/// made: counts the calls and makes chosen ones fail as a disk does. Waiting for the disk is left out.
///
///     FaultyVfs vfs;
///     vfs.FailAt(17);            // the 17th call from now on, once
///     vfs.FullFrom(17);          // every write from the 17th call on
class FaultyVfs {
 public:
  FaultyVfs();
  FaultyVfs(const FaultyVfs&) = delete;
  FaultyVfs& operator=(const FaultyVfs&) = delete;
  ~FaultyVfs();

  /// 0: none fails. Counting starts anew.
  void FailAt(int nth);
  void FullFrom(int nth);
  /// Calls since counting started.
  [[nodiscard]] int Calls() const;
  /// Whether a call has been made to fail since then.
  [[nodiscard]] bool Struck() const;
};

}  // namespace brivane::faults
