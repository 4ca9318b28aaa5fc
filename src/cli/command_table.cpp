#include "cli/command_table.h"

#include <algorithm>

namespace kelvo::cli {

const Option kHelp{"--help", "", "tells how the command is used"};

const Option kFrom{"--from", "FORMAT", "what IN is, whatever its name says", "kvp koa kla vid ocp p64 drz gg"};
const Option kTo{"--to", "FORMAT", "what OUT becomes, whatever its name says", "kvp koa kla vid ocp p64 drz gg png"};
const Option kExact{"--exact", "", "reads the last byte of the bitmap and each format's own background"};
const Option kBackground{.name = "--background",
                         .value = "N",
                         .help = "the background, of an image or a file that tells none",
                         .lowest = 0,
                         .highest = 15};
const Option kSettings{"--settings", "", "takes what is not said here from the editor's settings"};
const Option kPalette{"--palette", "NAME", "the colors: Kelvo, Pepto, Colodore, or a palette file of VICE"};

const Option kDither{"--dither", "NAME", "of an image; else what suits it", "none fine default strong"};
const Option kFit{"--fit", "HOW", "where an image has another shape; else cover", "cover contain stretch"};

const Option kJson{"--json", "", "a line of JSON for each file"};

const Option kFadeIn{"--fade-in", "", "the program fades the picture in"};
const Option kKeyEnds{"--key-ends", "", "a key ends the picture and gives BASIC back"};
const Option kName{"--name", "NAME", "the program's name on the disk, where there is one"};
const Option kVice{"--vice", "FOLDER", "where VICE's c1541 is; else it is looked for on the PATH"};

const Option kSeconds{
    .name = "--seconds", .value = "N", .help = "how long it runs at most", .lowest = 1, .highest = 3600};

const Option kAt{"--at", "COL,ROW", "the cell where the first sprite begins, from 1,1 at the top left"};
const Option kGrid{"--grid", "NxM", "so many sprites side by side, and so many below one another"};
const Option kSpriteFormat{"--format", "FORMAT", "an assembler's source, or bytes",
                           "kelvo 64tass acme kickass ca65 bin spd"};

const Option kBackgroundPass{"--background", "", "draws pixels of the background's color with its bit pair"};
const Option kPackingPass{"--packing", "", "puts the colors where the picture packs best"};

const Option kScale{
    .name = "--scale", .value = "N", .help = "each display pixel becomes N x N", .lowest = 1, .highest = 8};
const Option kBorder{"--border", "", "with the border around it, 384 x 272"};
const Option kAspect{"--aspect", "pal", "as high as a PAL screen shows it", "pal"};

const Option kPrefix{"--prefix", "P", "what the frames' names begin with, if not \"anim\""};
const Option kRate{.name = "--rate", .value = "N", .help = "frames a second, if not 10", .lowest = 1, .highest = 25};
const Option kPlaying{"--playing", "HOW", "what follows the last frame; else round", "once round to-and-fro"};
const Option kChangeBackground{"--change-background", "", "frames may have backgrounds of their own"};
const Option kReport{"--report", "", "tells what each frame takes"};

const Option kHost{"--host", "ADDRESS", "the C64's name or address"};
const Option kPort{.name = "--port", .value = "N", .help = "its port, if not 6462", .lowest = 1, .highest = 65535};
const Option kRun{.name = "--run", .value = "", .help = "starts the program, as RUN does", .excludes = "--jump-to"};
const Option kLoadAt{
    .name = "--load-at", .value = "HEX", .help = "loads it there, and not where it says", .excludes = "--run"};
const Option kJumpTo{.name = "--jump-to", .value = "HEX", .help = "starts the machine code there", .excludes = "--run"};

namespace {

const std::vector<Command> kCommands{
    {"help", "[COMMAND]", 0, 1, false, "tells what there is, and how a command is used", "", {}, "help convert"},
    {"info",
     "FILE...",
     1,
     Command::kAnyNumber,
     false,
     "tells what is in pictures",
     "Format, size, load address, background, the cells that show each color, how many cells have how many colors "
     "free, and whether reading exactly gives another picture.",
     {&kJson, &kFrom, &kExact, &kBackground},
     "info --json planet.kvp"},
    {"convert",
     "IN... OUT",
     2,
     Command::kAnyNumber,
     true,
     "writes a picture in another format, or makes one of an image",
     "Names tell the formats: .kvp, .koa, .kla, .vid, .ocp, .art, .p64, .drz, .gg, .png. What is no picture of a C64 "
     "is an image, which becomes one as the editor imports it; with --exact only where it is one already. Several "
     "go into a folder, in the format that --to names. \"-\" is standard input or output.",
     {&kFrom, &kTo, &kExact, &kBackground, &kDither, &kFit, &kPalette, &kSettings},
     "convert --dither fine photo.jpg photo.kvp"},
    {"check",
     "IMAGE...",
     1,
     Command::kAnyNumber,
     false,
     "tells whether images obey the cell rule as they are",
     "Cells that do not are listed, and the backgrounds that would do. Ends with 1 when an image does not.",
     {&kBackground, &kPalette},
     "check logo.png"},
    {"program",
     "IN OUT.prg",
     2,
     2,
     true,
     "makes a C64 program that shows a picture",
     "The same bytes as the editor makes. This needs the assembler 64tass.",
     {&kFadeIn, &kKeyEnds, &kFrom, &kExact, &kBackground, &kSettings},
     "program planet.kvp planet.prg"},
    {"disk",
     "IN... OUT.d64",
     2,
     Command::kAnyNumber,
     true,
     "makes a disk with a program for each picture",
     "Each program is called as its picture. This needs the assembler 64tass and VICE's c1541.",
     {&kName, &kVice, &kFadeIn, &kKeyEnds, &kFrom, &kExact, &kBackground, &kSettings},
     "disk planet.kvp castle.kvp show.d64"},
    {"animation",
     "FOLDER [OUT]",
     1,
     2,
     true,
     "makes a C64 program, or a GIF, that plays numbered pictures",
     "OUT is a .prg, a .d64 or a .gif; with --report it may be left out. Frames are called as anim0001.kvp; a file "
     "anim-times.txt has a line for each that stays for more than a turn: its number and its turns. Programs are the "
     "same bytes as the editor makes, and need the assembler 64tass.",
     {&kPrefix, &kRate, &kPlaying, &kChangeBackground, &kReport, &kName, &kVice, &kScale, &kBorder, &kPalette, &kExact,
      &kSettings},
     "animation --rate 12 --prefix walk_ frames walk.prg"},
    {"show",
     "PRG [OUT.png]",
     1,
     2,
     true,
     "runs a program in a C64 without ROMs and tells what it shows",
     "OUT.png becomes what is on the screen in the end, with its border. A program that does what no sound one does "
     "ends with 1.",
     {&kSeconds, &kPalette},
     "show planet.prg screen.png"},
    {"sprites",
     "IN [OUT]",
     1,
     2,
     true,
     "takes multicolor sprites out of a picture",
     "A sprite is 12 x 21 pixels. The three colors used most become the sprites', the first $D025, the second $D026, "
     "the third their own; the rest is transparent.",
     {&kAt, &kGrid, &kSpriteFormat, &kFrom, &kExact, &kBackground, &kSettings},
     "sprites --at 1,1 --grid 4x2 --format acme planet.kvp planet.a"},
    {"optimise",
     "IN OUT",
     2,
     2,
     true,
     "puts colors where they are better placed; the picture looks the same",
     "Without an option it does both.",
     {&kBackgroundPass, &kPackingPass, &kFrom, &kTo, &kExact, &kSettings},
     "optimise --packing planet.kvp smaller.kvp"},
    {"diff",
     "A B",
     2,
     2,
     false,
     "tells where two pictures look different",
     "Ends with 1 when they do.",
     {&kFrom, &kExact, &kBackground, &kSettings},
     "diff planet.kvp planet.koa"},
    {"render",
     "IN OUT.png",
     2,
     2,
     true,
     "writes a picture as a C64 shows it",
     "320 x 200 pixels and what the options make of them.",
     {&kScale, &kBorder, &kAspect, &kPalette, &kFrom, &kExact, &kBackground, &kSettings},
     "render --scale 2 --border planet.kvp planet.png"},
    {"send",
     "FILE",
     1,
     1,
     false,
     "sends a file to a C64 with Codenet",
     "With --settings it goes where the editor's Codenet window would send it.",
     {&kHost, &kPort, &kRun, &kLoadAt, &kJumpTo, &kSettings},
     "send --host 192.168.1.64 --run planet.prg"},
    {"completion",
     "bash|zsh",
     1,
     1,
     false,
     "prints the completion of commands and options for a shell",
     "",
     {},
     "completion bash"},
    {"manual", "", 0, 0, false, "prints the manual page", "", {}, "manual"},
};

}  // namespace

std::span<const Command> Commands() {
  return kCommands;
}

const Command* FindCommand(std::string_view name) {
  const auto found = std::ranges::find(kCommands, name, &Command::name);
  return found == kCommands.end() ? nullptr : &*found;
}

std::vector<std::string_view> WordsOf(std::string_view list) {
  std::vector<std::string_view> words;
  while (!list.empty()) {
    const std::string_view word = list.substr(0, list.find(' '));
    words.push_back(word);
    list.remove_prefix(std::min(word.size() + 1, list.size()));
  }
  return words;
}

}  // namespace kelvo::cli
