#include "mathkit/tutor_codes.h"

#include <array>
#include <string_view>

namespace course {
namespace {

struct Reading {
  int code;
  std::string_view utf8;
};

// Codes with a reading of their own.  Single exponent characters read as marked exponents, so that
// a tool meets one notation only.
constexpr Reading kReadings[] = {
    {127, "\u0394"},  // Delta
    {129, "\u03B8"},  // theta
    {130, "\u207B"},  // raised minus
    {131, "\u2265"},  // greater than or equal
    {132, "\u2264"},  // less than or equal
    {133, "\u221A"},  // square root
    {134, "\u00F7"},  // division sign
    {135, "\u2190"},  // left arrow
    {136, "\u2192"},  // right arrow
    {137, "\u2193"},  // down arrow
    {138, "\u2191"},  // up arrow
    {141, "\u00D7"},  // multiplication sign
    {143, "^0^"},     {144, "^1^"},     {145, "^2^"},     {146, "^3^"},
    {147, "^4^"},     {148, "^5^"},     {149, "^6^"},     {150, "^7^"},
    {151, "^8^"},     {152, "^9^"},     {153, "^m^"},     {154, "^n^"},
    {155, "^p^"},     {156, "^.^"},     {157, "\u207A"},  // raised plus
    {161, "\u2299"},                                      // circle with dot
    {162, "a\u0304"},                                     // letters with a bar
    {163, "b\u0304"}, {164, "c\u0304"}, {165, "d\u0304"}, {166, "e\u0304"},
    {167, "o\u0304"}, {168, "\u2245"},                    // congruent
    {169, "\u2225"},                                      // parallel
    {170, "\u22A5"},                                      // perpendicular
    {171, "\u25B1"},                                      // parallelogram
    {172, "\u25CB"},                                      // circle
    {173, "\u25A1"},                                      // square
    {174, "\u23E2"},                                      // trapezoid
    {176, "p\u0304"}, {177, "\u223C"},                    // similar
    {178, "\u00B2"},                                      // the square of the titles
    {179, "^(^"},     {180, "^)^"},     {183, "\u00B7"},  // multiplication dot
    {191, "\u00B1"},                                      // plus or minus
    {192, "\u00BD"},                                      // one half
    {216, "\u00B0"},                                      // degree
    {217, "\u2220"},                                      // angle
    {218, "\u221E"},                                      // infinity
    {219, "|"},       {220, "^x^"},     {221, "\u2260"},  // not equal
    {223, "'"},       {226, "\u2248"},                    // approximately
    {247, "\u207B"},                                      // raised minus
    {248, "\u00B7"},                                      // multiplication dot
    {249, "\u03C0"},                                      // pi
    {250, "_"},                                           // subscript mark
    {253, "\u25AA"},                                      // bullet
    {255, " "},                                           // gap
};

constexpr int kFirstUnreadable = 128;  // to 159: control characters of Latin-1

std::string Latin1Reading(int code) {
  if (code < kFirstUnreadable) return Chr(code);
  if (code < 160) return "\uFFFD";
  return Chr(0xC0 | (code >> 6)) + Chr(0x80 | (code & 0x3F));
}

std::array<std::string, 256> AllReadings() {
  std::array<std::string, 256> all;
  for (int code = 0; code < 256; ++code) all[code] = Latin1Reading(code);
  for (const Reading& reading : kReadings) all[reading.code] = reading.utf8;
  return all;
}

}  // namespace

std::string ToUtf8(const std::string& text) {
  static const std::array<std::string, 256> readings = AllReadings();
  std::string result;
  bool inExponent = false;
  for (const char c : text) {
    const std::string& reading = readings[static_cast<unsigned char>(c)];
    const bool exponent = reading.size() == 3 && reading.front() == '^';
    if (exponent && inExponent) result.pop_back();  // neighbours are one exponent
    result += exponent && inExponent ? reading.substr(1) : reading;
    inExponent = exponent;
  }
  return result;
}

std::string WithoutBreaks(std::string text) {
  for (char& c : text)
    if (c == ' ') c = tutor::Gap[0];
  return text;
}

std::string UpperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

}  // namespace course
