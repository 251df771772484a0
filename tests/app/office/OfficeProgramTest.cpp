#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <functional>

#include "tests/dossier/office/TrialOffice.h"
#include "tests/support/Patience.h"
#include "tests/support/postgres/SocketProxy.h"

// The program itself, in an office, ended from outside.
namespace brivane::app {
namespace {

class OfficeProgramTest : public testing::Test {
 protected:
  /// Starts the program on an office, and ends it once `stands` says that it is where it should be.
  void EndWith(int signal, const QString& words, const std::function<bool()>& stands) {
    SCOPED_TRACE(signal);
    const QTemporaryDir home;
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "HOME"}) environment.insert(name, home.path());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(DOSSIER), {"--kantoor", words});
    ASSERT_TRUE(process.waitForStarted());
    EXPECT_TRUE(QTest::qWaitFor(stands, test::kPatience));
    QTest::qWait(500);
    QElapsedTimer time;
    time.start();
    kill(static_cast<pid_t>(process.processId()), signal);
    ASSERT_TRUE(process.waitForFinished(2 * test::kPatience)) << "it does not end";
    std::printf("ended after %lld ms\n", static_cast<long long>(time.elapsed()));
    EXPECT_LT(time.elapsed(), test::kPatience);
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
  }
};

TEST_F(OfficeProgramTest, EndsInOrderWithTheListOfClientsInFront) {
  dossier::TrialOffice office;
  static_cast<void>(office.Add());
  const auto sessions = [&] {
    return office.Psql("postgres", QString("SELECT count(*) FROM pg_stat_activity WHERE usename = 'bert' AND datname = "
                                           "'%1' AND application_name = 'dossier'")
                                       .arg(office.Name()));
  };
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    // The window's session, and that of the list.
    EndWith(signal, office.Words("bert"), [&] { return sessions() == "2"; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return sessions() == "0"; }, test::kPatience));
  }
}

TEST_F(OfficeProgramTest, EndsInOrderWhileItConnects) {
  test::SocketProxy nobody("/tmp/daar-is-niets");
  nobody.FallSilent();
  EndWith(SIGTERM, "user=anna dbname=kantoor connect_timeout=300 host=" + nobody.Folder(),
          [&] { return nobody.Unanswered() > 0; });
}

}  // namespace
}  // namespace brivane::app
