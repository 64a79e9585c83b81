// The reminders of a lesson: a picture of the rules beside a practice problem, and a small window
// of hints.
#pragma once

namespace course {

// Beside the problem, in image box 1, while the student wants the rules and gMode is practice;
// hides it otherwise.  A lesson calls it in ShowProblem, before picAnswerSetParameters; its
// OffersRules returns true.  image is a number of display/images.h.
void ShowRulesPicture(int image, double row = 6, double col = 23);

// The button that offers them, with the caption that fits: at each new page of a lesson that has
// rules, in practice alone.
void ShowRulesButton();
// Shows or hides the rules: the same problem is drawn anew, as a retry.
void cmdShowRulesandReminders_Click();

// The hints of the second route in frmRulesAndHints.  A script that has some shows the button
// cmdShowRulesAndHints after Header.
void cmdShowRulesAndHints_Click();
// Closes frmRulesAndHints, if it is open, and hides the button: at each new page.
void UnloadRulesAndHints();

// The clicks of both, and of the list of rules; called once when the lesson window is loaded.
void BindRules();

}  // namespace course
