#include "anim/frame_times.h"

#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "anim/frame_names.h"
#include "app/text.h"

namespace kelvo::anim {
namespace {

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
