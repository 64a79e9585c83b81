// Square roots of whole numbers, exactly: what stands outside the radical sign and what stays
// under it.
#pragma once

#include <string>

namespace course {

// outside times the square root of radicand; the radicand holds no square factor above 1.
struct Radical {
  int outside = 0;
  int radicand = 1;  // at least 1
  bool Whole() const { return radicand == 1; }
  bool operator==(const Radical&) const = default;
};

// The square root of n, simplified: 72 gives 6 and 2, 49 gives 7 and 1, 0 gives 0 and 1.  A
// negative n stops the program.
Radical RootOf(int n);

// The radical sign and the digits under it: the bar over them is drawn by the printers of display/.
std::string RadicalSignText(int radicand);
// "2v6", "v6", "7", with the radical sign for v.
std::string RadicalText(const Radical& r);

}  // namespace course
