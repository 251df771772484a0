#include "app/program/OfficeCommands.h"

#include <unistd.h>

#include <cstdio>
#include <functional>

#include "app/office/Entrance.h"
#include "app/office/TrialClients.h"
#include "dossier/office/Office.h"
#include "dossier/office/OfficeSetup.h"

namespace brivane::app {
namespace {

constexpr int kNotDone = 1;
constexpr int kTrialClients = 200;

int InOffice(const QString& words, const std::function<void(dossier::OfficeConnection&)>& task) {
  QString password;
  for (;;) {
    try {
      dossier::OfficeConnection office(words, password);
      office.Open();
      task(office);
      return 0;
    } catch (const dossier::OfficeError& error) {
      if (!error.WantsPassword() || !password.isEmpty() || isatty(STDIN_FILENO) == 0) {
        std::fprintf(stderr, "dossier: %s\n", qUtf8Printable(QString::fromUtf8(error.what()).simplified()));
        return kNotDone;
      }
    }
    password = QString::fromLocal8Bit(getpass("Password: "));
    if (password.isEmpty()) return kNotDone;
  }
}

}  // namespace

int SetUpOfficeOf(const QString& words) {
  return InOffice(words, [](dossier::OfficeConnection& office) {
    const int before = dossier::SetUpOffice(office);
    if (before == 0)
      std::printf("The office is set up, version %d.\n", dossier::kOfficeVersion);
    else if (before == dossier::kOfficeVersion)
      std::printf("The office is up to date, version %d.\n", dossier::kOfficeVersion);
    else
      std::printf("The office is brought from version %d to %d.\n", before, dossier::kOfficeVersion);
  });
}

int AddTrialClients(const QString& words) {
  return InOffice(words, [](dossier::OfficeConnection& office) {
    office.OpenOffice();
    for (int number = 1; number <= kTrialClients; ++number)
      dossier::AddClient(office, office.User().team, TrialClient(number));
    std::printf("%d clients added.\n", kTrialClients);
  });
}

}  // namespace brivane::app
