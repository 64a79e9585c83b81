#include "lessons/families/radicals/root_sum.h"

#include <algorithm>
#include <cstdlib>

namespace course::radicals {

std::string RootSumText(const RootSum& sum) {
  std::string text;
  for (const RootTerm& term : sum) {
    RootTerm later = term;
    later.outside.coef = std::abs(term.outside.coef);
    const std::string sign = term.outside.coef < 0 ? " - " : " + ";
    text += text.empty() ? RootTermText(term) : sign + RootTermText(later);
  }
  return text.empty() ? "0" : text;
}

RootTerm Simplified(const RootTerm& term) {
  const RootTerm root = Simplified(term.inside);
  return {polynomials::Product(term.outside, root.outside), root.inside};
}

RootSum Simplified(RootSum sum) {
  for (RootTerm& term : sum) term = Simplified(term);
  return sum;
}

RootSum Combined(const RootSum& sum) {
  RootSum combined;
  for (const RootTerm& term : sum) {
    const auto like = std::ranges::find(combined, term.inside, &RootTerm::inside);
    if (like == combined.end())
      combined.push_back(term);
    else
      like->outside.coef += term.outside.coef;
  }
  std::erase_if(combined, [](const RootTerm& term) { return term.outside.coef == 0; });
  return combined;
}

}  // namespace course::radicals
