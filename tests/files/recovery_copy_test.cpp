// The copy of unsaved work: when it is written, what it knows, and when it goes.
#include "files/recovery_copy.h"

#include <gtest/gtest.h>

#include "app/whole_file.h"
#include "support/program.h"

namespace kelvo::files {
namespace {

using std::chrono::seconds;

class RecoveryCopyTest : public testing::Test, protected support::Program {
 protected:
  void Paint(std::uint8_t byte) { document.picture.Bitmap[1] = byte; }
  // The byte that Paint() writes, as the copy has it; -1 without a copy.
  int Kept() const {
    const auto kept = recovery.Read();
    return kept ? kept->picture.Bitmap[1] : -1;
  }

  RecoveryCopyTest() { copy.AddPlace(recovery); }

  RecoveryFiles recovery{folders.Backup(), 3};
  RecoveryCopy copy{document};
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
  const auto written = last_write_time(recovery.picture);
  copy.Keep(now += seconds(100));
  EXPECT_EQ(last_write_time(recovery.picture), written);
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
  EXPECT_EQ(recovery.Read()->file.CurrentFilePath, "/art/\u00e4 b.kvp");
  document.file = SetFileParameters("b.kvp");  // it was renamed
  copy.Keep(now);
  EXPECT_EQ(recovery.Read()->file.CurrentFilePath, "b.kvp");
  document.kept = document.picture;  // as a save does
  copy.Keep(now);
  EXPECT_FALSE(exists(recovery.picture) || exists(recovery.name));
  Paint(2);
  copy.Keep(now += seconds(1));  // new work is safe at once
  EXPECT_EQ(Kept(), 2);
  resize_file(recovery.picture, 10049);  // a damaged copy is none
  EXPECT_EQ(Kept(), -1);
  document.kept = document.picture;
  copy.KeepNow();
  EXPECT_FALSE(exists(recovery.picture) || exists(recovery.name));
}

}  // namespace
}  // namespace kelvo::files
