#include "organizer/log_file_name.h"

#include "core/text.h"

namespace orrivane::organizer {

namespace {

constexpr char kFolderSeparator = '/';  // the one Join_Path (core/sequential_file.h) joins with

}  // namespace

std::string Log_File_Name(std::string name) { return text::With_Extension(name, kLogFileExtension); }

std::string Log_Folder(std::string folder) {
  if (folder.empty() || folder.back() != kFolderSeparator) folder += kFolderSeparator;
  return folder;
}

}  // namespace orrivane::organizer
