// The course's one random stream, and the seeds that let a problem be drawn again.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "mathkit/random_stream.h"

namespace course {

// The stream of the running lesson.
RandomStream& ProblemStream();

// Starts the stream at a seed taken from the clock: numbers differ from run to run.
void Randomize();
// Starts the stream at a problem's seed, 0 to 32766: what follows depends on the seed alone.
void ReseedProblem(int seed);
// Draws a fresh session.gProblemSeed, and counts it for the unit and lesson in hand.
void NewProblemSeed();
// Fills session.gTestSeeds with five different seeds.
void NewTestSeeds();

// Draws from the running lesson's stream.  Rand stops the program when an argument is not whole.
double Rnd();
double Rand(double low, double high);
std::vector<int> RandSeq(int poolSize, int count);

// Whether the first n strings (from element 0) are pairwise different.
bool AllDistinct(int n, const std::vector<std::string>& strings);

template <class T>
void SwapVariant(T& a, T& b) {
  T kept = a;
  a = b;
  b = kept;
}
inline void SwapStrings(std::string& a, std::string& b) { a.swap(b); }

}  // namespace course
