// Two binomials multiplied in print cells, a column a product: First, Outer, Inner, Last.
//
//   FoilTable table({{3, "t"}, {2, ""}}, {{4, "u"}, {5, ""}}, 5);
//   table.Bring(Foil::Outer);     // 3t and 5 slide out of (3t + 2)(4u + 5) into its column
//   table.Multiply(Foil::Outer);  // 15t appears below them
#pragma once

#include <array>
#include <string>

#include "lessons/families/polynomials/sum_of_terms.h"

namespace course::polynomials {

// Where the two terms of a product stand in their binomials.
enum class Foil { First, Outer, Inner, Last };
inline constexpr std::array kFoil = {Foil::First, Foil::Outer, Foil::Inner, Foil::Last};
std::string FoilName(Foil foil);

// A sum of two terms each.
struct BinomialPair {
  Sum first;
  Sum second;

  // The term of either binomial that is multiplied.
  const Term& FirstTerm(Foil foil) const;
  const Term& SecondTerm(Foil foil) const;
  Term Product(Foil foil) const;
  // The four products as they come, like ones not combined.
  Sum Products() const;
  // "(3t + 2)(4u + 5)".
  std::string Text() const;
  // "3t . (-5)", with the multiplication dot: beside an x a cross is hard to read.
  std::string FactorsText(Foil foil) const;
  // "3t . (-5) = -15t".
  std::string ProductText(Foil foil) const;
};

class FoilTable {
 public:
  // Prints the binomials on the row, and the empty table two and a half rows below it.
  FoilTable(const BinomialPair& pair, double row);

  // The two terms are yellow above, and slide into the upper cell.
  void Bring(Foil foil);
  // Their product appears in the lower cell.
  void Multiply(Foil foil);
  // The binomials are all white again.
  void Unmark() const { ShowPair(); }
  // Half a row below the table.
  double RowBelow() const { return rowBelow_; }

 private:
  void ShowPair() const;
  void ShowTable();
  void SlideIn(double column, double width, Foil foil) const;

  BinomialPair pair_;
  double row_;
  double rowBelow_ = 0;
};

}  // namespace course::polynomials
