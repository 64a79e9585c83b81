// What a student does about a screen with too many dots an inch, for his system: the text of the
// alert, and the page that is printed.
#pragma once

#include <string>

#include "platform/printer.h"

namespace course {

inline constexpr int kDpiVersions = 3;  // 1 Windows XP, 2 Windows Vista, 3 Windows 7

// "Windows XP"; a version outside 1 to 3 stops the program, here and below.
std::string DpiVersionName(int version);
// The version that session.gWindowsVersionName tells, 0 for another system.
int DpiVersionOf(const std::string& windowsVersionName);
// What the alert says before a version is chosen (0) and when one is.
std::string DpiAlertText(int version);
// One page in "Courier New"; the words to look for are bold.
platform::PrintDocument DpiInstructions(int version);

}  // namespace course
