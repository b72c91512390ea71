#include "ferrowind/adapters/qt/dates/month_names.h"

#include <algorithm>

#include "ferrowind/adapters/qt/dates/typed_text.h"

namespace ferrowind::qt {
namespace {

constexpr int kMonths = 12;

bool AreLetters(QStringView text) {
  return std::all_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

bool HasLetter(QStringView text) {
  return std::any_of(text.begin(), text.end(),
                     [](QChar character) { return character.isLetter() || character.isSurrogate(); });
}

/// Letters go on with letters and their marks, numbers with digits.
bool GoesOn(QChar before, QChar after) {
  if (after.isMark()) return true;
  if (before.isDigit() || after.isDigit()) return before.isDigit() && after.isDigit();
  return before.isLetterOrNumber() && after.isLetterOrNumber();
}

}  // namespace

MonthNames::MonthNames(const QLocale& locale) {
  for (int month = 1; month <= kMonths; ++month) AddNamesOf(month, locale);
  AddFirstLetters();
  DropSharedNames();
}

std::vector<MonthNames::Found> MonthNames::FindIn(QStringView text) const {
  std::vector<Found> found;
  for (const Name& name : names_) {
    const qsizetype length = name.text.size();
    if (text.size() <= length) continue;
    if (text.startsWith(name.text) && !GoesOn(text[length - 1], text[length]))
      found.push_back({name.month, text.sliced(length), false});
    const qsizetype before = text.size() - length;
    if (text.endsWith(name.text) && !GoesOn(text[before - 1], text[before]))
      found.push_back({name.month, text.first(before), true});
  }
  return found;
}

void MonthNames::AddNamesOf(int month, const QLocale& locale) {
  for (const auto format : {QLocale::LongFormat, QLocale::ShortFormat}) {
    for (const QString& name : {locale.monthName(month, format), locale.standaloneMonthName(month, format)}) {
      QString plain = PlainText(name, locale);
      // In some languages the months have numbers only, which say nothing about their order with the day.
      if (!HasLetter(plain)) continue;
      names_.push_back({plain, month});
      if (plain.endsWith(QLatin1Char('.'))) names_.push_back({plain.chopped(1), month});
    }
  }
}

void MonthNames::AddFirstLetters() {
  const std::vector<Name> whole = names_;
  for (const Name& name : whole) {
    for (const qsizetype length : {3, 4}) {
      if (name.text.size() <= length) continue;
      const QString first = name.text.first(length);
      const bool is_shared = std::any_of(whole.begin(), whole.end(), [&](const Name& other) {
        return other.month != name.month && other.text.startsWith(first);
      });
      if (AreLetters(first) && !is_shared) names_.push_back({first, name.month});
    }
  }
}

void MonthNames::DropSharedNames() {
  const std::vector<Name> all = names_;
  std::erase_if(names_, [&](const Name& name) {
    return std::any_of(all.begin(), all.end(), [&](const Name& other) {
      return other.month != name.month && other.text == name.text;
    });
  });
  const auto order = [](const Name& name, const Name& other) { return name.text < other.text; };
  std::sort(names_.begin(), names_.end(), order);
  const auto same = [](const Name& name, const Name& other) { return name.text == other.text; };
  names_.erase(std::unique(names_.begin(), names_.end(), same), names_.end());
}

}  // namespace ferrowind::qt
