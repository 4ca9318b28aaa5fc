// Disks, folders, clocks and other programs that misbehave: a clear message, the old file or the new one whole, and the
// picture in memory as it was.
#include <gtest/gtest.h>

#ifdef __linux__
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <set>
#include <thread>

#include "app/whole_file.h"
#include "files/backups.h"
#include "files/recovery_copy.h"
#include "support/faulty_disk.h"
#include "support/program.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;

class DiskFaults : public testing::Test, protected support::Program {
 protected:
  DiskFaults() { fs::create_directory(art); }

  // Every byte is `value`, so that a file of two halves would tell.
  static void Fill(model::PictureImage& picture, std::uint8_t value) {
    picture.Bitmap.fill(value);
    picture.ScreenMemory.fill(value);
    picture.ColourMemory.fill(value);
  }
  void Paint(std::uint8_t value) { Fill(document.picture, value); }
  // The value that the whole picture in a file was painted with; -1 for a file that is none or no whole one.
  static int PaintedIn(const fs::path& file) {
    const app::Bytes bytes = support::ReadFile(file);
    if (bytes.size() != 10050) return -1;
    model::PictureImage expected;
    Fill(expected, bytes.back());
    Sign(expected);
    return bytes == Encode(expected) ? bytes.back() : -1;
  }
  bool SavePainted(std::uint8_t value) {
    Paint(value);
    messages.shown.clear();
    return files.SaveTo(app::TextFromPath(file));
  }
  // A save of `value` that cannot be: it is told with its reason, and all is as it was.
  bool IsRefusedPlainly(std::uint8_t value, std::string_view reason) {
    if (SavePainted(value)) return false;
    const bool is_told = messages.shown.size() == 1 && messages.shown[0].find(reason) != std::string::npos &&
                         messages.shown[0].find("pic.kvp") != std::string::npos;
    return is_told && document.picture.Bitmap[1] == value && document.HasUnsavedWork() &&
           document.file.CurrentFilePath == app::TextFromPath(file);
  }
  // Runs `work` in a program of its own, until it is killed or done.
  static pid_t Start(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child != 0) return child;
    work();
    _exit(0);
  }

  fs::path art = folder / "art", file = art / "pic.kvp";
};

TEST_F(DiskFaults, ASaveKilledAtAnyMomentLosesNoStateAndLeavesNoLitter) {
  RecoveryCopy copy(document);
  copy.AddPlace(RecoveryFiles(folders.Backup(), 1));
  std::mt19937 random(20260203);
  int saves = 0;
  for (int round = 0; round < 100; ++round) {
    fs::remove(file);  // else what the one before wrote is another program's
    fs::remove_all(folders.Backup());
    folders.Create();
    SavePainted(2);
    ASSERT_EQ(support::NamesIn(art).size(), 1U);
    const pid_t child = Start([&] {
      for (std::uint8_t value = 3;; ++value) {
        Paint(value);
        copy.KeepNow();
        SavePainted(value);
      }
    });
    usleep(static_cast<useconds_t>(random() % 60000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    fs::remove(folders.Snapshot());  // as the next start does
    std::set<int> states{PaintedIn(file)};
    for (const auto& backup : fs::directory_iterator(folders.Backup())) {
      const fs::path ending = backup.path().extension();
      if (ending == ".prg" || ending == ".kvp") states.insert(PaintedIn(backup.path()));
    }
    ASSERT_FALSE(states.contains(-1));  // a torn file
    for (int value = PaintedIn(file) - 1; value >= 2; --value) ASSERT_TRUE(states.contains(value)) << value;
    saves += PaintedIn(file) - 2;
  }
  EXPECT_GT(saves, 20);
}

TEST_F(DiskFaults, AFullDiskKeepsTheOldFile) {
  EXPECT_TRUE(SavePainted(1));
  std::optional<support::FullDisk> disk(5000);
  EXPECT_TRUE(IsRefusedPlainly(2, "File too large"));
  disk.reset();
  EXPECT_EQ(PaintedIn(file), 1);
  EXPECT_EQ(support::NamesIn(art).size(), 1U);  // no temporary file
  EXPECT_TRUE(files.Save());
  EXPECT_EQ(PaintedIn(file), 2);
}

TEST_F(DiskFaults, ABackupFolderThatTakesNothingDoesNotKeepFromSaving) {
  EXPECT_TRUE(SavePainted(1));
  fs::remove_all(folders.Backup());
  support::WriteText(folders.Backup(), "a file where the folder should be");
  EXPECT_TRUE(SavePainted(2));
  EXPECT_EQ(PaintedIn(file), 2);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_TRUE(messages.shown[0].starts_with("The picture is saved, but its backup could not be made.\n"));
}

TEST_F(DiskFaults, AFolderOrFileWithoutRightsKeepsTheOldFile) {
  SavePainted(1);
  for (const fs::path& place : {folder.Path(), folders.Root(), folders.System(), folders.Backup()}) {
    permissions(place, fs::perms::all);
  }
  constexpr fs::perms kRead = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read,
                      kEnter = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  for (const auto& [folder_rights, file_rights] :
       {std::pair{kRead | kEnter, fs::perms::all}, {fs::perms::all, kRead}, {kRead, kRead}}) {
    permissions(file, file_rights);
    permissions(art, folder_rights);
    const auto holds = support::HoldsForOrdinaryUser([&] { return IsRefusedPlainly(2, "Permission denied"); });
    permissions(art, fs::perms::all);
    if (!holds) GTEST_SKIP() << "this user cannot become an ordinary one";
    EXPECT_TRUE(*holds);
    EXPECT_EQ(PaintedIn(file), 1);
    EXPECT_EQ(support::NamesIn(art).size(), 1U);
  }
}

TEST_F(DiskFaults, AFileThatShrinksWhileItIsReadIsReadWholeOrNotAtAll) {
  SavePainted(1);
  const app::Bytes whole = support::ReadFile(file);
  const std::jthread other_program([&](const std::stop_token& done) {
    while (!done.stop_requested()) {
      fs::resize_file(file, 5000);
      support::WriteFile(file, whole);
      usleep(20);  // the reader has its chance too
    }
  });
  for (int round = 0; round < 1000; ++round) {
    Paint(2);
    document.kept = document.picture;
    const bool opened = files.OpenPicture(app::TextFromPath(file));
    ASSERT_EQ(document.picture.Bitmap[4000], opened ? 1 : 2);
    ASSERT_EQ(document.picture.Bitmap[7999], opened ? 1 : 2);
  }
}

TEST_F(DiskFaults, TwoProgramsOnOneFolderSaveAndLogWholly) {
  constexpr int kRounds = 40;
  const std::string long_line(20000, 'x');
  messages.yes = true;  // each replaces what the other one saved
  std::array<pid_t, 2> programs{};
  for (pid_t& program : programs) {
    program = Start([&] {
      for (std::uint8_t value = 1; value <= kRounds; ++value) {
        SavePainted(value);
        Backups(folders, clock).Keep(support::CountingBytes(10), "many", "", ".kept");
        log.Write(long_line);
      }
    });
  }
  for (const pid_t program : programs) waitpid(program, nullptr, 0);
  EXPECT_EQ(PaintedIn(file), kRounds);
  EXPECT_NE(PaintedIn(folders.Snapshot()), -1);
  int kept = 0;
  for (const std::string& name : support::NamesIn(folders.Backup())) {
    const bool is_kept = name.ends_with(".kept");
    kept += is_kept ? 1 : 0;
    EXPECT_TRUE(is_kept || name == "backups.txt" || PaintedIn(folders.Backup() / name) != -1) << name;
  }
  EXPECT_EQ(kept, 2 * kRounds);
  EXPECT_EQ(support::NamesIn(art).size(), 1U);
  std::string expected;
  for (int line = 0; line < 2 * kRounds; ++line) expected += "260203 09:07:05 " + long_line + "\n";
  EXPECT_TRUE(support::ReadText(folders.ErrorLogFile()) == expected);
}

}  // namespace
}  // namespace kelvo::files
#endif
