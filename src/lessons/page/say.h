// The words of a page.  A page is written from top to bottom, and each word leaves the cursor where
// the next one goes on:
//
//   Say(...)      leaves a blank row, then prints a paragraph
//   AddLine(...)  prints a paragraph on the next row
//   SayAt(...)    prints a paragraph from a row on
//
// Below a built-up line or a box half a row stays free in any case.  Texts stand on rows 2 to 23 of
// the lesson screen: one that does not fit is an author's error, and stops the program with the
// lesson's title and the text.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::page {

inline constexpr double kFirstTextRow = 2;
inline constexpr double kLastTextRow = 23;

// --- Prose with numbers in it
// ----------------------------------------------------------------------

// Words that are put into a sentence and may be broken between two lines, as the sentence itself.
struct Words {
  std::string text;
};

std::string Filled(std::string_view pattern, std::initializer_list<std::string> inserts);

template <class T>
std::string Insert(const T& value) {
  static_assert(!std::is_same_v<T, bool> && !std::is_same_v<T, char>, "no text for a student");
  if constexpr (std::is_arithmetic_v<T>)
    return NumStr(static_cast<double>(value));
  else if constexpr (std::is_same_v<T, Words>)
    return value.text;
  else
    return WithoutBreaks(value);
}

// The pattern with each {} replaced, in their order: Text("{} is {} less than {}.", a, b, "x + 3").
// Numbers are written by NumStr.  Texts, such as expressions, are not broken between two lines.
// Another number of {} than of values stops the program.
template <class... Values>
std::string Text(std::string_view pattern, const Values&... values) {
  return Filled(pattern, {Insert(values)...});
}

// --- Paragraphs
// ------------------------------------------------------------------------------------

struct TextPlace {
  double col = 1;       // of the first line
  double indent = 0;    // column of the other lines; 0 is that of the first one
  double lastCol = 40;  // where lines end at the latest, beside a figure
};

// Colour codes, exponents and macros as in display/word_wrap.h.
void Say(const std::string& text, const TextPlace& place = {});
void AddLine(const std::string& text, const TextPlace& place = {});
void SayAt(double row, const std::string& text, const TextPlace& place = {});

// The row of the next line: the cursor's, or the one below when something stands before it.
double NextRow();
// Stops the program when a text leaves rows 2 to 23.
void CheckRows(const char* routine, double first, double last, const std::string& text);

}  // namespace course::page
