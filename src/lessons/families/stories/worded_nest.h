// A nest of operations in two languages: "the product of the quantity A plus B and C", and
// (A + B) times C.
//
// Every phrase begins with "the", and its second operand stands at its end.  So words and brackets
// tell the same, whatever is put into each other.
#pragma once

#include <string>
#include <vector>

#include "mathkit/random_stream.h"

namespace course::stories {

enum class Operation { Add = 1, Subtract, Multiply, Divide };
inline constexpr int kOperations = 4;

std::string SignOf(Operation operation);
bool OrderMatters(Operation operation);

// One of the phrases of an operation, such as "the sum of 1 and 2".
struct Phrase {
  Operation operation = Operation::Add;
  int number = 1;  // of the phrase in its group, from 1

  static Phrase Draw(Operation operation, RandomStream& random);
  // With both operands in their places.
  std::string Text(const std::string& first, const std::string& second) const;
  // Names the second operand first: "the quantity 3 less than A" is A - 3.
  bool TurnsOrder() const;
  // The words that tell the operation: "sum", "less than".
  std::string KeyWords() const;
};

// Begins with one simple operand; each level joins what is inside with one more.
struct Nest {
  struct Level {
    Phrase phrase;
    std::string operand;
    bool insideFirst = true;  // what is inside is the first operand
  };
  std::string start;
  std::vector<Level> levels;  // the innermost first

  // As far as so many levels; without brackets around the whole.
  std::string Symbols(std::size_t depth) const;
  std::string Symbols() const { return Symbols(levels.size()); }
  std::string Words(std::size_t depth) const;
  std::string Words() const { return Words(levels.size()); }
  // What is inside of a level in symbols, in brackets where they are needed.
  std::string InsideOf(std::size_t level) const;
  // The words of all levels from this one on, around a text for what is inside.
  std::string WordsAround(std::size_t level, const std::string& inside) const;
  // The expression with numbers in place of its letters: equal in value, equal here.
  bool SameValue(const Nest& other) const;
  // The first words are doubled, so that nobody could tell what they belong to.
  bool BeginsTwice() const;
};

// What students make of a nest.
struct NestSlip {
  std::string name;  // of the mistake
  Nest nest;
  bool keepsOrderOfWords = false;  // an exchange where the words name the second operand first
};
// One operation taken for another one, in all ways; the new phrases are drawn.
std::vector<NestSlip> OtherOperations(const Nest& nest, RandomStream& random);
// A difference or a quotient the wrong way around, or brackets in another place.
std::vector<NestSlip> OtherOrders(const Nest& nest);

}  // namespace course::stories
