#include "mathkit/random_stream.h"

#include <array>

#include "platform/stop.h"

namespace course {
namespace {

constexpr int kLargestPool = 41;

// SplitMix64: a counter with a scrambled output.  Neighbouring seeds need no mixing of their own,
// since every output, the first one included, is a scramble of all 64 bits of the counter.
std::uint64_t NextBits(std::uint64_t& counter) {
  counter += 0x9E3779B97F4A7C15;
  std::uint64_t bits = counter;
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
  return bits ^ (bits >> 31);
}

}  // namespace

RandomStream::RandomStream(std::uint64_t seed) : state_(seed) {}

void RandomStream::Reseed(std::uint64_t seed) {
  state_ = seed;
  draws_ = 0;
}

double RandomStream::Rnd() {
  ++draws_;
  // The 53 bits that a double holds exactly: the result is below 1, and so is Rnd() * n below n.
  return static_cast<double>(NextBits(state_) >> 11) * 0x1p-53;
}

int RandomStream::Rand(int low, int high) {
  if (low > high) std::swap(low, high);
  const std::int64_t count = std::int64_t{high} - low + 1;
  return static_cast<int>(low + static_cast<std::int64_t>(Rnd() * static_cast<double>(count)));
}

int RandomStream::Sign() {
  return Rand(0, 1) * 2 - 1;
}

int RandomStream::Index(int n) {
  if (n < 1) platform::Stop("Index: there is no place in a table of " + std::to_string(n));
  return Rand(1, n);
}

std::string RandomStream::Letter() {
  return std::string(1, static_cast<char>('A' + Rand(0, 'Z' - 'A')));
}

std::string RandomStream::OneOf(std::string_view characters) {
  if (characters.empty()) platform::Stop("OneOf: no character to choose from");
  return std::string(
      1, characters[static_cast<std::size_t>(Index(static_cast<int>(characters.size()))) - 1]);
}

std::vector<int> RandomStream::RandSeq(int poolSize, int count) {
  if (poolSize > kLargestPool || count > poolSize || count < 0) {
    platform::Stop("RandSeq: " + std::to_string(count) + " numbers from a pool of " +
                   std::to_string(poolSize) + " (at most " + std::to_string(kLargestPool) + ")");
  }
  std::array<int, kLargestPool + 1> pool{};
  for (int i = 1; i <= poolSize; ++i) pool[i] = i;
  std::vector<int> result;
  result.reserve(count);
  for (int remaining = poolSize; remaining > poolSize - count; --remaining) {
    const int k = Index(remaining);
    result.push_back(pool[k]);
    // The rest keeps its order: an exchange with the last entry would give other sequences.
    for (int i = k; i < remaining; ++i) pool[i] = pool[i + 1];
  }
  return result;
}

}  // namespace course
