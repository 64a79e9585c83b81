#include "mathkit/square_roots.h"

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {

Radical RootOf(int n) {
  if (n < 0) platform::Stop("RootOf: " + std::to_string(n) + " has no square root");
  if (n == 0) return {};
  Radical root{1, n};
  for (int factor = 2; factor * factor <= root.radicand; ++factor) {
    while (root.radicand % (factor * factor) == 0) {
      root.radicand /= factor * factor;
      root.outside *= factor;
    }
  }
  return root;
}

std::string RadicalSignText(int radicand) {
  return tutor::SquareRoot + NumStr(radicand);
}

std::string RadicalText(const Radical& r) {
  if (r.Whole()) return NumStr(r.outside);
  return CoefText(r.outside) + RadicalSignText(r.radicand);
}

}  // namespace course
