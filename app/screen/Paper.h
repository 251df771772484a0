#pragma once

class QMainWindow;

namespace brivane::app {

class DossierScreen;

/// What leaves the program on paper or for other programs. Each first hands over what is being typed, and does nothing
/// where that is refused.

/// Shows the report as it will be printed, and prints it from there.
void PrintReport(QMainWindow& window, DossierScreen& screen);
/// Asks for a name and writes the report under it.
void SaveReportAsPdf(QMainWindow& window, DossierScreen& screen);
/// The same of the columns and of their years, for a spreadsheet.
void ExportKolommen(QMainWindow& window, DossierScreen& screen);
void ExportPerioden(QMainWindow& window, DossierScreen& screen);

}  // namespace brivane::app
