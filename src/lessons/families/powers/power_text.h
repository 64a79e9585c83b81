// What the lessons on powers share: powers and products of powers as text, powers written out as
// factors, and the drawing of a second letter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mathkit/random_stream.h"

namespace course::powers {

struct Power {
  std::string base;  // a letter or a number
  int exponent = 1;
};

// "b^3^"; the bare base for exponent 1.
std::string PowerText(const Power& power);
// Factors of a product between dots.
std::string JoinedByDots(const std::vector<std::string>& factors);
// Numbers, between which a dot would look like a decimal point: "2 x 2 x 2".
std::string JoinedByTimes(const std::vector<std::string>& numbers);
// The power as so many equal factors: "b", dot, "b", dot, "b" for 3.
std::string WrittenOut(const Power& power);
// A simplified product: the number unless it is 1, then the powers in the order of the alphabet.
// Two products of different letters have the same value just when these texts are the same.
std::string ProductText(int number, std::vector<Power> powers);

// A letter of the alphabet given, drawn until it is not the one that is taken.
std::string DrawOtherLetter(RandomStream& random, std::string_view alphabet,
                            const std::string& taken);

}  // namespace course::powers
