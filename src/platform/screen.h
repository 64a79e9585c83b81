// What the screen is like.
#pragma once

#include <string>

namespace platform {

int ScreenDotsPerInch();  // logical
int ScreenWidth();        // device-independent pixels
// "XP", "VISTA", "7", or "NOTA" for any other system.
std::string SystemVersion();

enum class MousePointer { Default, Hourglass };
void SetMousePointer(MousePointer pointer);

}  // namespace platform
