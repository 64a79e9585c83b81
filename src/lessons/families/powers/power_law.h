// What the lessons on powers of powers, products and monomials share: a group in parentheses with
// an exponent behind them, as text, written out, counted, and told factor by factor in a table.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/powers/power_text.h"

namespace course::powers {

// (2b^3^c)^4^: a number and powers of different letters, and how many times they are a factor.
// The exponents of the letters are the inner ones, that behind the parentheses is the outer one.
struct PowerOfGroup {
  int number = 1;             // 1 is not printed, and is no factor in the table
  std::vector<Power> powers;  // in the order of the alphabet
  int exponent = 2;           // 2 to 9
};

std::string GroupText(const PowerOfGroup& group);
// "(b^3^c)(b^3^c)(b^3^c)"; of more than four groups the first two and the last, with dots between.
std::string GroupWrittenOut(const PowerOfGroup& group);
// Simplified: the number raised, each inner exponent multiplied by the outer one.
std::string RaisedText(const PowerOfGroup& group);
// "3 x 4 = 12"
std::string ExponentProduct(int inner, int outer);
// The exponent of one who adds; to a bare letter he gives the outer exponent.
int AddedExponent(int inner, int outer);
// The name of his mistake, which tells what is added when one letter is bare.
std::string NameOfAdding(const PowerOfGroup& group);

// A line for the number and for each letter: "4:  4 x 4 x 4 = 16 x 4 = 64", "b:  3 x 3 = 9".
std::vector<std::string> LinesOfRaising(const PowerOfGroup& group);
// "3 + 3 + 3 = 9": the inner exponent of a letter, added once a group.
std::string SumOfExponents(int inner, int groups);
// From column 4 on, further left if it must be; what is too long goes on below behind an equal
// sign.
void ShowWorking(const std::string& math);

// The group in the middle of the row, and notes at its first inner and its outer exponent: from two
// rows above to three rows below.
void PointAtExponents(const PowerOfGroup& group, double row);

// "(b^3^)^3^ = b^3^ . b^3^ . b^3^" in the row, where one group after the other slides into its
// place, and below each of them which one it is.  Of more than four groups the first two and the
// last.  The cursor ends below.
void CountGroups(const Power& group, int groups, double row);

// A table of the factors of a group: a row a factor, a column a group, and what they make together
// in the last one.  More groups than there is room for are shown as the first and the last, with
// dots between.
void ShowGroupsTable(const PowerOfGroup& group);
// Says what the factor of row 0, 1 ... is in each group, shows how it is raised, and fills in the
// last column.
void RaiseInTable(const PowerOfGroup& group, int row);
// The last column alone.
void FillInTogether(const PowerOfGroup& group, int row);

// The problem's page: simplify the power of a group.
void ShowTaskAndAnswers(const Problem& problem, const PowerOfGroup& group);
// Banner and group, at the top of each screen of an explanation.
void ShowTask(const PowerOfGroup& group);
// How an explanation begins: the group written out, then factor by factor in the table.
void ExplainFactorByFactor(const PowerOfGroup& group);
// A screen with the answer under the group.
void BeginCheck(const PowerOfGroup& group);
// The inner exponents of each letter added.
void CheckExponents(const PowerOfGroup& group);

}  // namespace course::powers
