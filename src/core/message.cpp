#include "core/message.h"

namespace orrivane {

Message Message_Of(std::span<const CodedMessage> table, int code) {
  for (const CodedMessage& row : table) {
    if (row.code == code) return row.message;
  }
  return {};
}

}  // namespace orrivane
