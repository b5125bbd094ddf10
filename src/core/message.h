#pragma once
// A modal message of the program: its title, its text, the buttons it offers and its icon. The
// core answers messages as values and never shows one; the windows show them through the one
// way the platform gives (platform/message_box.h).
//
// Fixed messages are kept as tables of {code, message}, one table a procedure that answers codes:
//
//     const CodedMessage kMessages[] = {
//         {1, Exclamation_Message("No Month Selected", "A month must be selected.")},
//     };
//     Message Entry_Message(int status) { return Message_Of(kMessages, status); }
#include <span>
#include <string>
#include <utility>

namespace orrivane {

// Button sets, icons and answers of a message box, numbered as the program numbers them.
enum MessageButtons : int { vbOKOnly = 0, vbOKCancel = 1, vbYesNoCancel = 3, vbYesNo = 4 };
enum MessageIcon : int { vbNoIcon = 0, vbCritical = 16, vbQuestion = 32, vbExclamation = 48, vbInformation = 64 };
enum MessageAnswer : int { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

// The carriage return that breaks the text of a message in two: "\r" (CR, 13), alone, with no
// line feed. Texts embed it as it stands.
inline constexpr char kCarriageReturn[] = "\r";

struct Message {
  std::string title;
  std::string text;
  int buttons = vbOKOnly;
  int icon = vbNoIcon;

  // Nothing to show: no title and no text.
  bool empty() const { return title.empty() && text.empty(); }
  friend bool operator==(const Message&, const Message&) = default;
};

// The common message: an exclamation icon and one OK button.
inline Message Exclamation_Message(std::string title, std::string text) {
  return {std::move(title), std::move(text), vbOKOnly, vbExclamation};
}

// A row of a message table: the code a procedure answers and the message that tells it.
struct CodedMessage {
  int code;
  Message message;
};

// The message of `code` in a table; the empty message when no row has that code.
Message Message_Of(std::span<const CodedMessage> table, int code);

}  // namespace orrivane
