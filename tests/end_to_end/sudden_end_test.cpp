// Unsaved work outlives every way in which the program can end without asking.
#include "program_test.h"

namespace kelvo::end_to_end {
namespace {

constexpr std::size_t kBackgroundInFile = 2049;

class SuddenEnd : public ProgramTest {
 protected:
  SuddenEnd() {
    picture = support::RandomPicture(1);
    picture.BackgroundColour = {};
  }
  // Chooses the next background colour from the menu.
  void ChangePicture() {
    Hands("key alt+p sleep 0.2 key b sleep 0.2 " + downs + "key Return sleep 0.5");
    downs += "key Down sleep 0.05 ";
  }
  void EndBy(int signal) {
    program->Signal(signal);
    program->Wait();
  }
  static int BackgroundIn(const std::filesystem::path& kept) {
    const auto bytes = support::ReadFile(kept);
    return bytes.size() > kBackgroundInFile ? bytes[kBackgroundInFile] : -1;
  }

  std::filesystem::path copy_file = folder / "bin/BACKUP/recovery_1.kvp";
  std::string downs = "key Down sleep 0.05 ";
};

TEST_F(SuddenEnd, LeavesWorkThatIsOfferedAndSavedAtTheNextStart) {
  ChangePicture();
  EndBy(SIGKILL);
  EXPECT_EQ(BackgroundIn(copy_file), 1);

  Start();
  EndBy(SIGTERM);  // while the question is open: it is asked again
  EXPECT_EQ(BackgroundIn(copy_file), 1);

  Start();
  Hands("key alt+y sleep 0.5");
  EXPECT_EQ(BackgroundIn(copy_file), 1);  // it stays until the work is saved
  ChangePicture();
  ChangePicture();  // within the minute that no copy is written in
  EndBy(SIGTERM);
  EXPECT_EQ(BackgroundIn(copy_file), 3);

  Start();
  Hands("key alt+y sleep 0.5 key ctrl+s sleep 0.5");
  EXPECT_EQ(BackgroundIn(file), 3);
  EXPECT_FALSE(exists(copy_file));
}

TEST_F(SuddenEnd, ALostDisplayLeavesTheLatestWork) {
  ChangePicture();
  ChangePicture();
  server->Signal(SIGTERM);
  program->Wait();
  EXPECT_EQ(BackgroundIn(copy_file), 2);
}

}  // namespace
}  // namespace kelvo::end_to_end
