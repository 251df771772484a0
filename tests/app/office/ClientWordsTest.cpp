#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "app/office/ClientWords.h"
#include "app/office/TrialClients.h"
#include "dossier/store/DossierFile.h"

namespace brivane::app {
namespace {

QDateTime At(int year, int month, int day, int hour, int minute) {
  return {QDate(year, month, day), QTime(hour, minute)};
}

TEST(ClientWordsTest, TellAClientInALine) {
  const QDateTime now = At(2026, 11, 22, 11, 0);
  EXPECT_EQ(QDate(1899, 12, 30).daysTo(QDate(1980, 5, 17)), 29358);
  EXPECT_EQ(BirthText(29358), "17-5-1980");
  EXPECT_EQ(BirthText(0), "");
  EXPECT_EQ(MomentText(At(2026, 11, 22, 9, 5), now), "09:05");
  EXPECT_EQ(MomentText(At(2026, 11, 21, 9, 5), now), "21 november 09:05");
  EXPECT_EQ(MomentText(At(2025, 3, 1, 9, 5), now), "1 maart 2025 09:05");
  dossier::ClientLine line;
  line.nummer = 3;
  line.naam = "A. de Boer";
  line.geboortedatum = 29358;
  line.team = "Noord";
  EXPECT_EQ(LineText(line, now), "A. de Boer, geboren 17-5-1980, team Noord");
  line.gewijzigd = At(2026, 11, 22, 10, 30);
  line.gewijzigd_door = "Bert Bakker";
  line.bewerker = "Bert Bakker";
  line.bewerkt_sinds = At(2026, 11, 22, 10, 12);
  EXPECT_EQ(
      LineText(line, now),
      "A. de Boer, geboren 17-5-1980, team Noord, in bewerking bij Bert Bakker, sinds 10:12, gewijzigd 10:30 door "
      "Bert Bakker");
  line.eigen = true;
  EXPECT_EQ(ChangeText(line, now), "10:30 door uzelf");
}

TEST(TrialClientTest, IsPossibleAndTheSameEachTime) {
  const QTemporaryDir folder;
  for (int number = 1; number <= 200; ++number) {
    const dossier::DossierGegevens client = TrialClient(number);
    ASSERT_EQ(client, TrialClient(number)) << number;
    ASSERT_NE(client.Personen, TrialClient(number + 1).Personen) << number;
    ASSERT_GE(client.HuidigeLening.VrijeKolommen.size(), 2U) << number;
    // Refused where a loan file could not hold it.
    if (number % 20 != 0) continue;
    EXPECT_NO_THROW(dossier::DossierFile::Maak(folder.filePath(QString("%1.dossier").arg(number)), client)) << number;
  }
}

}  // namespace
}  // namespace brivane::app
