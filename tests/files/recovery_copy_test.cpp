#include "files/recovery_copy.h"

#include <gtest/gtest.h>

#include "app/whole_file.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

namespace kelvo::files {
namespace {

using std::chrono::seconds;

class RecoveryCopyTest : public testing::Test {
 protected:
  RecoveryCopyTest() { folders.Create(); }
  void Paint(std::uint8_t byte) { document.picture.Bitmap[1] = byte; }
  // The byte that Paint() writes, as the copy has it; -1 without a copy.
  int Kept() const {
    const auto kept = files.Read();
    return kept ? kept->picture.Bitmap[1] : -1;
  }

  support::TempFolder folder;
  app::ProgramFolders folders{folder / "program"};
  RecoveryFiles files{folders, 3};
  Document document;
  RecoveryCopy copy{document, files};
  RecoveryCopy::Time now{seconds(1000)};
};

TEST_F(RecoveryCopyTest, IsWrittenAtMostOnceAMinuteWhileTheWorkChanges) {
  copy.Keep(now);
  EXPECT_EQ(Kept(), -1);
  Paint(1);
  copy.Keep(now += seconds(1));
  EXPECT_EQ(Kept(), 1);
  Paint(2);
  copy.Keep(now += seconds(59));
  EXPECT_EQ(Kept(), 1);
  copy.Keep(now += seconds(1));
  EXPECT_EQ(Kept(), 2);
  const auto written = last_write_time(files.picture);
  copy.Keep(now += seconds(100));
  EXPECT_EQ(last_write_time(files.picture), written);
  remove_all(folders.Root());
  Paint(3);
  EXPECT_THROW(copy.Keep(now), app::FileError);
  folders.Create();
  copy.Keep(now += seconds(59));  // a failed write is tried again a minute later
  EXPECT_EQ(Kept(), -1);
  copy.Keep(now += seconds(1));
  EXPECT_EQ(Kept(), 3);
}

TEST_F(RecoveryCopyTest, KnowsItsFileAndGoesWithTheWork) {
  document.file = SetFileParameters("/art/\u00e4 b.kvp");
  Paint(1);
  copy.Keep(now);
  EXPECT_EQ(files.Read()->file.CurrentFilePath, "/art/\u00e4 b.kvp");
  document.kept = document.picture;  // as a save does
  copy.Keep(now);
  EXPECT_FALSE(exists(files.picture) || exists(files.name));
  Paint(2);
  copy.KeepNow();
  EXPECT_EQ(Kept(), 2);
  resize_file(files.picture, 10049);  // a damaged copy is none
  EXPECT_EQ(Kept(), -1);
  document.kept = document.picture;
  copy.KeepNow();
  EXPECT_FALSE(exists(files.picture) || exists(files.name));
}

}  // namespace
}  // namespace kelvo::files
