// The course's single-byte characters beyond ASCII, by name.  Most of them are drawn, not printed.
#pragma once

#include <string>

namespace course {

// The one-character string of a code, 0 to 255.
inline std::string Chr(int code) {
  return std::string(1, static_cast<char>(code));
}

namespace tutor {
inline const std::string Delta = Chr(127);
inline const std::string Theta = Chr(129);
inline const std::string RaisedMinus = Chr(130);
inline const std::string GreaterOrEqual = Chr(131);
inline const std::string LessOrEqual = Chr(132);
inline const std::string SquareRoot = Chr(133);
inline const std::string Divided = Chr(134);
inline const std::string LeftArrow = Chr(135);
inline const std::string RightArrow = Chr(136);
inline const std::string Times = Chr(141);
inline const std::string RaisedPlus = Chr(157);
inline const std::string SquaredSign = Chr(178);  // in titles only
inline const std::string PlusOrMinus = Chr(191);
inline const std::string Degree = Chr(216);
inline const std::string Infinity = Chr(218);
inline const std::string NotEqual = Chr(221);
inline const std::string Approximately = Chr(226);
inline const std::string Dot = Chr(248);  // multiplication dot
inline const std::string Pi = Chr(249);
inline const std::string SubscriptMark = Chr(250);  // never printed
inline const std::string Bullet = Chr(253);
inline const std::string Gap = Chr(255);  // a hard blank: no line breaks there
}  // namespace tutor

// What a person reads: the course's characters become their Unicode letters in UTF-8, the gap a
// blank. Carets and colour codes stay.
std::string ToUtf8(const std::string& text);

// The text with hard blanks in place of blanks: an equation in a sentence stays on one line.
std::string WithoutBreaks(std::string text);

// Upper case of ASCII letters only; all other bytes stay.
std::string UpperCase(std::string text);

}  // namespace course
