#include <array>

#include <brivane/frame/Texts.h>

namespace brivane::frame {
namespace {

struct Entry {
  TextId id;
  std::string_view name;
  std::string_view dutch;
  std::string_view english;
};

#define BRIVANE_TEXT(id) TextId::id, #id

constexpr std::array<Entry, kTextCount> kEntries{{
    {BRIVANE_TEXT(ExpectAmount), "Vul een bedrag in, bijvoorbeeld 1.234,56.", "Enter an amount, for example 1.234,56."},
    {BRIVANE_TEXT(AmountDecimals), "Een bedrag heeft ten hoogste twee cijfers achter de komma.",
     "An amount has at most two digits after the comma."},
    {BRIVANE_TEXT(ExpectNumber), "Vul een getal in, bijvoorbeeld 12,5.", "Enter a number, for example 12,5."},
    {BRIVANE_TEXT(NumberDecimals), "Een getal heeft ten hoogste vier cijfers achter de komma.",
     "A number has at most four digits after the comma."},
    {BRIVANE_TEXT(ExpectWhole), "Vul een geheel getal in, zonder cijfers achter de komma.",
     "Enter a whole number, without digits after the comma."},
    {BRIVANE_TEXT(NumberTooLarge), "Dit getal is te groot.", "This number is too large."},
    {BRIVANE_TEXT(PointMisplaced), "De punt staat niet tussen duizendtallen. Bedoelt u %1?",
     "The point does not separate thousands. Do you mean %1?"},
    {BRIVANE_TEXT(PointOrComma), "Bedoelt u %1 of %2? Typ een komma voor de decimalen.",
     "Do you mean %1 or %2? Type a comma before the decimals."},
    {BRIVANE_TEXT(ExpectDate), "Vul een datum in als dd-mm-jjjj, bijvoorbeeld 1-4-2031.",
     "Enter a date as dd-mm-yyyy, for example 1-4-2031."},
    {BRIVANE_TEXT(EarliestYear), "Vul een jaar vanaf %1 in.", "Enter a year from %1 on."},
    {BRIVANE_TEXT(NoSuchMonth), "Maand %1 bestaat niet. %2", "There is no month %1. %2"},
    {BRIVANE_TEXT(NoSuchDay), "%1 bestaat niet.", "%1 does not exist."},
    {BRIVANE_TEXT(Day), "%1 %2 %3", "%1 %2 %3"},
    {BRIVANE_TEXT(DayOfWeek), "%1 %2", "%1 %2"},
    {BRIVANE_TEXT(January), "januari", "January"},
    {BRIVANE_TEXT(February), "februari", "February"},
    {BRIVANE_TEXT(March), "maart", "March"},
    {BRIVANE_TEXT(April), "april", "April"},
    {BRIVANE_TEXT(May), "mei", "May"},
    {BRIVANE_TEXT(June), "juni", "June"},
    {BRIVANE_TEXT(July), "juli", "July"},
    {BRIVANE_TEXT(August), "augustus", "August"},
    {BRIVANE_TEXT(September), "september", "September"},
    {BRIVANE_TEXT(October), "oktober", "October"},
    {BRIVANE_TEXT(November), "november", "November"},
    {BRIVANE_TEXT(December), "december", "December"},
    {BRIVANE_TEXT(Monday), "maandag", "Monday"},
    {BRIVANE_TEXT(Tuesday), "dinsdag", "Tuesday"},
    {BRIVANE_TEXT(Wednesday), "woensdag", "Wednesday"},
    {BRIVANE_TEXT(Thursday), "donderdag", "Thursday"},
    {BRIVANE_TEXT(Friday), "vrijdag", "Friday"},
    {BRIVANE_TEXT(Saturday), "zaterdag", "Saturday"},
    {BRIVANE_TEXT(Sunday), "zondag", "Sunday"},
    {BRIVANE_TEXT(DivideByZero), "Delen door nul kan niet.", "A number cannot be divided by zero."},
    {BRIVANE_TEXT(NumberAfterSign), "Achter \"%1\" hoort een getal.", "A number goes after \"%1\"."},
    {BRIVANE_TEXT(UnreadableSum), "Deze som is niet te lezen. Typ bijvoorbeeld 10+5 of 1200/12.",
     "This sum cannot be read. Type for example 10+5 or 1200/12."},
    {BRIVANE_TEXT(DateForNumber), "Dit is een datum. Vul een getal in.", "This is a date. Enter a number."},
    {BRIVANE_TEXT(SumTooLarge), "De uitkomst van deze som is te groot.", "The outcome of this sum is too large."},
    {BRIVANE_TEXT(NoStart), "\"%1\" telt vanaf \"%2\", en daar staat geen datum.",
     "\"%1\" counts from \"%2\", and there is no date there."},
    {BRIVANE_TEXT(PastCalendar), "\"%1\" eindigt na het jaar 9999.", "\"%1\" ends after the year 9999."},
    {BRIVANE_TEXT(OneColumn), "Plak één kolom tegelijk.", "Paste one column at a time."},
    {BRIVANE_TEXT(InLine), "Regel %1: %2", "Line %1: %2"},
    {BRIVANE_TEXT(LineLeftOver), "De laatste regel past niet meer in de rijen en is niet geplakt.",
     "There is no row for the last line, and it was not pasted."},
    {BRIVANE_TEXT(LinesLeftOver), "De laatste %1 regels passen niet meer in de rijen en zijn niet geplakt.",
     "There are no rows for the last %1 lines, and they were not pasted."},
    {BRIVANE_TEXT(NotStored), "Dit is niet bewaard. Enter probeert het opnieuw, Esc zet terug wat er stond.",
     "This was not saved. Enter tries again, Esc puts back what was there."},
    {BRIVANE_TEXT(NotTaken), "Niet overgenomen", "Not taken over"},
    {BRIVANE_TEXT(LeftInBox),
     "In het vak \"%1\" staat nog \"%2\". Dat is niet overgenomen, en het vak is nu niet te bereiken.",
     "The box \"%1\" still holds \"%2\". That was not taken over, and the box is out of reach now."},
    {BRIVANE_TEXT(LeftInSomeBox),
     "In een vak staat nog \"%1\". Dat is niet overgenomen, en het vak is nu niet te bereiken.",
     "A box still holds \"%1\". That was not taken over, and the box is out of reach now."},
    {BRIVANE_TEXT(DropQuestion), "Wilt u wat daar getypt is laten vervallen?",
     "Do you want to drop what was typed there?"},
    {BRIVANE_TEXT(RowsNotStored),
     "De wijzigingen in de rijen worden niet bewaard als u het venster sluit zonder op OK te drukken.",
     "The changes in the rows are not saved when you close the window without pressing OK."},
    {BRIVANE_TEXT(AmountStays),
     "Het bedrag van de eerste rij is bij het invullen al bewaard en blijft staan. De andere wijzigingen worden niet "
     "bewaard als u het venster sluit zonder op OK te drukken.",
     "The amount of the first row was saved when it was entered, and stays. The other changes are not saved when you "
     "close the window without pressing OK."},
    {BRIVANE_TEXT(ValueStays),
     "De waarde van de eerste rij is bij het invullen al bewaard en blijft staan. De andere wijzigingen worden niet "
     "bewaard als u het venster sluit zonder op OK te drukken.",
     "The value of the first row was saved when it was entered, and stays. The other changes are not saved when you "
     "close the window without pressing OK."},
    {BRIVANE_TEXT(TypingToo), "Dat geldt ook voor wat u nu aan het typen bent.",
     "That goes for what you are typing now, too."},
    {BRIVANE_TEXT(CloseQuestion), "Wilt u het sluiten?", "Do you want to close it?"},
    {BRIVANE_TEXT(RowPeriod), "%1: %2 tot en met %3", "%1: %2 up to and including %3"},
    {BRIVANE_TEXT(TurnsAge), "%1 wordt %2", "%1 turns %2"},
    {BRIVANE_TEXT(NothingOpen), "Er is geen vrije kolom geopend.", "No free column is open."},
    {BRIVANE_TEXT(FreeColumn), "Vrije kolom", "Free column"},
    {BRIVANE_TEXT(Calendar), "Kalender", "Calendar"},
    {BRIVANE_TEXT(CalendarKey), "Kalender (F4)", "Calendar (F4)"},
    {BRIVANE_TEXT(Today), "&Vandaag", "&Today"},
    // Whose names of days and months a calendar shows.
    {BRIVANE_TEXT(CalendarLocale), "nl_NL", "en_GB"},
    {BRIVANE_TEXT(Help), "Hulp", "Help"},
    {BRIVANE_TEXT(HelpOn), "Help: %1", "Help: %1"},
    {BRIVANE_TEXT(Yes), "&Ja", "&Yes"},
    {BRIVANE_TEXT(No), "&Nee", "&No"},
    {BRIVANE_TEXT(Ok), "OK", "OK"},
    {BRIVANE_TEXT(Close), "Sluiten", "Close"},
}};

#undef BRIVANE_TEXT

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kEntries.size(); ++i)
    if (kEntries[i].id != static_cast<TextId>(i)) return false;
  return true;
}
static_assert(IsInOrder(), "the table has one line for each text, in the order of the list");

const Entry& EntryOf(TextId text) { return kEntries[static_cast<std::size_t>(text)]; }

class OwnTexts final : public Texts {
 public:
  explicit OwnTexts(std::string_view Entry::*language) : language_(language) {}
  [[nodiscard]] std::string Of(TextId text) const override { return std::string(EntryOf(text).*language_); }

 private:
  std::string_view Entry::*language_;
};

}  // namespace

Texts::~Texts() = default;

const Texts& Texts::In(Language language) {
  static const OwnTexts dutch(&Entry::dutch);
  static const OwnTexts english(&Entry::english);
  return language == Language::English ? english : dutch;
}

std::string_view NameOf(TextId text) { return EntryOf(text).name; }

}  // namespace brivane::frame
