// The worked explanation of a linear equation or inequality: the statement is rewritten above, step
// under step, and a white box below tells what is done, why we may, and what it gives.
//
// It adds opposite terms to both sides until the letter's term stands alone, divides by its
// coefficient, checks, and ends at the right choice.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/families/equations/equation_sheet.h"

namespace course::equations {

// The statement's terms in the places of a row, and a term that is added to both sides.
SheetRow RowOf(const LinearStatement& statement);
SheetRow AddendRow(const LinearSide& term, const std::string& letter);
// All the rows that the additions of a solution need.
std::vector<SheetRow> RowsOf(const LinearStatement& statement);

// A sheet for its solution over the white box; it begins on row kSheetTop.
inline constexpr double kSheetTop = 5.5;
EquationSheet SheetFor(const LinearStatement& statement);

// The white box at the foot of the screen: 38 columns and 7 rows of text.
void OpenWordBox();
// Wipes the box and writes a new paragraph, if any; a further one stands half a row lower.
void SayAnew(const std::string& paragraph);
void SayMore(const std::string& paragraph);
void SayBullet(const std::string& text);
// The statement with a value in place of the letter, worked out line by line; the verdict, if any,
// stands behind the last one.
void SaySubstituted(const LinearStatement& statement, int value, const std::string& verdict = "");

// Explains from the banner to the right choice, page by page.  The solution of an equation has to
// be whole.
void ExplainLinear(const LinearStatement& statement, const Problem& problem);

}  // namespace course::equations
