#pragma once
// The one way the windows show a message: as a modal box of the machine (platform.h).
#include "core/message.h"

namespace orrivane::platform {

// Shows the message with its title, text, buttons and icon, and answers the button pressed:
// vbOK, vbCancel, vbYes or vbNo. The empty message (a procedure's "nothing to tell") shows
// nothing and answers 0.
int Show_Message(const Message& message);

}  // namespace orrivane::platform
