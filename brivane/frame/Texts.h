#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <brivane/host/Export.h>

/// The texts that the toolkits add to the controls: why a box refuses what was typed, what it makes of it, the
/// toolkits' own questions, tips, and names for screen readers. The captions and messages of the controls are none of
/// them: those stay what they are, in Dutch.
namespace brivane::frame {

/// A language of the library's own.
enum class Language : std::uint8_t {
  Dutch,   ///< where nobody chooses
  English  ///< as it is written in Europe
};

/// One text. A new one gets its line in the table of Texts.cpp, in each language.
enum class TextId : std::uint8_t {
  /// Why a number is refused.
  /// @{
  ExpectAmount,
  AmountDecimals,
  ExpectNumber,
  NumberDecimals,
  ExpectWhole,
  NumberTooLarge,
  PointMisplaced,
  PointOrComma,
  /// @}

  /// Why a date is refused.
  /// @{
  ExpectDate,
  EarliestYear,
  NoSuchMonth,
  NoSuchDay,
  /// @}

  /// A day, in words.
  /// @{
  Day,
  DayOfWeek,
  January,
  February,
  March,
  April,
  May,
  June,
  July,
  August,
  September,
  October,
  November,
  December,
  Monday,
  Tuesday,
  Wednesday,
  Thursday,
  Friday,
  Saturday,
  Sunday,
  /// @}

  /// Why a sum is refused.
  /// @{
  DivideByZero,
  NumberAfterSign,
  UnreadableSum,
  DateForNumber,
  SumTooLarge,
  /// @}

  /// Why a term after a start is refused.
  /// @{
  NoStart,
  PastCalendar,
  /// @}

  /// Why a pasted column is refused, or what was left of it.
  /// @{
  OneColumn,
  InLine,
  LineLeftOver,
  LinesLeftOver,
  /// @}

  /// What was typed and not handed over, and the question whether it may go.
  /// @{
  NotStored,
  NotTaken,
  LeftInBox,
  LeftInSomeBox,
  DropQuestion,
  /// @}

  /// What closing a form with changed rows leaves, and the question whether it may close.
  /// @{
  RowsNotStored,
  AmountStays,
  ValueStays,
  TypingToo,
  CloseQuestion,
  /// @}

  /// Which year a row is, and how old a person gets in it.
  /// @{
  RowPeriod,
  TurnsAge,
  /// @}

  /// What stands for an editor that stands for nothing, and its name.
  /// @{
  NothingOpen,
  FreeColumn,
  /// @}

  /// The calendar of a date box, and whose names of days it shows, as "nl_NL".
  /// @{
  Calendar,
  CalendarKey,
  Today,
  CalendarLocale,
  /// @}

  /// What a help icon is called.
  /// @{
  Help,
  HelpOn,
  /// @}

  /// The buttons of a message box.
  /// @{
  Yes,
  No,
  Ok,
  /// @}

  /// What a sign that closes a form is called.
  Close,
};
/// How many there are.
inline constexpr int kTextCount = static_cast<int>(TextId::Close) + 1;

/// The texts in one language, UTF-8. "%1" to "%9" stand where something is filled in; "&" stands before a mnemonic.
///
/// A host may hand a toolkit an object of its own: a further language, or other words. It is asked on the thread of the
/// controls, whenever a text is shown, and must outlive them.
///
///     class Frisian : public frame::Texts {
///       std::string Of(frame::TextId text) const override;  // In(Language::Dutch).Of(text) for what it leaves
///     };
class BRIVANE_API Texts {
 public:
  Texts() = default;
  Texts(const Texts&) = delete;
  Texts& operator=(const Texts&) = delete;
  virtual ~Texts();

  /// One of them; never empty.
  [[nodiscard]] virtual std::string Of(TextId text) const = 0;

  /// Those of this library. They live as long as the program, and may be asked on any thread.
  [[nodiscard]] static const Texts& In(Language language);
};

/// What a text is called in the table and in the files of translators: "ExpectAmount".
[[nodiscard]] BRIVANE_API std::string_view NameOf(TextId text);

}  // namespace brivane::frame
