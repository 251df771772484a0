#pragma once

#include <QString>
#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

namespace brivane::test {

/// A socket in front of a server's, as a network may be: slow, and cut where it hurts. The words of a connection name
/// its folder as the host.
class SocketProxy {
 public:
  /// `server`: the folder of the server's socket. Each answer is `delay` late. Its own folder stands below that one:
  /// the path of a socket is short.
  explicit SocketProxy(const QString& server, std::chrono::milliseconds delay = {},
                       const QString& below = QStringLiteral("/tmp"));
  SocketProxy(const SocketProxy&) = delete;
  SocketProxy& operator=(const SocketProxy&) = delete;
  ~SocketProxy();

  [[nodiscard]] QString Folder() const { return folder_.path(); }
  /// How often a question was sent and answered.
  [[nodiscard]] int RoundTrips() const { return round_trips_; }

  /// What the next question meets.
  enum class Fate {
    Answered,    ///< nothing
    LostBefore,  ///< the connection ends before it reaches the server
    LostAfter,   ///< it reaches the server, which works it off; the connection ends before the answer comes back
    DeadBefore,  ///< as the two before, and nobody gets through any more until Mend
    DeadAfter
  };
  /// The same for one that so many others come before.
  void NextMeets(Fate fate, int others = 0) {
    others_ = others;
    fate_ = fate;
  }
  /// Nothing has met its fate yet.
  [[nodiscard]] bool Awaits() const { return fate_ != Fate::Answered; }
  /// Nobody gets through from now on, or everybody again. What is open ends.
  void Cut();
  void Mend();
  /// The same, but who comes meanwhile is let in and never answered.
  void FallSilent();
  /// Nothing is carried any more in either direction, and nobody is told: as where a cable is pulled. What was on its
  /// way arrives after Mend.
  void Hang() { hung_ = true; }
  /// How many were let in so.
  [[nodiscard]] std::size_t Unanswered();

 private:
  void Accept();
  void Carry(int client);
  [[nodiscard]] Fate Next();

  QString server_;
  std::chrono::milliseconds delay_;
  QTemporaryDir folder_;
  int listener_ = -1;
  std::atomic<bool> ends_ = false;
  std::atomic<bool> cut_ = false;
  std::atomic<bool> silent_ = false;
  std::atomic<bool> hung_ = false;
  std::atomic<int> round_trips_ = 0;
  std::atomic<int> others_ = 0;
  std::atomic<Fate> fate_ = Fate::Answered;
  std::mutex guard_;
  std::vector<std::thread> carriers_;
  std::vector<int> unanswered_;
  std::thread acceptor_;
};

}  // namespace brivane::test
