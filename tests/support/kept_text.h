// Kept texts: what a person reads is compared with the text that was read and kept.
#pragma once

#include <string>

namespace course::testing {

// Compares with a file, its name from the repository's root.  With the option, such as
// COURSE_BLESS, set to 1 in the environment the kept text is renewed instead.
void ExpectKept(const std::string& text, const std::string& file, const char* option);

}  // namespace course::testing
