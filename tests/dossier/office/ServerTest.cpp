#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <optional>

#include "tests/dossier/office/TrialOffice.h"

// What docs/office.md tells an administrator: passwords, TLS, backup and restore.
namespace brivane::dossier {
namespace {

/// A port of this machine that nobody uses.
int FreePort() {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  EXPECT_EQ(bind(probe, reinterpret_cast<const sockaddr*>(&address), size), 0);
  EXPECT_EQ(getsockname(probe, reinterpret_cast<sockaddr*>(&address), &size), 0);
  close(probe);
  return ntohs(address.sin_port);
}

class ServerTest : public testing::Test {
 protected:
  [[nodiscard]] static std::optional<OfficeProblem> Entering(const QString& words, const QString& password = {}) {
    try {
      OfficeConnection(words, password).OpenOffice();
      return std::nullopt;
    } catch (const OfficeError& error) {
      return error.Problem();
    }
  }
  /// A certificate that signs itself, for a host of that name.
  void MakeCertificate(const QString& name, const char* host) {
    EXPECT_EQ(QProcess::execute("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                                            QString("/CN=") + host, "-addext", QString("subjectAltName=DNS:") + host,
                                            "-keyout", Path(name + ".key"), "-out", Path(name + ".crt"), "-batch"}),
              0);
    server_.HandOver(Path(name + ".key"));
  }
  [[nodiscard]] QString Path(const QString& name) const { return server_.Folder() + "/" + name; }

  test::PostgresServer server_;
  TrialOffice office_{server_};
};

TEST_F(ServerTest, OverTheNetworkWithThePasswordAndTheCertificateOfTheServer) {
  MakeCertificate("server", "localhost");
  MakeCertificate("ander", "localhost");
  office_.Psql("postgres", "ALTER ROLE anna PASSWORD 'geheim'");
  const int port = FreePort();
  server_.Stop("fast");
  server_.AddSettings(
      QString("listen_addresses = 'localhost'\nport = %1\nssl = on\nssl_cert_file = '%2'\nssl_key_file = '%3'\n")
          .arg(port)
          .arg(Path("server.crt"), Path("server.key")));
  server_.AddAdmissions("hostssl all +kantoor_adviseur all scram-sha-256\nhost all all all reject\n");
  server_.Start();
  const auto words = [&](const char* host, const char* mode, const char* root) {
    return QString("host=%1 port=%2 dbname=%3 user=anna sslmode=%4 sslrootcert=%5 passfile=/dev/null")
        .arg(host)
        .arg(port)
        .arg(office_.Name(), mode, Path(root));
  };
  EXPECT_EQ(Entering(words("localhost", "verify-full", "server.crt"), "geheim"), std::nullopt);
  EXPECT_EQ(Entering(words("localhost", "verify-full", "server.crt"), "fout"), OfficeProblem::Unreachable);
  EXPECT_EQ(Entering(words("localhost", "verify-full", "server.crt")), OfficeProblem::Unreachable);
  // Another machine with a certificate of its own, and the right one under another name.
  EXPECT_EQ(Entering(words("localhost", "verify-full", "ander.crt"), "geheim"), OfficeProblem::Unreachable);
  EXPECT_EQ(Entering(words("127.0.0.1", "verify-full", "server.crt"), "geheim"), OfficeProblem::Unreachable);
  EXPECT_EQ(Entering(words("localhost", "disable", "server.crt"), "geheim"), OfficeProblem::Unreachable);
  OfficeConnection connection(words("localhost", "verify-full", "server.crt"), "geheim");
  connection.OpenOffice();
  EXPECT_TRUE(connection.Run("SELECT ssl FROM pg_stat_ssl WHERE pid = pg_backend_pid()").value(0).toBool());
  // A password does not stand among the words.
  EXPECT_EQ(Entering(words("localhost", "verify-full", "server.crt") + " password=geheim"), OfficeProblem::Refused);
}

TEST_F(ServerTest, ByTheNameOfAServiceWithThePasswordFromItsFile) {
  office_.Psql("postgres", "ALTER ROLE anna PASSWORD 'geheim'");
  const int port = FreePort();
  server_.Stop("fast");
  server_.AddSettings(QString("listen_addresses = 'localhost'\nport = %1\n").arg(port));
  server_.AddAdmissions("host all +kantoor_adviseur all scram-sha-256\n");
  server_.Start();
  const auto write = [](const QString& path, const QString& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
    // libpq passes over a file of passwords that others may read.
    ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
  };
  const QTemporaryDir folder;
  write(folder.filePath("diensten"),
        QString("[kantoor]\nhost=localhost\nport=%1\ndbname=%2\nuser=anna\nsslmode=disable\n")
            .arg(port)
            .arg(office_.Name()));
  write(folder.filePath("wachtwoorden"), QString("localhost:%1:*:anna:geheim\n").arg(port));
  write(folder.filePath("andere"), QString("localhost:%1:*:bert:geheim\n").arg(port));
  qputenv("PGSERVICEFILE", folder.filePath("diensten").toUtf8());
  qputenv("PGPASSFILE", folder.filePath("wachtwoorden").toUtf8());
  EXPECT_EQ(Entering("kantoor"), std::nullopt);
  EXPECT_EQ(Entering("service=kantoor"), std::nullopt);
  EXPECT_EQ(Entering("elders"), OfficeProblem::Unreachable);
  qputenv("PGPASSFILE", folder.filePath("andere").toUtf8());
  EXPECT_EQ(Entering("kantoor"), OfficeProblem::Unreachable);
  EXPECT_EQ(Entering("kantoor", "geheim"), std::nullopt);
  qunsetenv("PGSERVICEFILE");
  qunsetenv("PGPASSFILE");
}

TEST_F(ServerTest, ADumpThatIsPutBackHoldsEverything) {
  const int client = office_.Add();
  DossierGegevens contents;
  {
    const auto store = office_.Open(client);
    store->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    store->Dossier()->Verwijder(0, 2);
    contents = store->Dossier()->Gegevens();
  }
  const QString dump = Path("kantoor.dump");
  const QString again = server_.MakeDatabase();
  ASSERT_TRUE(server_.Tool(
      "pg_dump", {"-h", server_.Folder(), "-U", "postgres", "--format=custom", "--file=" + dump, office_.Name()}));
  ASSERT_TRUE(server_.Tool("pg_restore",
                           {"-h", server_.Folder(), "-U", "postgres", "--exit-on-error", "--dbname=" + again, dump}));
  const auto enter = [&](const char* account) {
    auto office = std::make_shared<OfficeConnection>(server_.Words(account, again));
    office->OpenOffice();
    return office;
  };
  const auto store = OfficeStore::Open(enter("bert"), client);
  EXPECT_EQ(store->Dossier()->Gegevens(), contents);
  ASSERT_TRUE(store->Take(StepKind::Undo));
  ASSERT_TRUE(store->Take(StepKind::Undo));
  EXPECT_EQ(store->Dossier()->FindKolom(0, 1)->Looptijd(), 96);
  // A new client gets a number of its own, and the rights are there.
  EXPECT_GT(AddClient(*enter("anna"), TrialOffice::kNoord, VoorbeeldDossier()), client);
  EXPECT_TRUE(SearchClients(*enter("carla"), "").empty());
}

}  // namespace
}  // namespace brivane::dossier
