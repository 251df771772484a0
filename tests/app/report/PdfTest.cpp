#include <gtest/gtest.h>

#include <QFile>
#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "app/report/Painter.h"
#include "app/report/Pdf.h"
#include "tests/app/report/SampleSource.h"

// What another program reads in the document.
namespace brivane::app::report {
namespace {

class PdfTest : public testing::Test {
 protected:
  void Make(const Source& source) {
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(PdfOf(ReportOf(source)));
  }

  [[nodiscard]] QString Run(const char* program, const QStringList& arguments) const {
    QProcess process;
    process.start(QString::fromLatin1(program), arguments);
    EXPECT_TRUE(process.waitForFinished(30000)) << program;
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return QString::fromUtf8(process.readAllStandardOutput());
  }

  /// The pages' texts, as they stand on the paper.
  [[nodiscard]] QStringList Pages() const {
    QStringList pages = Run("pdftotext", {"-layout", "-enc", "UTF-8", path_, "-"}).split(u'\f');
    pages.removeLast();  // each page ends with the sign
    return pages;
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(QStringLiteral("rapport.pdf"));
};

TEST_F(PdfTest, TheSampleCaseCanBeReadAsText) {
  Make(SampleSource());
  const QStringList pages = Pages();
  ASSERT_EQ(pages.size(), 2);
  const QString text = pages.join(u'\n');
  for (const char* part :
       {"Overzicht van de vrije kolommen", "M.C. van den Heuvel, geboren 12-03-1978", "Jan de Vries", "22-11-2026",
        "jaar 3 t/m 4: 01-09-2026 t/m 31-08-2028", "€ -112,50", "Krant, Dagblad De Maasbode, De", "Pagina 1 van 2",
        "Pagina 2 van 2", "Wordt beëindigd in voorstel 1"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part;
}

TEST_F(PdfTest, AReaderFindsTitleSizeAndLanguage) {
  Make(SampleSource());
  const QString info = Run("pdfinfo", {path_});
  EXPECT_TRUE(
      info.contains(QRegularExpression("Title: +Overzicht van de vrije kolommen - M.C. van den Heuvel en S. de Wit\n")))
      << qPrintable(info);
  EXPECT_TRUE(info.contains("(A4)")) << qPrintable(info);
  const QString meta = Run("pdfinfo", {"-meta", path_});
  EXPECT_TRUE(meta.contains("<rdf:li>nl-NL</rdf:li>")) << qPrintable(meta);
  EXPECT_TRUE(meta.contains("<rdf:li>Jan de Vries</rdf:li>"));
}

TEST_F(PdfTest, ThePagesThatWereChosenArePrinted) {
  struct {
    int from, to;
    QPrinter::PageOrder order;
    QStringList pages;
  } const cases[] = {{0, 0, QPrinter::FirstPageFirst, {"Pagina 1 van 2", "Pagina 2 van 2"}},
                     {2, 2, QPrinter::FirstPageFirst, {"Pagina 2 van 2"}},
                     {1, 9, QPrinter::LastPageFirst, {"Pagina 2 van 2", "Pagina 1 van 2"}}};
  for (const auto& one : cases) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path_);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFullPage(true);
    printer.setFromTo(one.from, one.to);
    printer.setPageOrder(one.order);
    ASSERT_TRUE(PrintPages(Paginate(ReportOf(SampleSource()), PrintedRuler(), SheetOf(printer)), printer));
    const QStringList pages = Pages();
    ASSERT_EQ(pages.size(), one.pages.size());
    for (qsizetype i = 0; i < pages.size(); ++i) EXPECT_TRUE(pages[i].contains(one.pages[i])) << i;
  }
}

TEST_F(PdfTest, ThreeHundredColumnsStandOnceEachBelowTheirHeadings) {
  Make(LargeSource(300));
  const QStringList pages = Pages();
  // 25.4 points a row, and 728 for rows on a page: 28 of them, fewer on the first.
  EXPECT_GE(pages.size(), 11);
  EXPECT_LE(pages.size(), 13);
  int rows = 0;
  for (qsizetype i = 0; i < pages.size(); ++i) {
    EXPECT_TRUE(pages[i].contains(QStringLiteral("Pagina %1 van %2").arg(i + 1).arg(pages.size()))) << i;
    EXPECT_EQ(pages[i].count("Omschrijving"), 1) << i;
    EXPECT_EQ(pages[i].count("Looptijd"), 1) << i;
    const QRegularExpression row(
        QStringLiteral(
            "^ *Post (\\d+) +Last +€ (\\d+),(\\d\\d) +van 01-01-2026 +Aanvrager +€ (\\d+),(\\d\\d) +€ 0,00$"),
        QRegularExpression::MultilineOption);
    for (auto found = row.globalMatch(pages[i]); found.hasNext();) {
      const auto match = found.next();
      const int number = match.captured(1).toInt();
      EXPECT_EQ(number, ++rows);
      // 10,00 and a cent for each number; the burden is the amount.
      EXPECT_EQ(match.captured(2).toInt() * 100 + match.captured(3).toInt(), 1000 + number);
      EXPECT_EQ(match.captured(4).toInt() * 100 + match.captured(5).toInt(), 1000 + number);
    }
  }
  EXPECT_EQ(rows, 300);
}

TEST_F(PdfTest, TheLargestAmountsAndTheLongestTextsAreWhole) {
  Source source = LargeSource(3);
  auto& kolommen = source.gegevens.HuidigeLening.VrijeKolommen;
  kolommen[0].Bedrag.Bedrag = 999'999'999'999.99;
  kolommen[1].Bedrag.Bedrag = -999'999'999'999.99;
  std::string name;
  for (int i = 1; i <= 2000; ++i) name += "w" + std::to_string(i) + " ";
  kolommen[2].Omschrijving = name + "einde";
  Make(source);
  const QString text = Pages().join(u'\n');
  EXPECT_EQ(text.count("999.999.999.999,99"), 4);
  EXPECT_EQ(text.count("€ -999.999.999.999,99"), 2);
  for (int i = 1; i <= 2000; ++i) EXPECT_EQ(text.count(QRegularExpression(QStringLiteral("\\bw%1\\b").arg(i))), 1) << i;
  EXPECT_TRUE(text.contains("einde"));
}

}  // namespace
}  // namespace brivane::app::report
