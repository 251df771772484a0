#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <functional>
#include <mutex>
#include <utility>

#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// A session at the server through its breaks: the next one hears as much, and the broken one leaves nothing behind.
namespace brivane::dossier {
namespace {

/// What Qt warns of meanwhile, on any thread.
class Warnings {
 public:
  Warnings() { before_ = qInstallMessageHandler(Hear); }
  Warnings(const Warnings&) = delete;
  Warnings& operator=(const Warnings&) = delete;
  ~Warnings() { qInstallMessageHandler(before_); }
  [[nodiscard]] static QStringList All() {
    const std::lock_guard lock(Guard());
    return std::exchange(Texts(), {});
  }

 private:
  static void Hear(QtMsgType, const QMessageLogContext&, const QString& text) {
    const std::lock_guard lock(Guard());
    Texts() << text;
  }
  static std::mutex& Guard() {
    static std::mutex guard;
    return guard;
  }
  static QStringList& Texts() {
    static QStringList texts;
    return texts;
  }
  QtMessageHandler before_;
};

class ServerSessionTest : public testing::Test {
 protected:
  static bool Until(const std::function<bool()>& is_so) {
    QElapsedTimer timer;
    timer.start();
    while (!is_so()) {
      if (timer.hasExpired(test::kPatience)) return false;
      QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
  }

  int argc_ = 1;
  char name_[5] = "test";
  char* argv_[1] = {static_cast<char*>(name_)};
  QCoreApplication application_{argc_, static_cast<char**>(argv_)};
  TrialOffice office_;
  test::SocketProxy proxy_{office_.Server().Folder()};
};

TEST_F(ServerSessionTest, WhoWasNotLetInTheFirstTimeIsToldAllTheSame) {
  OfficeConnection session(office_.Words("anna") + " host=" + proxy_.Folder());
  QStringList told;
  const auto hears = session.Told.Connect([&](const QString&, const QString& what) { told << what; });
  proxy_.Cut();
  EXPECT_THROW(session.Open(), OfficeError);
  proxy_.Mend();
  for (const char* what : {"een", "twee"}) {
    // The second time after a session that was there.
    session.Open();
    session.Listen("proef");
    session.Run("SELECT 1");
    office_.Psql("bert", QString("NOTIFY proef, '%1'").arg(what));
    EXPECT_TRUE(Until([&] { return told.contains(what); })) << what;
  }
  EXPECT_EQ(told, (QStringList{"een", "twee"}));
}

TEST_F(ServerSessionTest, TheStatementsOfABrokenSessionAreNotTakenBackAtTheServer) {
  const Warnings warnings;
  const auto session = office_.Enter("anna", proxy_.Folder());
  session->Listen("proef");
  session->Run("SELECT 1");
  proxy_.Cut();
  EXPECT_THROW(session->Run("SELECT 1"), OfficeError);
  EXPECT_TRUE(session->IsBroken());
  proxy_.Mend();
  session->OpenOffice();
  session->Run("SELECT 1");
  EXPECT_EQ(Warnings::All().filter("statement").join('|').toStdString(), "");
}

}  // namespace
}  // namespace brivane::dossier
