// frmCorrect: the verdict on an answer, and what the student wants next.
#pragma once

namespace course {

enum class Verdict { None, Correct, Incorrect };

// Shows the dialog modally, without a verdict at the end of an explanation, and returns with the
// wish in session.gMode: 1 the same problem, 2 a different one, 3 its explanation, 5 leave.  There
// is no other way out of it.
void ShowResultForm(Verdict verdict);

}  // namespace course
