// The order of the frames on a disk that is full and in a folder without rights: one line, and nothing has changed. And
// the rights of frames.
#include <gtest/gtest.h>

#ifdef __linux__

#include "anim/frame_order.h"
#include "files/picture_format.h"
#include "support/faulty_disk.h"
#include "support/program.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

class FrameOrderOnABadDisk : public testing::Test, protected support::Program {};

TEST_F(FrameOrderOnABadDisk, ChangesNothing) {
  fs::create_directory(folder / "a");
  settings.Write(kFolder, Text("a/"));
  const FrameNames names(ReadAnimProperties(settings));
  for (const int number : {1, 2}) support::WriteFile(names.Path(number), files::Encode({}));
  const FrameRow seen(names);
  FrameNavigation navigation(surroundings);
  FrameOrder order(surroundings, navigation);
  const auto all_fail = [&](std::string_view why) {
    const support::Lines words{order.Move(seen, 1, 2), order.Insert(seen, 1), order.Delete(seen, 1)};
    return std::all_of(words.begin(), words.end(), [why](auto& word) { return word.find(why) != std::string::npos; });
  };
  {
    const support::FullDisk disk(5);
    EXPECT_TRUE(all_fail("File too large"));
  }
  for (const fs::path& place : {folder.Path(), folders.Root(), folders.Backup()}) permissions(place, fs::perms::all);
  permissions(folder / "a", fs::perms::others_read | fs::perms::others_exec);
  const auto holds = support::HoldsForOrdinaryUser([&] { return all_fail("Permission denied"); });
  permissions(folder / "a", fs::perms::all);
  EXPECT_EQ(support::NamesIn(folder / "a"), (support::Lines{"anim0001.kvp", "anim0002.kvp"}));
  if (!holds) GTEST_SKIP() << "this user cannot become an ordinary one";
  EXPECT_TRUE(*holds);
}

TEST_F(FrameOrderOnABadDisk, ACopyHasTheRightsOfItsFrame) {
  settings.Write(kFolder, Text(""));
  const FrameNames names(ReadAnimProperties(settings));
  constexpr auto kRights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
  support::WriteFile(names.Path(1), files::Encode({}));
  permissions(names.Path(1), kRights);
  FrameNavigation navigation(surroundings);
  FrameOrder order(surroundings, navigation);
  for (const int number : {1, 2}) {  // from the disk, then from memory
    (void)order.Duplicate(FrameRow(names), number);
    EXPECT_EQ(fs::status(names.Path(number + 1)).permissions(), kRights) << number;
  }
}

}  // namespace
}  // namespace kelvo::anim
#endif
