// The order of the frames on the disk: changes against a plain model, and changes that fail or are ended in the middle.
#include "anim/frame_order.h"

#include <gtest/gtest.h>

#include <map>

#include "anim/frame_times.h"
#include "app/held_file.h"
#include "files/picture_format.h"
#include "support/program.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

// By frame number: which picture its file holds, which is the first byte of its bitmap.
using Contents = std::map<int, int>;

void Move(Contents& frames, int from, int to) {
  for (auto at = frames.find(from); at->first != to;) {
    const auto next = from < to ? std::next(at) : std::prev(at);
    std::swap(at->second, next->second);
    at = next;
  }
}

void Insert(Contents& frames, int number, int picture) {
  int gap = number;
  while (frames.contains(gap)) ++gap;
  for (; gap > number; --gap) frames[gap] = frames[gap - 1];
  frames[number] = picture;
}

void Delete(Contents& frames, int number) {
  for (; frames.contains(number + 1); ++number) frames[number] = frames[number + 1];
  frames.erase(number);
}

class FrameOrderTest : public testing::Test, protected support::Program {
 protected:
  FrameOrderTest() { settings.Write(kFolder, Text("a/")); }
  void Begin(const Contents& contents, int current) {
    fs::remove_all(folder / "a");
    fs::create_directory(folder / "a");
    for (const auto& [number, id] : contents) {
      model::PictureImage picture;
      picture.Bitmap[1] = static_cast<std::uint8_t>(id);
      support::WriteFile(names.Path(number), files::Encode(picture));
    }
    (void)navigation.GoTo(std::to_string(current));
  }
  // Files that are no frames stand under 0, but for the list of times.
  Contents OnDisk() const {
    Contents contents;
    for (const std::string& name : support::NamesIn(folder / "a")) {
      if (name == "anim-times.txt") continue;
      const app::Bytes bytes = support::ReadFile(folder / "a" / name);
      contents[names.NumberOf(name).value_or(0)] = bytes.size() == 10050 ? bytes[2050] : -1;
    }
    return contents;
  }
  void WriteTimes(const Contents& turns) const {
    std::string list = "# frame, turns\r\n";
    for (const auto& [number, stays] : turns) {
      list += "\t" + std::to_string(number) + " " + std::to_string(stays) + " # as said\r\n";
    }
    support::WriteText(names.TimesPath(), list + "12x is no line");
  }
  Contents Times() const {
    std::istringstream list(ReadListOfTimes(names));
    Contents turns;
    std::string line;
    std::getline(list, line);
    while (std::getline(list, line) && line.ends_with(" # as said\r")) {
      turns[std::stoi(line)] = std::stoi(line.substr(line.find(' ')));
    }
    return line == "12x is no line" ? turns : Contents{{0, 0}};
  }
  FrameRow Seen() const { return FrameRow(names); }
  void WritePlan(const std::string& from) const {
    support::WriteText(folder / "a/.kelvo-frames", '7' + ('\0' + from) + '\0' + "anim0009.kvp");
  }

  const Contents row{{1, 1}, {2, 2}, {3, 3}, {5, 5}};
  FrameNames names{{Text("a/"), "anim"}};
  FrameNavigation navigation{surroundings};
  FrameOrder order{surroundings, navigation};
};

TEST_F(FrameOrderTest, RandomChangesLeaveWhatAPlainModelSays) {
  Contents model{{1, 1}, {2, 2}, {3, 3}, {5, 5}, {9, 9}, {10, 10}};
  Begin(model, 3);
  Contents turns = model;  // 0: no line
  WriteTimes(turns);
  std::mt19937 random(20260203);
  const auto any = [&] { return std::next(model.begin(), static_cast<int>(random() % model.size()))->first; };
  for (std::uint8_t made = 100; made < 180; ++made) {
    document.picture.Bitmap[1] = made;  // unsaved, of the current frame
    const int current = *navigation.CurrentFrame(), number = any(), other = any();
    const unsigned kind = model.size() < 4 ? 1 : model.size() > 12 ? 3 : random() % 4;
    const bool leaves = kind == 1 || kind == 2 || (kind == 3 && number == current);
    if (leaves) model[current] = made;
    if (kind == 0) (void)order.Move(Seen(), number, other), Move(model, number, other), Move(turns, number, other);
    if (kind == 1) (void)order.Insert(Seen(), number), Insert(model, number + 1, made);
    if (kind == 2) (void)order.Duplicate(Seen(), number), Insert(model, number + 1, model.at(number));
    if (kind == 1 || kind == 2) Insert(turns, number + 1, 0);
    if (kind == 3) (void)order.Delete(Seen(), number), Delete(model, number), Delete(turns, number);
    ASSERT_EQ(OnDisk(), model) << kind << ' ' << number << ' ' << other;
    Contents lines = turns;
    std::erase_if(lines, [](const auto& line) { return line.second == 0; });
    ASSERT_EQ(Times(), lines) << kind << ' ' << number << ' ' << other;
    ASSERT_EQ(document.picture.Bitmap[1], leaves ? model.at(*navigation.CurrentFrame()) : made);
    ASSERT_EQ(document.HasUnsavedWork(), !leaves);
  }
  EXPECT_EQ(messages.shown, support::Lines());  // never a question whether to replace a file
}

// A renaming fails, or the program is ended in it, and once more while that is put right.
TEST_F(FrameOrderTest, AChangeThatStopsAnywhereIsDoneWhollyOrNotAtAll) {
  struct Ended {};
  Contents moved = row, grown = row, shrunk = row;
  Move(moved, 5, 1), Insert(grown, 2, 2), Delete(shrunk, 1);
  const auto change = [&](const Contents& after, FrameOrder& faulty, const FrameRow& seen) {
    if (after == moved) return faulty.Move(seen, 5, 1);
    return after == grown ? faulty.Insert(seen, 1) : faulty.Delete(seen, 1);
  };
  for (const Contents& after : {moved, grown, shrunk}) {
    for (int stops = 0; stops < 14; ++stops) {
      for (int stops_again = -1; stops_again < 6; ++stops_again) {  // -1: it fails, and is ended nowhere
        Begin(row, 2);
        WriteTimes(row);
        int left = stops;
        const RenameFile mortal = [&](const fs::path& from, const fs::path& to) {
          if (left-- != 0) return app::RenameToNew(from, to);
          if (stops_again >= 0) throw Ended();
          return std::make_error_code(std::errc::permission_denied);
        };
        FrameOrder faulty(surroundings, navigation, mortal);
        try {
          const std::string word = change(after, faulty, Seen());
          EXPECT_EQ(OnDisk(), word.starts_with("NOT DONE: Permission denied: ") ? row : after);
          EXPECT_EQ(left < 0 && stops_again < 0, word.starts_with("NOT DONE")) << word;
        } catch (const Ended&) {
          left = stops_again;
          try {
            SettleRenaming(folder / "a", mortal);
          } catch (const Ended&) {
          }
        }
        (void)LookAtFrames(names);
        Contents now = OnDisk();
        now.erase(0);  // a temporary file, which the next save sweeps away
        EXPECT_TRUE(now == row || now == after) << stops << ' ' << stops_again;
        Contents times_after = after;  // a new frame has no line
        std::erase_if(times_after, [](const auto& frame) { return frame.second == 2 && frame.first == 2; });
        EXPECT_EQ(Times(), now == row ? row : times_after) << stops << ' ' << stops_again;
        EXPECT_FALSE(fs::exists(folder / "a/.kelvo-frames"));
      }
    }
  }
}

TEST_F(FrameOrderTest, WhatCannotBeIsRefusedInOneLine) {
  Begin(row, 2);
  const FrameRow seen = Seen();
  support::WriteText(folder / "a/.kelvo-frames", "7");
  {
    const auto other_program = app::HeldFile::Hold(folder / "a/.kelvo-frames");
    EXPECT_EQ(order.Move(seen, 1, 2), "NOT DONE: another program is renaming frames now");
  }
  for (const char* elsewhere : {"../a/anim0001.kvp", ".."}) {
    WritePlan(elsewhere);
    support::WriteText(folder / "a/.kelvo-frames-7-0", "not ours");
    (void)LookAtFrames(names);
    EXPECT_TRUE(!fs::exists(folder / "a/.kelvo-frames") && fs::remove(folder / "a/.kelvo-frames-7-0"));
  }
  fs::copy(names.Path(1), folder / "a/.kelvo-frames-7-0");  // on its way, and its name taken meanwhile
  WritePlan("anim0001.kvp");
  (void)LookAtFrames(names);
  EXPECT_TRUE(fs::remove(folder / "a/anim0001.kvp.old"));
  EXPECT_EQ(OnDisk(), row);

  support::WriteFile(names.Path(9999), {});
  EXPECT_EQ(order.Move(seen, 1, 5), "THE FOLDER HAS CHANGED: LOOK AGAIN");
  EXPECT_EQ(order.Duplicate(Seen(), 9999), "FRAME 9999 IS NO PICTURE");
  EXPECT_EQ(order.Insert(Seen(), 9998), "FRAME 9999 IS THE LAST ONE");
  fs::remove(names.Path(9999));
  EXPECT_EQ(OnDisk(), row);
  Begin({{2, 2}}, 2);
  EXPECT_EQ(order.Delete(Seen(), 2), "THE ONLY FRAME STAYS");
  settings.Write(kFolder, "");
  EXPECT_EQ(order.Insert({}, 0), "SET THE ANIMATION FOLDER FIRST");
}

TEST_F(FrameOrderTest, EverythingThatKnowsAFrameByItsFileGoesAlong) {
  Begin(row, 2);
  for (const char* visited : {"5", "3", "1"}) (void)navigation.GoTo(visited);
  display.followed = names.Path(3);
  EXPECT_EQ(order.Move(Seen(), 3, 1), "FRAME 3 IS FRAME 1 NOW");
  EXPECT_EQ(display.where_now, names.Path(1));
  EXPECT_NE(display.title.find("anim0002"), std::string::npos);
  (void)navigation.Back();
  EXPECT_EQ(document.picture.Bitmap[1], 3);
  display.followed = names.Path(2);
  EXPECT_EQ(order.Delete(Seen(), 2), "FRAME 2 IS IN BACKUP");  // once 1
  EXPECT_EQ(display.where_now, fs::path());
  EXPECT_EQ(files.RecentPaths(), (std::vector<fs::path>{names.Path(1), names.Path(5), names.Path(2)}));
  EXPECT_TRUE(fs::exists(folders.Backup() / "anim0002.kvp_2602030907_deleted.kvp"));
  WriteTimes({{1, 10}, {2, 20}, {3, 30}, {5, 50}});  // of frames that are not there, too
  (void)order.Insert(Seen(), 1);
  EXPECT_EQ(Times(), (Contents{{1, 10}, {3, 20}, {5, 50}}));
}

}  // namespace
}  // namespace kelvo::anim
