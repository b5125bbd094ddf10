#pragma once
// What the file windows know of a file name before anything is written: the characters that no
// name may hold, and the message that refuses such a name.
#include <string_view>

#include "core/message.h"

namespace orrivane::shell {

// 1 when the name holds none of the nine characters \ / : * ? " < > |, else 0.
int File_Name_Validity_Check(std::string_view FileName);

// The message that refuses a name for which File_Name_Validity_Check answers 0. It lists eight
// of the nine characters: the question mark is refused without being named. A line break in its
// text is the character 13.
Message Invalid_File_Name_Message();

}  // namespace orrivane::shell
