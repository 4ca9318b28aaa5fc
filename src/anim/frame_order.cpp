#include "anim/frame_order.h"

#include <algorithm>

#include "anim/frame_times.h"
#include "app/path_text.h"
#include "app/temporary_name.h"
#include "app/whole_file.h"
#include "files/backups.h"
#include "files/picture_format.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

// Makes a file that nobody may read who may not read the original.
void PlaceCopy(const fs::path& copy, const app::Bytes& bytes, const fs::path& original) {
  std::error_code ignored;  // of a disk that knows no rights: where it is for its owner alone it may stay so
  const fs::file_status status = fs::status(original, ignored);
  const bool has_original = fs::exists(status);
  if (const auto error = app::PlaceFile(copy, bytes, {.is_private = has_original, .must_be_new = true})) {
    throw app::FileError(error.message() + ": " + app::TextFromPath(copy.parent_path()));
  }
  if (has_original) fs::permissions(copy, status.permissions() | fs::perms::owner_write, ignored);
}

// The list of times for frames that have other numbers: a file that takes the list's place when both are renamed.
class RenumberedTimes {
 public:
  template <typename NumberNow>
  RenumberedTimes(const FrameNames& names, NumberNow&& number_now) : old_(names.Folder()), fresh_(names.Folder()) {
    const std::string list = ReadListOfTimes(names), now = RenumberedList(list, number_now);
    if (now == list) return;
    PlaceCopy(fresh_.Path(), {now.begin(), now.end()}, names.TimesPath());
    const fs::path name = names.TimesPath().filename();
    renamings_ = {{fresh_.Path().filename(), name}, {name, old_.Path().filename()}};  // nothing can fail behind the old
  }
  const std::vector<Renaming>& Renamings() const { return renamings_; }

 private:
  app::PassingPlace old_, fresh_;
  std::vector<Renaming> renamings_;
};

// Those that follow `number` in the row without a gap.
std::vector<int> RunBehind(std::span<const int> numbers, int number) {
  std::vector<int> run;
  for (auto at = std::upper_bound(numbers.begin(), numbers.end(), number);
       at != numbers.end() && *at == number + 1 + static_cast<int>(run.size()); ++at) {
    run.push_back(*at);
  }
  return run;
}

}  // namespace

std::vector<NumberChange> MovingFrame(std::span<const int> numbers, int from, int to) {
  const auto [lowest, highest] = std::minmax(from, to);
  const auto first = std::lower_bound(numbers.begin(), numbers.end(), lowest);
  const std::vector<int> old(first, std::upper_bound(first, numbers.end(), highest));
  std::vector<int> now = old;
  std::rotate(now.begin(), from < to ? now.end() - 1 : now.begin() + 1, now.end());
  std::vector<NumberChange> changes;
  for (std::size_t i = 0; i < old.size() && from != to; ++i) changes.push_back({old[i], now[i]});
  return changes;
}

std::optional<std::vector<NumberChange>> MakingRoom(std::span<const int> numbers, int number) {
  const std::vector<int> run = RunBehind(numbers, number - 1);
  if (number + static_cast<int>(run.size()) > kLastFrame) return std::nullopt;
  std::vector<NumberChange> changes;
  changes.reserve(run.size());
  for (const int moved : run) changes.push_back({moved, moved + 1});
  return changes;
}

std::vector<NumberChange> ClosingUp(std::span<const int> numbers, int number) {
  std::vector<NumberChange> changes;
  for (const int moved : RunBehind(numbers, number)) changes.push_back({moved, moved - 1});
  return changes;
}

template <typename Change>
std::string FrameOrder::Guard(const FrameRow& seen, Change&& change) {
  if (ReadAnimProperties(with_.settings).folder.empty()) return "SET THE ANIMATION FOLDER FIRST";
  navigation_.Refresh();
  if (navigation_.Row() != seen) return "THE FOLDER HAS CHANGED: LOOK AGAIN";
  std::string word;
  app::Guarded(
      with_.log, "MDIFormMenu_ChangeFrames", [&] { word = change(); },
      [&](const std::exception& error) { word = std::string("NOT DONE: ") + error.what(); });
  return word;
}

std::string FrameOrder::Move(const FrameRow& seen, int from, int to) {
  if (from == to) return {};
  return Guard(seen, [&] {
    Renumber(MovingFrame(navigation_.Row().Numbers(), from, to), {});
    return FrameWords(from) + " IS FRAME " + std::to_string(to) + " NOW";
  });
}

std::string FrameOrder::Insert(const FrameRow& seen, int number) {
  return Guard(seen, [&] {
    model::PictureImage picture = with_.document.picture;
    files::Sign(picture);
    return Add(number + 1, files::Encode(picture), with_.document.file.CurrentFilePath);
  });
}

std::string FrameOrder::Duplicate(const FrameRow& seen, int number) {
  if (navigation_.CurrentFrame() == number) return Insert(seen, number);
  return Guard(seen, [&] {
    const fs::path& path = navigation_.Row().Path(number);
    if (!HasPictureSize(path)) return FrameWords(number) + " IS NO PICTURE";
    return Add(number + 1, app::ReadWholeFile(path, app::kMostBytesToCopy), path);
  });
}

std::string FrameOrder::Add(int number, const app::Bytes& bytes, const fs::path& original) {
  const FrameNames names = navigation_.Names();
  const auto room = MakingRoom(navigation_.Row().Numbers(), number);
  if (!room) return FrameWords(kLastFrame) + " IS THE LAST ONE";
  const app::PassingPlace fresh(names.Folder());
  PlaceCopy(fresh.Path(), bytes, original);
  Renumber(*room, {fresh.Path().filename(), names.Path(number).filename()});
  const std::string word = navigation_.GoTo(std::to_string(number));
  return navigation_.CurrentFrame() == number ? FrameWords(number) + " IS NEW" : word;
}

std::string FrameOrder::Delete(const FrameRow& seen, int number) {
  return Guard(seen, [&] {
    const FrameRow& row = navigation_.Row();
    if (navigation_.CurrentFrame() == number) {
      const auto after = row.ReadableAfter(number), neighbour = after ? after : row.ReadableBefore(number);
      if (!neighbour) return std::string("THE ONLY FRAME STAYS");
      std::string word = navigation_.GoTo(std::to_string(*neighbour));
      if (navigation_.CurrentFrame() != neighbour) return word;
      navigation_.Refresh();  // it was saved, perhaps under a name in another case
    }
    const fs::path file = row.Path(number);
    files::Backups(with_.folders, with_.clock)
        .Keep(app::ReadWholeFile(file, app::kMostBytesToCopy), app::TextFromPath(file.filename()), "_deleted", ".kvp");
    const app::PassingPlace leaving(navigation_.Names().Folder());
    Renumber(ClosingUp(row.Numbers(), number), {file.filename(), leaving.Path().filename()});
    return FrameWords(number) + " IS IN BACKUP";
  });
}

// The numbers change in one step with the file that comes or goes.
void FrameOrder::Renumber(const std::vector<NumberChange>& changes, const Renaming& passing) {
  const FrameNames names = navigation_.Names();
  const FrameRow before = navigation_.Row();
  std::vector<Renaming> renamings;
  if (!passing.from.empty()) renamings.push_back(passing);
  for (const auto& [from, to] : changes) {
    renamings.push_back({before.Path(from).filename(), names.Path(to).filename()});
  }
  const auto number_now = [&](int number) -> std::optional<int> {
    const auto change = std::ranges::find(changes, number, &NumberChange::from);
    if (change != changes.end()) return change->to;
    const bool is_gone = before.Has(number) && before.Path(number).filename() == passing.from;
    return is_gone ? std::nullopt : std::optional(number);
  };
  // A line for a frame that is not there gives way to one that comes.
  const RenumberedTimes times(names, [&](int number) {
    const bool is_taken = !before.Has(number) && std::ranges::find(changes, number, &NumberChange::to) != changes.end();
    return is_taken ? std::nullopt : number_now(number);
  });
  renamings.insert(renamings.end(), times.Renamings().begin(), times.Renamings().end());
  RenameAll(names.Folder(), renamings, rename_);
  navigation_.FramesRenumbered(number_now);
  with_.files.FilesMoved([&](const fs::path& path) {
    const auto number = names.NumberOfPath(path);
    const auto now = number ? number_now(*number) : std::nullopt;
    if (number == now) return path;
    return now ? names.Path(*now) : fs::path();
  });
}

}  // namespace kelvo::anim
