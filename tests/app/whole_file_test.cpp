// Files that are there whole, the old one or the new one, whatever happens while they are written.
#include "app/whole_file.h"

#include <gtest/gtest.h>

#include "support/pictures.h"
#include "support/temp_folder.h"

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#endif

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

TEST(WholeFile, RefusesWhatIsNoOrdinaryFile) {
  const support::TempFolder folder;
  EXPECT_THROW(ReadWholeFile(folder.Path(), 10), FileError);
  EXPECT_THROW(WriteWholeFile(folder.Path(), Bytes{1}), FileError);
  WriteWholeFile(folder / "long", Bytes(11));
  EXPECT_THROW(ReadWholeFile(folder / "long", 10), FileError);
  EXPECT_EQ(ReadWholeFile(folder / "long", 11).size(), 11U);
#ifndef _WIN32
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_THROW(ReadWholeFile(folder / "pipe", 10), FileError);  // and does not wait for a writer
#endif
}

#ifndef _WIN32
TEST(WholeFile, WritesThroughALinkAndKeepsRights) {
  const support::TempFolder folder;
  WriteWholeFile(folder / "real", Bytes{1});
  fs::permissions(folder / "real", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink(folder / "real", folder / "link");
  WriteWholeFile(folder / "link", Bytes{2, 3});
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(support::ReadFile(folder / "real"), (Bytes{2, 3}));
  EXPECT_EQ(fs::status(folder / "real").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(WholeFile, AWriteThatFailsMidwayLeavesTheOldFile) {
  const support::TempFolder folder;
  WriteWholeFile(folder / "picture", Bytes(100, 7));
  const auto previous = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit small = before;
  small.rlim_cur = 5000;  // the disk is full after 5000 bytes
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_THROW(WriteWholeFile(folder / "picture", Bytes(10050, 8)), FileError);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, previous);
  EXPECT_EQ(support::ReadFile(folder / "picture"), Bytes(100, 7));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}
#endif

}  // namespace
}  // namespace kelvo::app
