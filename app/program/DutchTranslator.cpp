#include "app/program/DutchTranslator.h"

#include <string_view>

namespace brivane::app {
namespace {

struct Translation {
  std::string_view english;
  const char* dutch;
};

constexpr Translation kTranslations[] = {
    {"OK", "OK"},
    {"&OK", "&OK"},
    {"Cancel", "Annuleren"},
    {"&Cancel", "Annuleren"},
    {"Close", "Sluiten"},
    {"&Close", "&Sluiten"},
    {"Yes", "Ja"},
    {"&Yes", "&Ja"},
    {"No", "Nee"},
    {"&No", "&Nee"},
    {"Open", "Openen"},
    {"&Open", "&Openen"},
    {"Save", "Opslaan"},
    {"&Save", "&Opslaan"},
    {"Undo", "Ongedaan maken"},
    {"&Undo", "&Ongedaan maken"},
    {"&Redo", "O&pnieuw"},
    {"Cu&t", "K&nippen"},
    {"&Copy", "&Kopiëren"},
    {"Copy &Link Location", "&Adres kopiëren"},
    {"&Paste", "&Plakken"},
    {"Delete", "Verwijderen"},
    {"&Delete", "&Verwijderen"},
    {"Select All", "Alles selecteren"},
    // The file dialog
    {"Look in:", "Zoeken in:"},
    {"File &name:", "Bestands&naam:"},
    {"Files of type:", "Bestandstype:"},
    {"&Choose", "&Kiezen"},
    {"Directory:", "Map:"},
    {"All Files (*)", "Alle bestanden (*)"},
    {"All files (*)", "Alle bestanden (*)"},
    {"Back", "Terug"},
    {"Go back", "Terug"},
    {"Forward", "Vooruit"},
    {"Go forward", "Vooruit"},
    {"Parent Directory", "Bovenliggende map"},
    {"Go to the parent directory", "Naar de bovenliggende map"},
    {"Create New Folder", "Nieuwe map maken"},
    {"Create a New Folder", "Een nieuwe map maken"},
    {"New Folder", "Nieuwe map"},
    {"&New Folder", "&Nieuwe map"},
    {"List View", "Lijst"},
    {"Change to list view mode", "Als lijst tonen"},
    {"Detail View", "Details"},
    {"Change to detail view mode", "Met details tonen"},
    {"Sidebar", "Zijbalk"},
    {"Files", "Bestanden"},
    {"&Rename", "Hernoe&men"},
    {"Show &hidden files", "&Verborgen bestanden tonen"},
    {"Recent Places", "Recente plaatsen"},
    {"Computer", "Computer"},
    {"My Computer", "Computer"},
    {"Drive", "Station"},
    {"Folder", "Map"},
    {"File", "Bestand"},
    {"%1 File", "%1-bestand"},
    {"Name", "Naam"},
    {"Size", "Grootte"},
    {"Kind", "Soort"},
    {"Type", "Soort"},
    {"Date Modified", "Gewijzigd op"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nHet bestand is niet gevonden.\nControleer de bestandsnaam."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nDe map is niet gevonden.\nControleer de naam van de map."},
    {"%1 already exists.\nDo you want to replace it?", "%1 bestaat al.\nWilt u het vervangen?"},
};

}  // namespace

QString DutchTranslator::translate(const char*, const char* sourceText, const char*, int) const {
  for (const Translation& translation : kTranslations) {
    if (translation.english == sourceText) return QString::fromUtf8(translation.dutch);
  }
  return {};
}

}  // namespace brivane::app
