#include "platform/message_box.h"

#include "platform/platform.h"

namespace orrivane::platform {

int Show_Message(const Message& message) {
  if (message.empty()) return 0;
  return Machine().Message_Box(message.text, message.buttons, message.icon, message.title);
}

}  // namespace orrivane::platform
