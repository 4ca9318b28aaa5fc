// The order of the frames on the disk: changes against a plain model, and changes that fail or are ended in the middle.
#include "anim/frame_order.h"

#include <gtest/gtest.h>

#include <map>

#include "app/held_file.h"
#include "app/temporary_name.h"
#include "files/picture_format.h"
#include "support/program.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

using Contents = std::map<int, int>;  // by frame number: which picture its file holds

struct Killed {};

class FrameOrderTest : public testing::Test, protected support::Program {
 protected:
  FrameOrderTest() {
    settings.Write(kFolder, Text("a/"));
    frames = FrameNames(ReadAnimProperties(settings));
  }
  void Begin(const Contents& contents, int current) {
    fs::remove_all(folder / "a");
    fs::create_directory(folder / "a");
    for (const auto& [number, id] : contents) {
      model::PictureImage picture;
      Paint(picture, id);
      support::WriteFile(frames.Path(number), files::Encode(picture));
    }
    document.kept = document.picture;
    navigation.Refresh();
    (void)navigation.GoTo(std::to_string(current));
  }
  static void Paint(model::PictureImage& picture, int id) {
    picture.Bitmap[1] = static_cast<std::uint8_t>(id);
    picture.Bitmap[2] = static_cast<std::uint8_t>(id >> 8);
  }
  static int IdIn(const fs::path& file) {
    if (!fs::is_regular_file(file)) return -1;
    const app::Bytes bytes = support::ReadFile(file);
    return bytes.size() == 10050 ? bytes[2050] + 256 * bytes[2051] : -1;
  }
  int IdInMemory() const { return document.picture.Bitmap[1] + 256 * document.picture.Bitmap[2]; }
  // What is in the folder; a file that is no frame has a number below 1.
  Contents OnDisk() const {
    Contents contents;
    for (const std::string& name : support::NamesIn(folder / "a")) {
      if (app::IsTemporaryName(name)) continue;  // swept away with the next save
      contents[frames.NumberOf(name).value_or(-static_cast<int>(contents.size()))] = IdIn(folder / "a" / name);
    }
    return contents;
  }
  FrameRow Seen() const { return FrameRow(frames); }
  // As a program leaves it that ended when it was about to rename a file.
  void WritePlan(const std::string& from) const {
    support::WriteText(folder / "a/.kelvo-frames", '7' + ('\0' + from) + '\0' + "anim0009.kvp");
  }

  FrameNames frames{AnimProperties{}};
  FrameNavigation navigation{surroundings};
  FrameOrder order{surroundings, navigation};
};

std::vector<int> KeysOf(const Contents& contents) {
  std::vector<int> keys;
  for (const auto& [key, id] : contents) keys.push_back(key);
  return keys;
}

void MoveInModel(Contents& model, int from, int to) {
  const std::vector<int> numbers = KeysOf(model);
  std::vector<int> ids;
  for (const auto& [number, id] : model) ids.push_back(id);
  const auto place = [&](int number) { return std::find(numbers.begin(), numbers.end(), number) - numbers.begin(); };
  const int id = model.at(from);
  ids.erase(ids.begin() + place(from));
  ids.insert(ids.begin() + place(to), id);
  for (std::size_t i = 0; i < ids.size(); ++i) model[numbers[i]] = ids[i];
}

void InsertInModel(Contents& model, int number, int id) {
  int gap = number;
  while (model.contains(gap)) ++gap;
  for (; gap > number; --gap) model[gap] = model[gap - 1];
  model[number] = id;
}

void DeleteInModel(Contents& model, int number) {
  for (; model.contains(number + 1); ++number) model[number] = model[number + 1];
  model.erase(number);
}

TEST_F(FrameOrderTest, RandomChangesLeaveWhatAPlainModelSays) {
  Contents model{{1, 1}, {2, 2}, {3, 3}, {5, 5}, {9, 9}, {10, 10}};
  Begin(model, 3);
  std::mt19937 random(20260203);
  const auto any = [&] { return std::next(model.begin(), static_cast<int>(random() % model.size()))->first; };
  for (int made = 1000; made < 1080; ++made) {
    Paint(document.picture, made);  // unsaved, of the current frame
    const int current = *navigation.CurrentFrame(), number = any(), other = any();
    const unsigned kind = model.size() < 4 ? 1 : model.size() > 12 ? 3 : random() % 4;
    const std::string word = kind == 0   ? order.Move(Seen(), number, other)
                             : kind == 1 ? order.Insert(Seen(), number)
                             : kind == 2 ? order.Duplicate(Seen(), number)
                                         : order.Delete(Seen(), number);
    const bool leaves = kind == 1 || kind == 2 || (kind == 3 && number == current);
    if (leaves) model[current] = made;
    if (kind == 0) MoveInModel(model, number, other);
    if (kind == 1) InsertInModel(model, number + 1, made);
    if (kind == 2) InsertInModel(model, number + 1, model.at(number));
    if (kind == 3) DeleteInModel(model, number);
    ASSERT_EQ(OnDisk(), model) << kind << ' ' << number << ' ' << other << ' ' << word;
    const int now = navigation.CurrentFrame().value_or(0);
    ASSERT_TRUE(model.contains(now)) << word;
    ASSERT_EQ(IdInMemory(), leaves ? model.at(now) : made);
    ASSERT_EQ(document.HasUnsavedWork(), !leaves);
  }
  EXPECT_EQ(messages.shown, support::Lines());  // never a question whether to replace a file
}

// What is done to a row of these frames, of which 2 is the current one, and what comes of it.
const Contents kRow{{1, 1}, {2, 2}, {3, 3}, {5, 5}};
struct Deed {
  const char* name;
  std::string (*run)(FrameOrder&, const FrameRow&);
  Contents after;
};
const Deed kDeeds[] = {
    {"move",
     [](FrameOrder& order, const FrameRow& seen) { return order.Move(seen, 5, 1); },
     {{1, 5}, {2, 1}, {3, 2}, {5, 3}}},
    {"insert",
     [](FrameOrder& order, const FrameRow& seen) { return order.Insert(seen, 1); },
     {{1, 1}, {2, 2}, {3, 2}, {4, 3}, {5, 5}}},
    {"duplicate",
     [](FrameOrder& order, const FrameRow& seen) { return order.Duplicate(seen, 3); },
     {{1, 1}, {2, 2}, {3, 3}, {4, 3}, {5, 5}}},
    {"delete", [](FrameOrder& order, const FrameRow& seen) { return order.Delete(seen, 1); }, {{1, 2}, {2, 3}, {5, 5}}},
};

TEST_F(FrameOrderTest, ARenamingThatFailsChangesNothing) {
  for (const Deed& deed : kDeeds) {
    for (int failing = 1;; ++failing) {
      Begin(kRow, 2);
      int renamed = 0;
      FrameOrder faulty(surroundings, navigation, [&](const fs::path& from, const fs::path& to) {
        return ++renamed == failing ? std::make_error_code(std::errc::permission_denied) : app::RenameToNew(from, to);
      });
      const std::string word = deed.run(faulty, Seen());
      if (renamed < failing) {
        EXPECT_EQ(OnDisk(), deed.after) << deed.name;
        EXPECT_GT(failing, 2);
        break;
      }
      EXPECT_TRUE(word.starts_with("NOT DONE: Permission denied: ")) << word;
      EXPECT_EQ(OnDisk(), kRow) << deed.name << failing;
      EXPECT_EQ(navigation.CurrentFrame(), 2);
    }
  }
}

// Ended in the middle, and ended again while that is put right: in the end it is wholly done or not at all.
TEST_F(FrameOrderTest, WhatWasEndedInTheMiddleIsPutRightAtTheNextLook) {
  int left = 0;
  const RenameFile mortal = [&](const fs::path& from, const fs::path& to) {
    if (left-- == 0) throw Killed();
    return app::RenameToNew(from, to);
  };
  const auto is_ended = [&](int after, auto&& work) {
    left = after;
    try {
      work();
      return false;
    } catch (const Killed&) {
      return true;
    }
  };
  for (const Deed& deed : kDeeds) {
    bool first_ends = true;
    for (int first = 0; first_ends; ++first) {
      bool second_ends = true;
      for (int second = 0; second_ends; ++second) {
        Begin(kRow, 2);
        FrameOrder faulty(surroundings, navigation, mortal);
        const FrameRow seen = Seen();
        first_ends = is_ended(first, [&] { (void)deed.run(faulty, seen); });
        second_ends = is_ended(second, [&] { SettleRenaming(folder / "a", mortal); });
        (void)LookAtFrames(frames);
        const Contents now = OnDisk();
        EXPECT_TRUE(now == kRow || now == deed.after) << deed.name << first << second;
      }
    }
    EXPECT_EQ(OnDisk(), deed.after);
  }
}

TEST_F(FrameOrderTest, WhatCannotBeIsRefusedInOneLine) {
  Begin(kRow, 2);
  const FrameRow seen = Seen();
  const std::string not_done = "NOT DONE: ";
  const auto expect = [&](const std::string& word, const std::string& expected, const Contents& contents) {
    EXPECT_TRUE(word.starts_with(expected)) << word;
    EXPECT_EQ(OnDisk(), contents) << expected;
    EXPECT_EQ(navigation.CurrentFrame(), 2);
  };
  fs::create_directory(frames.Path(4));
  Contents with_folder = kRow;
  with_folder[4] = -1;
  expect(order.Insert(seen, 3), not_done, with_folder);
  fs::remove(frames.Path(4));

  support::WriteText(folder / "a/.kelvo-frames", "7");
  {
    const auto other_program = app::HeldFile::Hold(folder / "a/.kelvo-frames");
    EXPECT_TRUE(order.Move(seen, 1, 2).ends_with("another program is renaming frames now"));
  }
  for (const char* elsewhere : {"../a/anim0001.kvp", ".."}) {
    WritePlan(elsewhere);
    support::WriteText(folder / "a/.kelvo-frames-7-0", "not ours");
    (void)LookAtFrames(frames);
    EXPECT_FALSE(fs::exists(folder / "a/.kelvo-frames"));
    EXPECT_TRUE(fs::remove(folder / "a/.kelvo-frames-7-0"));
  }
  fs::rename(frames.Path(1), folder / "a/.kelvo-frames-7-0");  // halfway, and its name taken meanwhile
  fs::copy(frames.Path(5), frames.Path(1));
  WritePlan("anim0001.kvp");
  (void)LookAtFrames(frames);
  EXPECT_EQ(IdIn(folder / "a/anim0001.kvp.old"), 1);
  fs::rename(folder / "a/anim0001.kvp.old", frames.Path(1));

  support::WriteFile(frames.Path(9), {});
  Contents more = kRow;
  more[9] = -1;
  expect(order.Move(seen, 1, 5), "THE FOLDER HAS CHANGED: LOOK AGAIN", more);
  expect(order.Duplicate(Seen(), 9), "FRAME 9 IS NO PICTURE", more);
  fs::rename(frames.Path(9), frames.Path(9999));
  DeleteInModel(more, 9);
  more[9999] = -1;
  expect(order.Insert(Seen(), 9999), "FRAME 9999 IS THE LAST ONE", more);
  expect(order.Insert(Seen(), 9998), "FRAME 9999 IS THE LAST ONE", more);
  Begin({{2, 2}}, 2);
  expect(order.Delete(Seen(), 2), "THE ONLY FRAME STAYS", {{2, 2}});
  settings.Write(kFolder, "");
  EXPECT_EQ(order.Insert({}, 0), "SET THE ANIMATION FOLDER FIRST");
}

TEST_F(FrameOrderTest, EverythingThatKnowsAFrameByItsFileGoesAlong) {
  Begin(kRow, 2);
  for (const int visited : {5, 3, 1}) (void)navigation.GoTo(std::to_string(visited));
  display.followed = frames.Path(3);
  EXPECT_EQ(order.Move(Seen(), 3, 1), "FRAME 3 IS FRAME 1 NOW");
  EXPECT_EQ(display.where_now, frames.Path(1));
  EXPECT_EQ(navigation.CurrentFrame(), 2);
  EXPECT_NE(display.title.find("anim0002"), std::string::npos);
  (void)navigation.Back();
  EXPECT_EQ(IdInMemory(), 3);
  display.followed = frames.Path(2);
  EXPECT_EQ(order.Delete(Seen(), 2), "FRAME 2 IS IN BACKUP");  // once 1
  EXPECT_EQ(display.where_now, fs::path());
  std::vector<int> recent;
  for (const fs::path& path : files.RecentPaths()) recent.push_back(IdIn(path));
  EXPECT_EQ(recent, (std::vector<int>{3, 5, 2}));
  EXPECT_EQ(IdIn(folders.Backup() / "anim0002.kvp_2602030907_deleted.kvp"), 1);
}

}  // namespace
}  // namespace kelvo::anim
