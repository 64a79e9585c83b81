// Dialogs as the toolkit shows them, without asking a test's user: for the .cpp files of this
// folder alone.
#pragma once

#include "platform/dialogs.h"

namespace platform {

// Shows the message to the person and returns his answer.
Answer ShowMessage(const Message& message);

// Without a screen a dialog would wait for ever.
bool NobodyIsThere();

}  // namespace platform
