// The worked explanation of a linear equation or inequality: the statement is rewritten above, step
// under step, and a white box below tells what is done, why we may, and what it gives.
//
// It adds opposite terms to both sides until the letter's term stands alone, divides by its
// coefficient, checks, and ends at the right choice.  ExplainLinear explains every statement of the
// machine; the other routines also serve the teaching screens of its lessons:
//
//   const LinearStatement equation = {"x", {3, 4}, "=", {0, 19}};
//   EquationSheet sheet = SheetFor(equation);
//   WriteStatement(sheet, equation);            // 3x + 4 = 19
//   OpenWordBox();                              // then SayInBox, SayInBoxAnew
//   WriteAddition(sheet, AdditionsOf(equation)[0]);       // - 4 slides in, and 3x = 15
//   WriteDivision(sheet, IsolatedOf(equation), "=");      // both sides over 3
//   sheet.WriteSolved("x", "=", "5");
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/families/equations/equation_sheet.h"

namespace course::equations {

// --- The sheet -----------------------------------------------------------------------------------

// The statement's terms in the places of a row, and a term that is added to both sides.
SheetRow RowOf(const LinearStatement& statement);
SheetRow AddendRow(const LinearSide& term, const std::string& letter);
// All the rows that the additions of a solution need.
std::vector<SheetRow> RowsOf(const LinearStatement& statement);

// A sheet for its solution above the white box; it begins on row kSheetTop.
inline constexpr double kSheetTop = 5.5;
EquationSheet SheetFor(const LinearStatement& statement);
void WriteStatement(EquationSheet& sheet, const LinearStatement& statement);
// The term under each side; what that gives; or both.
void WriteAddend(EquationSheet& sheet, const Addition& addition);
void WriteSum(EquationSheet& sheet, const Addition& addition);
void WriteAddition(EquationSheet& sheet, const Addition& addition);
// Both sides over the coefficient; a blank relation leaves its place free.
void WriteDivision(EquationSheet& sheet, const LinearStatement& isolated,
                   const std::string& relation);

// Prints the question's first line and the statement, its relation in column kRelationCol; the
// answer boxes fit from row 11 on.
void ShowStatement(const LinearStatement& statement, const Problem& problem);

// --- The white box -------------------------------------------------------------------------------

// At the foot of the screen, under a sheet: 38 columns and 7 rows of text.
void OpenWordBox();
void SayBullet(const std::string& text);
// The statement with a value in place of the letter, worked out line by line (one to three); behind
// the last one stands "true" or "false".
void SaySubstituted(const LinearStatement& statement, int value);

// --- The explanation -----------------------------------------------------------------------------

// Explains from the banner to the right choice, page by page.  The solution of an equation has to
// be whole.
void ExplainLinear(const LinearStatement& statement, const Problem& problem);

}  // namespace course::equations
