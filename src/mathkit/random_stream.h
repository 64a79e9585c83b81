// The stream of random numbers from which every problem is drawn.
//
// The same seed gives the same numbers on every machine, for ever: the generator and the way in
// which a number is cut from it are written here by hand and must not change.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace course {

class RandomStream {
 public:
  explicit RandomStream(std::uint64_t seed = 1);
  // Forgets all that was and starts again at the seed.
  void Reseed(std::uint64_t seed);

  // 0 <= x < 1.
  double Rnd();
  // A whole number in low..high, both included, in either order.  One draw, also when they are
  // equal.
  int Rand(int low, int high);
  // -1 or 1.
  int Sign();
  // 1 to n: a place in a table.  An empty table stops the program.
  int Index(int n);
  // A capital letter from A to Z.
  std::string Letter();
  // One character of the given ones: a variable's name, for example.
  std::string OneOf(std::string_view characters);
  // Count different whole numbers of 1..poolSize in random order, in elements 0 to count - 1.
  // With count equal to poolSize a shuffle.  Count above poolSize, or poolSize above 41, is an
  // author's error and stops the program.
  std::vector<int> RandSeq(int poolSize, int count);

  // Numbers given since the start or the last Reseed: what rejected tries have cost.
  std::uint64_t Draws() const { return draws_; }

 private:
  std::uint64_t state_;
  std::uint64_t draws_ = 0;
};

// Letters that read well as variables; the second leaves out a and b where these are constants.
inline constexpr std::string_view kVariableLetters = "abcdefhjkmnpqrtuvwxy";
inline constexpr std::string_view kVariableLettersWithoutAB = "cdefhjkmnpqrtuvwxy";

}  // namespace course
