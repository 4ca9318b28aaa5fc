#include "anim/frame_times.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>

#include "app/path_text.h"
#include "app/text.h"
#include "app/whole_file.h"

namespace kelvo::anim {
namespace {

constexpr std::uintmax_t kMostListBytes = 1U << 20;

using Words = std::vector<std::string>;

Words WordsOf(const std::string& line) {
  std::istringstream stream(line.substr(0, line.find('#')));
  Words words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::optional<int> NumberUpTo(int most, const std::string& word) {
  const auto number = app::WholeNumber<int>(word);
  return number && *number >= 1 && *number <= most ? number : std::nullopt;
}

// `line` with the number that its frame has now; empty without one.
std::string RenumberedLine(const std::string& line, const std::function<std::optional<int>(int)>& number_now) {
  const Words words = WordsOf(line);
  const auto number = words.empty() ? std::nullopt : NumberUpTo(kLastFrame, words.front());
  if (!number) return line;
  const auto now = number_now(*number);
  if (!now) return {};
  return std::string(line).replace(line.find(words.front()), words.front().size(), std::to_string(*now));
}

}  // namespace

FrameTimes::FrameTimes(std::string_view list) {
  std::istringstream lines{std::string(list)};
  std::string line;
  for (int place = 1; std::getline(lines, line); ++place) {
    const Words words = WordsOf(line);
    if (words.empty()) continue;
    const auto refuse = [place](const std::string& why) {
      throw std::runtime_error("line " + std::to_string(place) + ": " + why);
    };
    const auto frame = NumberUpTo(kLastFrame, words.front()), turns = NumberUpTo(kMostTurns, words.back());
    if (words.size() != 2 || !frame || !turns) refuse("a frame's number and 1 to 600 turns are to stand here");
    if (!turns_.emplace(*frame, *turns).second) refuse("frame " + words.front() + " has its turns already");
  }
}

int FrameTimes::TurnsOf(int number) const {
  const auto found = turns_.find(number);
  return found == turns_.end() ? 1 : found->second;
}

FrameTimes ReadFrameTimes(const FrameNames& names) {
  const std::string list = ReadListOfTimes(names);
  try {
    return FrameTimes(list);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(app::TextFromPath(names.TimesPath().filename()) + ", " + error.what());
  }
}

std::string ReadListOfTimes(const FrameNames& names) {
  if (!std::filesystem::exists(names.TimesPath())) return {};
  const app::Bytes bytes = app::ReadWholeFile(names.TimesPath(), kMostListBytes);
  return {bytes.begin(), bytes.end()};
}

std::string RenumberedList(std::string_view list, const std::function<std::optional<int>(int)>& number_now) {
  std::string renumbered;
  while (!list.empty()) {
    const std::size_t length = std::min(list.find('\n'), list.size() - 1) + 1;
    renumbered += RenumberedLine(std::string(list.substr(0, length)), number_now);
    list.remove_prefix(length);
  }
  return renumbered;
}

std::vector<int> FieldsOf(const std::vector<int>& turns, int rate) {
  const auto field_at = [rate](int turn) { return (2 * turn * kFieldsPerSecond + rate) / (2 * rate); };
  std::vector<int> fields;
  int turn = 0;
  for (const int more : turns) {
    fields.push_back(field_at(turn + more) - field_at(turn));
    turn += more;
  }
  return fields;
}

}  // namespace kelvo::anim
