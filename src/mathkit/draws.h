// The course's one random stream, and the seeds that let a problem be drawn again.
#pragma once

#include <string>
#include <vector>

#include "mathkit/random_stream.h"

namespace course {

// The stream of the running lesson.
RandomStream& ProblemStream();

// Starts the stream at a seed taken from the time of day: numbers differ from run to run, and from
// one call to the next.
void Randomize();
// Starts the stream at a problem's seed, 0 to 32766: what follows depends on the seed alone.
void ReseedProblem(int seed);
// Draws a fresh session.gProblemSeed, and counts it for the unit and lesson in hand.  The stream
// stands at the clock's seed afterwards: ReseedProblem follows.
void NewProblemSeed();
// Fills session.gTestSeeds with five different seeds.
void NewTestSeeds();

// Draws from the running lesson's stream.  Rand takes its ends in either order, and stops the
// program when one of them is not whole.  RandSeq gives count different numbers of 1..poolSize, see
// RandomStream.
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
inline void SwapStrings(std::string& a, std::string& b) {
  a.swap(b);
}

}  // namespace course
