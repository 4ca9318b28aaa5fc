// All that kelvo-cli can be asked for. The one table that the command line is read by, and of which help, completion
// and the manual page are made.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace kelvo::cli {

struct Option {
  std::string_view name;   // "--scale"
  std::string_view value;  // what stands for its value in texts, "N"; empty for a switch
  std::string_view help;
  std::string_view choices = {};   // the only values that it takes, with blanks between; empty: any
  int lowest = 0, highest = -1;    // of a value that is a number; else `highest` is the lower one
  std::string_view excludes = {};  // the option that contradicts it

  constexpr bool IsNumber() const { return lowest <= highest; }
};

// The operands are files but where the command says otherwise. One that is written stands last.
struct Command {
  static constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

  std::string_view name, operands;  // "IN OUT.png"
  std::size_t fewest, most;         // of operands
  bool writes;                      // its last operand, where there are more than the others need
  std::string_view summary, details;
  std::vector<const Option*> options;
  std::string_view example;  // what comes behind "kelvo-cli "
};

std::span<const Command> Commands();

// Null where there is none of that name.
const Command* FindCommand(std::string_view name);

// The texts in a list with blanks between.
std::vector<std::string_view> WordsOf(std::string_view list);

// By the commands that know them; each takes those that its row of the table names.
extern const Option kHelp, kFrom, kTo, kExact, kBackground, kSettings, kJson, kPalette, kDither, kFit, kFadeIn,
    kKeyEnds, kName, kVice, kSeconds, kAt, kGrid, kSpriteFormat, kBackgroundPass, kPackingPass, kScale, kBorder,
    kAspect, kPrefix, kRate, kPlaying, kChangeBackground, kReport, kHost, kPort, kLoadAt, kRun, kJumpTo;

}  // namespace kelvo::cli
