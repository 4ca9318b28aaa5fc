#include "anim/renaming.h"

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "app/file_name.h"
#include "app/held_file.h"
#include "app/path_text.h"
#include "app/whole_file.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

// The plan is a file of this name: a number, then the old and the new name of each file, parted by zero bytes. A file
// on its way has the plan's name, its number and its place in the plan. Their ending is not that of temporary files,
// which others sweep away.
constexpr const char* kPlanName = ".kelvo-frames";

bool IsThere(const fs::path& file) {
  std::error_code ignored;
  return fs::symlink_status(file, ignored).type() > fs::file_type::not_found;
}

struct Failure {
  fs::path file;
  std::error_code error;
};

[[noreturn]] void Tell(const Failure& failure, const std::string& more = {}) {
  throw RenamingError(failure.error.message() + ": " + app::TextFromPath(failure.file) + more);
}

bool IsNameInFolder(const fs::path& name) {
  return !name.empty() && name == name.filename() && name != "." && name != "..";
}

struct Plan {
  std::string number;
  std::vector<Renaming> renamings;
};

app::Bytes BytesOf(const Plan& plan) {
  std::string text = plan.number;
  for (const auto& [from, to] : plan.renamings) {
    text += '\0' + app::TextFromPath(from) + '\0' + app::TextFromPath(to);
  }
  return {text.begin(), text.end()};
}

// What is no plan of files in this folder says nothing.
Plan PlanFrom(const app::Bytes& bytes) {
  std::vector<std::string> fields(1);
  for (const std::uint8_t byte : bytes) {
    if (byte == 0) {
      fields.emplace_back();
    } else {
      fields.back().push_back(static_cast<char>(byte));
    }
  }
  const auto is_plain = [](const std::string& field) { return IsNameInFolder(app::PathFromText(field)); };
  if (fields.size() % 2 == 0 || !std::all_of(fields.begin(), fields.end(), is_plain)) return {};
  Plan plan{fields[0], {}};
  for (std::size_t i = 1; i < fields.size(); i += 2) {
    plan.renamings.push_back({app::PathFromText(fields[i]), app::PathFromText(fields[i + 1])});
  }
  return plan;
}

// The plan in steps: as many as there are files, in which they leave their names, and as many again, in which they take
// the new ones. So the files that are on their way tell how far it came.
class Steps {
 public:
  Steps(const fs::path& folder, const Plan& plan, const RenameFile& rename)
      : folder_(folder), plan_(plan), rename_(rename) {}

  // Gives what failed, when all files have their old names again.
  std::optional<Failure> Do() const {
    const std::size_t all = 2 * plan_.renamings.size();
    for (std::size_t step = 0; step < all; ++step) {
      const auto [from, to] = At(step);
      const std::error_code error = rename_(from, to);
      if (!error) continue;
      Undo(step);
      return Failure{step < all / 2 ? from : to, error};
    }
    return std::nullopt;
  }

  // Those who were to take new names do, when the first has done so; else all go back.
  void Settle() const {
    const std::size_t count = plan_.renamings.size();
    if (count == 0) return;
    const bool goes_on = !IsThere(OnItsWay(0)) && IsThere(OnItsWay(count - 1));
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t file = goes_on ? i : count - 1 - i;
      if (IsThere(OnItsWay(file))) Release(file, goes_on);
    }
  }

 private:
  fs::path OnItsWay(std::size_t file) const {
    return folder_ / (kPlanName + ("-" + plan_.number) + "-" + std::to_string(file));
  }

  std::pair<fs::path, fs::path> At(std::size_t step) const {
    const std::size_t count = plan_.renamings.size(), file = step % count;
    if (step < count) return {folder_ / plan_.renamings[file].from, OnItsWay(file)};
    return {OnItsWay(file), folder_ / plan_.renamings[file].to};
  }

  void Undo(std::size_t done) const {
    while (done-- > 0) {
      const auto [from, to] = At(done);
      if (const std::error_code error = rename_(to, from)) {
        Tell({from, error}, "; the frames are put right as soon as that can be");
      }
    }
  }

  void Release(std::size_t file, bool goes_on) const {
    const Renaming& renaming = plan_.renamings[file];
    const fs::path name = folder_ / (goes_on ? renaming.to : renaming.from);
    std::error_code error = rename_(OnItsWay(file), name);
    if (error == std::errc::file_exists) error = rename_(OnItsWay(file), app::FreeNameBeside(name));
    if (error) Tell({name, error});
  }

  const fs::path& folder_;
  const Plan& plan_;
  const RenameFile& rename_;
};

void RemovePlan(const fs::path& file) {
  std::error_code ignored;
  fs::remove(file, ignored);
}

}  // namespace

void RenameAll(const fs::path& folder, std::span<const Renaming> renamings, const RenameFile& rename) {
  if (renamings.empty()) return;
  SettleRenaming(folder, rename);
  const Plan plan{std::to_string(std::random_device()()), {renamings.begin(), renamings.end()}};
  const fs::path file = folder / kPlanName;
  const std::error_code error = app::PlaceFile(file, BytesOf(plan), {.is_private = true, .must_be_new = true});
  const bool is_busy = error == std::errc::file_exists;
  if (error && !is_busy) Tell({folder, error});
  const auto held = is_busy ? std::nullopt : app::HeldFile::Hold(file);
  if (!held) throw RenamingError("another program is renaming frames now");
  const std::optional<Failure> failure = Steps(folder, plan, rename).Do();
  RemovePlan(file);
  if (failure) Tell(*failure);
}

void SettleRenaming(const fs::path& folder, const RenameFile& rename) {
  const fs::path file = folder / kPlanName;
  if (!IsThere(file)) return;
  const auto held = app::HeldFile::Hold(file);
  if (!held) return;
  try {
    Steps(folder, PlanFrom(app::ReadWholeFile(file, app::kMostBytesToCopy)), rename).Settle();
  } catch (const app::FileError& error) {
    throw RenamingError(error.what());
  }
  RemovePlan(file);
}

}  // namespace kelvo::anim
