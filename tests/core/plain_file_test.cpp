// Files opened by name are plain files: a folder, a pipe, a device or a socket under the name is
// the failure 75 at once, whoever opens it and however. Nothing here may wait: a test that hangs
// is a failure of this kind.
#include "core/plain_file.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "core/runtime_failure.h"
#include "core/sequential_file.h"
#include "core/temp_folder.h"
#include "support/failure_of.h"

namespace orrivane {
namespace {

using testing::Failure_Of;
using testing::Read_Bytes;
using testing::TempFolder;
using testing::Write_Bytes;

constexpr PlainFile::Access kEveryAccess[] = {PlainFile::Access::Read, PlainFile::Access::Write,
                                              PlainFile::Access::Append};

std::string Pipe_In(const TempFolder& folder, const std::string& name) {
  const std::string path = folder.file(name);
  EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0);
  return path;
}

// A socket bound to a name in the folder, kept open for the test.
class Named_Socket {
 public:
  explicit Named_Socket(const std::string& path) : path_(path), socket_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    EXPECT_EQ(::bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0) << path;
  }
  ~Named_Socket() { ::close(socket_); }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  int socket_;
};

// Every way of opening the name ends in the failure 75, and nothing is written there.
void Expect_No_Plain_File(const std::string& path) {
  for (PlainFile::Access access : kEveryAccess) {
    const PlainFile file(path, access);
    EXPECT_FALSE(file.Is_Open()) << path;
    EXPECT_EQ(file.Failure(), kPathFileAccessError) << path;
    EXPECT_EQ(Failure_Of([&] { PlainFile::Open(path, access); }), kPathFileAccessError) << path;
  }
  EXPECT_EQ(Failure_Of([&] { Read_Plain_File(path); }), kPathFileAccessError) << path;
  EXPECT_EQ(Failure_Of([&] { SequentialReader reader(path); }), kPathFileAccessError) << path;
  EXPECT_EQ(Failure_Of([&] { SequentialWriter writer(path); }), kPathFileAccessError) << path;
  EXPECT_EQ(Failure_Of([&] { SequentialWriter writer(path, SequentialWriter::Mode::Append); }),
            kPathFileAccessError)
      << path;
  EXPECT_EQ(Failure_Of([&] { Empty_File(path); }), kPathFileAccessError) << path;
  EXPECT_FALSE(File_Exists(path)) << path;
}

TEST(PlainFile, APipeWithNobodyAtTheOtherEndIsNoFileAndNothingWaits) {
  TempFolder folder;
  const std::string pipe = Pipe_In(folder, "Schedule.tmp");
  Expect_No_Plain_File(pipe);
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(PlainFile, APipeWithAReaderIsNoFileEitherAndGetsNothing) {
  TempFolder folder;
  const std::string pipe = Pipe_In(folder, "TRemin.tmp");
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  Expect_No_Plain_File(pipe);
  char byte = 0;
  EXPECT_LE(::read(reader, &byte, 1), 0);  // nothing was written into it
  ::close(reader);
}

TEST(PlainFile, AFolderADeviceAndASocketAreNoFiles) {
  TempFolder folder;
  std::filesystem::create_directory(folder.file("week.sdl"));
  Expect_No_Plain_File(folder.file("week.sdl"));
  Expect_No_Plain_File("/dev/null");
  Expect_No_Plain_File("/dev/zero");  // would read for ever
  const Named_Socket socket(folder.file("list.dte"));
  Expect_No_Plain_File(socket.path());
}

TEST(PlainFile, ALinkToAPipeIsNoFileButALinkToAFileIsThatFile) {
  TempFolder folder;
  std::filesystem::create_symlink(Pipe_In(folder, "pipe"), folder.file("link"));
  Expect_No_Plain_File(folder.file("link"));
  Write_Bytes(folder.file("plain"), "\"x\"\r\n");
  std::filesystem::create_symlink(folder.file("plain"), folder.file("to plain"));
  EXPECT_EQ(Read_Plain_File(folder.file("to plain")), "\"x\"\r\n");
}

TEST(PlainFile, AMissingFileIsNotFoundForReadingAndMadeForWriting) {
  TempFolder folder;
  EXPECT_EQ(PlainFile(folder.file("none"), PlainFile::Access::Read).Failure(), kFileNotFound);
  EXPECT_EQ(Failure_Of([&] { Read_Plain_File(folder.file("none")); }), kFileNotFound);
  EXPECT_EQ(PlainFile(folder.file("no folder/file"), PlainFile::Access::Write).Failure(), kPathFileAccessError);
  PlainFile made(folder.file("made"), PlainFile::Access::Write);
  EXPECT_TRUE(made.Is_Open());
  EXPECT_EQ(made.Failure(), 0);
  EXPECT_TRUE(made.Close());
  EXPECT_TRUE(std::filesystem::is_regular_file(folder.file("made")));
}

TEST(PlainFile, WritingEmptiesOrAppendsAndLongTextsArriveWhole) {
  TempFolder folder;
  const std::string path = folder.file("file");
  Write_Bytes(path, "old");
  {
    PlainFile file(path, PlainFile::Access::Write);
    const std::string long_text(200'000, 'x');
    EXPECT_TRUE(file.Write(long_text));
    EXPECT_TRUE(file.Write("\r\n"));
  }  // closed by its end
  EXPECT_EQ(Read_Bytes(path).size(), 200'002u);
  {
    PlainFile file(path, PlainFile::Access::Write);
    EXPECT_TRUE(file.Write("a"));
    EXPECT_TRUE(file.Close());
    EXPECT_TRUE(file.Close());  // once closed, closing again is nothing
  }
  PlainFile more(path, PlainFile::Access::Append);
  EXPECT_TRUE(more.Write("b"));
  PlainFile moved = std::move(more);
  EXPECT_FALSE(more.Is_Open());  // NOLINT(bugprone-use-after-move): a moved-from file holds nothing
  EXPECT_TRUE(moved.Close());
  EXPECT_EQ(Read_Plain_File(path), "ab");
}

// A file may not grow beyond this for the length of one test: the disk is full for it.
class Full_Disk {
 public:
  explicit Full_Disk(rlim_t largest) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    previous_handler_ = std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead of ending the process
    rlimit limit = before_;
    limit.rlim_cur = largest;
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~Full_Disk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, previous_handler_);
  }

 private:
  rlimit before_{};
  void (*previous_handler_)(int) = nullptr;
};

TEST(PlainFile, AWriteThatTheDiskRefusesIsToldAtTheLatestByClose) {
  TempFolder folder;
  const Full_Disk full(10);
  PlainFile small(folder.file("small"), PlainFile::Access::Write);
  EXPECT_TRUE(small.Write(std::string(100, 'x')));  // held back
  EXPECT_FALSE(small.Close());
  PlainFile large(folder.file("large"), PlainFile::Access::Write);
  EXPECT_FALSE(large.Write(std::string(100'000, 'x')));
  EXPECT_FALSE(large.Write("more"));
  EXPECT_FALSE(large.Close());
  SequentialWriter writer(folder.file("log"));
  EXPECT_EQ(Failure_Of([&] {
              for (int i = 0; i < 10'000; ++i) writer.Write_Line({Value("a long enough line of the log")});
            }),
            kDeviceIOError);
}

}  // namespace
}  // namespace orrivane
