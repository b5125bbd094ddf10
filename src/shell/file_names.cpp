#include "shell/file_names.h"

namespace orrivane::shell {

namespace {

constexpr std::string_view kForbiddenCharacters = "\\/:*?\"<>|";

}  // namespace

int File_Name_Validity_Check(std::string_view FileName) {
  return FileName.find_first_of(kForbiddenCharacters) == std::string_view::npos ? 1 : 0;
}

Message Invalid_File_Name_Message() {
  // The list leaves the question mark out, though the check refuses it; the message is kept so.
  return {"Rename", "A file name cannot contain any of the following characters:\r\\/:*\"<>|", vbOKOnly, vbCritical};
}

}  // namespace orrivane::shell
