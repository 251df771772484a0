#include "dossier/office/TypedDate.h"

#include <QRegularExpression>
#include <optional>

namespace brivane::dossier {
namespace {

/// Digits between what separates the parts of a day; only the last part may be unfinished.
struct Part {
  QString digits;
  bool finished = false;

  [[nodiscard]] bool Is() const { return !digits.isEmpty(); }
  [[nodiscard]] int Number() const { return digits.toInt(); }
};

/// A part of two digits of which one may be typed: nothing where that one may be the first of several, up to `most`.
std::optional<QString> OfTwo(const Part& part, int most) {
  if (part.digits.size() == 2 || part.finished) {
    if (part.Number() < 1 || part.Number() > most) return std::nullopt;
    return part.digits.rightJustified(2, u'0');
  }
  if (part.digits == QLatin1String("0")) return part.digits;
  return part.Number() * 10 <= most ? QString() : QString(u'0') + part.digits;
}

/// A year of two digits is one of these hundred: nobody's clients are older, or that young.
QString OfYear(const QString& digits) {
  constexpr int kLastOfThisCentury = 17;
  const int number = digits.toInt();
  if (digits.size() > 2) return digits;
  if (digits.size() == 1) return number == 1 || number == 2 ? digits : QString();
  // It may be the beginning of four.
  if (number >= 18 && number <= 20) return digits;
  return QString(QLatin1String(number <= kLastOfThisCentury ? "20" : "19")) + digits;
}

std::optional<QString> DayFirst(const Part& day, const Part& month, const QString& year) {
  std::optional<QString> word = OfTwo(day, 31);
  if (!word || !month.Is()) return word;
  const bool whole = year.size() == 4;
  if (whole && !QDate(year.toInt(), month.Number(), day.Number()).isValid())
    return day.digits + month.digits + year;  // no day, which nobody has
  const std::optional<QString> second = OfTwo(month, 12);
  if (!second) return std::nullopt;
  return *word + *second + (year.isEmpty() ? QString() : OfYear(year));
}

std::optional<QString> YearFirst(const QString& year, const Part& month, const Part& day) {
  if (!month.Is()) return year;
  const std::optional<QString> second = OfTwo(month, 12);
  if (!second || !day.Is()) return second ? std::optional(year + *second) : std::nullopt;
  const std::optional<QString> third = OfTwo(day, 31);
  return third ? std::optional(year + *second + *third) : std::nullopt;
}

/// What separates two parts, and what does not go on before or behind.
const QString kFront = QStringLiteral("(?<![\\p{L}\\p{N}])");
const QString kBehind = QStringLiteral("(?![\\p{L}\\p{N}])");

}  // namespace

QStringList DayWords(const QDate& day) {
  return {day.toString(QStringLiteral("ddMMyyyy")), day.toString(QStringLiteral("yyyyMMdd"))};
}

QStringList TakeDays(QString& typed) {
  // A part alone is one where a separator ends the text.
  static const QRegularExpression year_first(
      kFront + QStringLiteral("((?:18|19|20)\\d\\d)[-/.](?:(\\d{1,2})(?:([-/.])(\\d{1,2})?)?|$)") + kBehind);
  static const QRegularExpression day_first(
      kFront + QStringLiteral("(\\d{1,2})[-/.](?:(\\d{1,2})(?:([-/.])(\\d{1,4})?)?|$)") + kBehind);
  QStringList words;
  const auto take = [&](const QRegularExpression& pattern, auto&& word_of) {
    qsizetype from = 0;
    for (QRegularExpressionMatch match = pattern.match(typed); match.hasMatch(); match = pattern.match(typed, from)) {
      const std::optional<QString> word = word_of(match);
      from = match.capturedStart() + 1;
      if (!word) continue;
      words << *word;
      typed.replace(match.capturedStart(), match.capturedLength(), QStringLiteral(" "));
    }
  };
  take(year_first, [](const QRegularExpressionMatch& match) {
    const bool sealed = match.capturedLength(3) > 0;
    return YearFirst(match.captured(1), {match.captured(2), sealed}, {match.captured(4), false});
  });
  take(day_first, [](const QRegularExpressionMatch& match) {
    const bool sealed = match.capturedLength(3) > 0;
    return DayFirst({match.captured(1), true}, {match.captured(2), sealed}, match.captured(4));
  });
  return words;
}

}  // namespace brivane::dossier
