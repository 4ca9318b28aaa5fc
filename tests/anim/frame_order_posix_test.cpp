// The order of the frames on a disk that is full and in a folder without rights: one line, and nothing has changed.
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
  const auto before = support::NamesIn(folder / "a");
  const FrameRow seen(names);
  FrameNavigation navigation(surroundings);
  FrameOrder order(surroundings, navigation);
  {
    const support::FullDisk disk(5000);
    for (const std::string& word : {order.Insert(seen, 1), order.Duplicate(seen, 1), order.Delete(seen, 1)}) {
      EXPECT_NE(word.find("File too large"), std::string::npos) << word;
    }
  }
  for (const fs::path& place : {folder.Path(), folders.Root(), folders.Backup()}) permissions(place, fs::perms::all);
  permissions(folder / "a",
              fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec);
  const auto holds = support::HoldsForOrdinaryUser([&] {
    return order.Move(seen, 1, 2).starts_with("NOT DONE: Permission denied: ") &&
           order.Insert(seen, 1).starts_with("NOT DONE: Permission denied: ") &&
           order.Delete(seen, 1).starts_with("NOT DONE: Permission denied: ");
  });
  permissions(folder / "a", fs::perms::all);
  EXPECT_EQ(support::NamesIn(folder / "a"), before);
  if (!holds) GTEST_SKIP() << "this user cannot become an ordinary one";
  EXPECT_TRUE(*holds);
}

}  // namespace
}  // namespace kelvo::anim
#endif
