// kelvo-cli makes what the editor makes, byte by byte, however many files it is given; and what makes no sense it says,
// with its exit code, and writes nothing.
#include <set>

#include "c64out/output_settings.h"
#include "files/export_formats.h"
#include "files/load_picture.h"
#include "images/picture_png.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"
#include "support/run_tool.h"

namespace kelvo::ui {
namespace {

namespace fs = std::filesystem;
using support::ReadFile;
using support::ReadText;

class CommandLineTest : public MainFrameTest {
 protected:
  CommandLineTest() {
    folders.Create();
    folders.Seed(KELVO_SHARE);
    fs::create_directories(art);
    fs::create_directories(out);
    fs::create_directories(temporary);
  }

  // A shell's line in `out`, with "kelvo-cli" in its path and a folder for temporary files that no other test uses.
  support::ToolRun Shell(const std::string& line) const {
    const std::string place = "export TMPDIR='" + temporary.string() + "' && cd '" + out.string() + "' && PATH='" +
                              fs::path(KELVO_CLI).parent_path().string() + "':$PATH && ";
    return support::RunTool("sh", {"-c", place + line});
  }
  app::Bytes Made(const std::string& line, const std::string& name) const {
    fs::remove(out / name);
    const support::ToolRun run = Shell("kelvo-cli " + line + " " + name);
    EXPECT_EQ(run.exit_code, 0) << line << ": " << run.errors;
    return ReadFile(out / name);
  }

  // All that the editor comes with, and pictures of whose bytes every one counts.
  std::set<fs::path> Samples() const {
    support::WriteFile(out / "counting.koa", support::CountingBytes(10003));
    support::WriteFile(out / "random.kvp", files::Encode(support::RandomPicture(8)));
    support::WriteFile(out / "exact.drz", support::CountingBytes(10051));
    std::set<fs::path> samples{out / "counting.koa", out / "random.kvp"};
    for (const auto& entry : fs::directory_iterator(fs::path(KELVO_SHARE) / "GFX")) samples.insert(entry.path());
    return samples;
  }
  fs::path Opened(const fs::path& sample) {
    fs::remove_all(art);
    fs::create_directories(art);
    fs::copy(sample, art);
    EXPECT_TRUE(frame->Files().OpenPicture(art / sample.filename()));
    return art / sample.filename();
  }

  fs::path art = folder / "art", out = folder / "out", temporary = folder / "temporary";
};

TEST_F(CommandLineTest, WritesEveryFormatAsTheEditorDoes) {
  const std::set<fs::path> samples = Samples();
  ASSERT_GE(samples.size(), 14U);
  for (const std::string exact : {"", "--exact "}) {
    settings.Write(files::kReadFilesExactly, exact.empty() ? "0" : "1");
    Start();
    for (const fs::path& sample : samples) {
      SCOPED_TRACE(exact + sample.string());
      // A file without a background leaves the editor's.
      const std::string background = "--background " + std::to_string(Picture().BackgroundColour.Number());
      const std::string convert = "convert " + exact + background + " '" + sample.string() + "'";
      const fs::path opened = Opened(sample);
      for (const files::ExportFormat& format : files::kExportFormats) {
        const std::string name = "x." + std::string(format.ending);
        EXPECT_EQ(Made(convert, name), files::EncodeAs(files::FormatOf(format.type), Picture()));
        EXPECT_EQ(Made("convert --exact " + name, "back.koa"), Made(convert, "straight.koa"));
      }
      const auto image = images::ImageOf(Picture(), files::LoadPalette("Kelvo"), images::ImageSize::kScreen, 1);
      EXPECT_EQ(Made(convert, "x.png"), images::PngOf(image));
      Made("convert --exact x.koa", "x.gg");
      EXPECT_EQ(Made("convert x.gg", "packed.koa"), ReadFile(out / "x.koa"));
      Action("mnuSave")->trigger();
      EXPECT_EQ(Made(convert, "x.kvp"), ReadFile(fs::path(opened).replace_extension(".kvp")));
    }
    frame.reset();
  }
}

TEST_F(CommandLineTest, BuildsTheEditorsPrograms) {
  if (!support::IsInstalled("64tass") || !support::IsInstalled("c1541")) GTEST_SKIP() << "this needs 64tass and c1541";
  const fs::path vice = folder / "vice";
  fs::create_directories(vice);
  const fs::path rights = folder / "rights";  // of the folder that a picture is built in
  support::WriteText(vice / "c1541", "#!/bin/sh\nls -ld \"$TMPDIR\"/kelvo-cli-* >'" + rights.string() +
                                         "' 2>/dev/null\nexec c1541 \"$@\"\n");
  fs::permissions(vice / "c1541", fs::perms::owner_all);
  support::WriteText(vice / "x64", "an emulator, to look at");
  settings.Write(c64out::kVicePath, vice.string());
  Start();
  const fs::path gfx = fs::path(KELVO_SHARE) / "GFX";
  Shell("kelvo-cli disk '" + gfx.string() + "'/*.kvp all.d64");
  for (const std::string name : {"kelvo", "landscape", "planet", "testcard"}) {
    SCOPED_TRACE(name);
    Opened(gfx / (name + ".kvp"));
    Action("mnuCreatePRGCompopic")->trigger();
    const app::Bytes program = ReadFile(art / (name + ".prg"));
    EXPECT_FALSE(program.empty());
    Shell("c1541 all.d64 -read " + name + ".prg");
    EXPECT_EQ(ReadFile(out / (name + ".prg")), program);
  }
  Action("mnuCreateD64CompoPic")->trigger();
  const std::string card = " '" + (gfx / "testcard.kvp").string() + "'";
  EXPECT_EQ(Made("disk --vice '" + vice.string() + "'" + card, "one.d64"), ReadFile(art / "testcard.d64"));
  EXPECT_TRUE(support::ReadText(rights).starts_with("drwx------"));
  EXPECT_EQ(Made("program" + card, "one.prg"), ReadFile(art / "testcard.prg"));
  EXPECT_EQ(Shell("kelvo-cli show one.prg shown.png && kelvo-cli render --border" + card +
                  " seen.png && cmp shown.png seen.png")
                .exit_code,
            0);
  Made("program --fade-in --key-ends" + card, "both.prg");
  EXPECT_EQ(
      Shell("kelvo-cli show both.prg | grep -q 'runs on.*' && kelvo-cli show both.prg - | cmp - seen.png").exit_code,
      0);
  EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(CommandLineTest, TurnsImagesIntoPictures) {
  const std::string planet = "'" + (fs::path(KELVO_SHARE) / "GFX/planet.kvp").string() + "'";
  for (const std::string options : {"", "--border --scale 3", "--palette Colodore --scale 2"}) {
    Made("render " + options + " " + planet, "i.png");
    Made("convert --exact i.png", "back.kvp");
    EXPECT_EQ(Shell("kelvo-cli check i.png && kelvo-cli diff back.kvp " + planet).exit_code, 0) << options;
  }
  EXPECT_EQ(Shell("kelvo-cli check --background 3 i.png").exit_code, 1);
  const std::string home =
      "mkdir -p c/Kelvo; printf '[Settings]\nPalette=Pepto\n' >c/Kelvo/Kelvo.conf; export XDG_CONFIG_HOME=$PWD/c; ";
  for (const auto& [asks, palette] : {std::pair{"--settings ", "Pepto"}, {"", "Kelvo"}}) {
    EXPECT_EQ(Shell(home + "kelvo-cli render " + asks + planet + " a.png; kelvo-cli render --palette " + palette + " " +
                    planet + " - | cmp - a.png")
                  .exit_code,
              0);
  }
  EXPECT_EQ(Shell("kelvo-cli check '" KELVO_EXAMPLE "/face.png'").exit_code, 1);
  const std::string face = "convert '" KELVO_EXAMPLE "/face.png' ";
  EXPECT_EQ(Shell("kelvo-cli convert --exact '" KELVO_EXAMPLE "/face.png' x.kvp").exit_code, 1);
  std::set<std::string> different;
  for (const std::string options :
       {"", "--dither strong", "--dither none", "--background 2", "--palette Pepto", "--fit stretch"}) {
    Made("convert " + options + " '" KELVO_EXAMPLE "/face.png'", "face.kvp");
    different.insert(ReadText(out / "face.kvp"));
  }
  EXPECT_EQ(different.size(), 5U);  // an image of a screen's shape fits as it is
  EXPECT_EQ(ReadFile(out / "face.kvp"), Made(face, "again.kvp"));
}

TEST_F(CommandLineTest, MakesTheExamplesDisk) {
  if (!support::IsInstalled("64tass") || !support::IsInstalled("c1541") || !support::IsInstalled("make")) {
    GTEST_SKIP() << "this needs 64tass, c1541 and make";
  }
  EXPECT_EQ(Shell("cp '" KELVO_EXAMPLE
                  "'/* . && make -j2 && for p in sunset castle face; do c1541 pictures.d64 -read $p.prg && "
                  "kelvo-cli show $p.prg shown.png && kelvo-cli render --exact --border $p.kvp seen.png && cmp "
                  "shown.png seen.png "
                  "|| exit 1; done && make | grep 'up to date'")
                .exit_code,
            0);
}

TEST_F(CommandLineTest, TakesTheSameSpritesForEveryAssembler) {
  if (!support::IsInstalled("64tass")) GTEST_SKIP() << "this needs 64tass";
  const std::string planet = "'" + (fs::path(KELVO_SHARE) / "GFX/planet.kvp").string() + "'";
  const std::string take =
      "for f in kelvo 64tass acme kickass ca65 bin spd; do kelvo-cli sprites --at 20,9 --grid 3x2 --format $f " +
      planet + " $f 2>>lost; done; grep -q 'transparent$' lost && ";
  const std::string same =
      "for f in acme kickass ca65; do sed 's,^//,;,; s/!byte/.byte/; s/:$//' $f | cmp - 64tass || exit 1; done; ";
  const std::string assemble =
      "for f in kelvo 64tass; do 64tass -q -b -o $f.bytes $f || exit 1; done; cmp 64tass.bytes bin && ";
  const std::string others =
      "tail -c +10 spd | head -c 384 | cmp - bin && cmp -n 63 kelvo.bytes bin && [ $(wc -c <spd) = 397 ]";
  const support::ToolRun run = Shell(take + same + assemble + others);
  EXPECT_EQ(run.exit_code, 0) << run.errors;
}

TEST_F(CommandLineTest, DoesManyAsOneByOne) {
  support::WriteFile(out / "a.koa", support::CountingBytes(10003));
  const std::string many = "for i in $(seq 100); do cp a.koa $i.koa; done; mkdir made alone; rm a.koa; ";
  EXPECT_EQ(
      Shell(many + "kelvo-cli info --json *.koa >all && for f in *.koa; do kelvo-cli info --json $f; done >each && "
                   "cmp all each && kelvo-cli convert --to png *.koa made && cd made && [ $(ls | wc -l) = 100 ] && "
                   "for i in 7 99; do kelvo-cli convert ../$i.koa x && cmp x $i.png; done 2>/dev/null || "
                   "kelvo-cli convert ../7.koa x.png && cmp x.png 7.png")
          .exit_code,
      0);
  // The one that cannot be read is told at its place, and nothing is written.
  const support::ToolRun run = Shell("echo short >50.koa && kelvo-cli convert --to png *.koa alone");
  EXPECT_EQ(run.exit_code, 2);
  EXPECT_EQ(run.errors, "kelvo-cli: 50.koa: A file of this type has 10003 bytes, this one has 6.\n");
  EXPECT_TRUE(fs::is_empty(out / "alone"));
  EXPECT_EQ(Shell("rm 50.koa; mkdir alone/99.png; kelvo-cli convert --to png *.koa alone").exit_code, 2);
  EXPECT_EQ(support::NamesIn(out / "alone"), support::Lines{"99.png"});
}

TEST_F(CommandLineTest, SaysWhatMakesNoSense) {
  support::WriteFile(out / "a.koa", support::CountingBytes(10003));
  support::WriteFile(out / "b.kla", support::CountingBytes(10003));
  support::WriteText(out / "t.svg", "<svg xmlns='http://www.w3.org/2000/svg'><text>A</text></svg>");
  support::WriteText(out / "odd.kvp", "odd");
  support::WriteText(out / "i.png", "\x89PNG\r\n");
  struct Case {
    std::string line;
    int code;
    std::string says;
  };
  for (const Case& wrong : std::vector<Case>{
           {"", 2, "nothing to do"},
           {"frob", 2, "no command \"frob\""},
           {"convert a.koa", 2, "missing: IN... OUT"},
           {"diff a.koa a.koa a.koa", 2, "\"a.koa\" is too much"},
           {"info --frob a.koa", 2, "no option --frob"},
           {"render --scale 9 a.koa x.png", 2, "\"9\" is no number from 1 to 8"},
           {"render --scale 1 --scale 2 a.koa x.png", 2, "--scale"},
           {"render --aspect ntsc a.koa x.png", 2, "none of pal"},
           {"render a.koa a.koa", 2, "read and written"},
           {"convert --background 16 a.koa x.kvp", 2, "from 0 to 15"},
           {"convert a.koa x.foo", 2, "its name tells no format"},
           {"convert a.koa .", 2, "this is a folder"},
           {"convert a.koa gone/x.kvp", 2, "cannot be written"},
           {"convert --to kvp a.koa b.kla x.kvp", 2, "into a folder"},
           {"convert --to kvp a.koa ./a.koa .", 2, "would become a.kvp"},
           {"convert --to koa a.koa .", 2, "read and written"},
           {"convert - -", 2, "standard output: its name tells no format"},
           {"convert a.koa /dev/null --to kvp", 2, "not an ordinary file"},
           {"convert a.koa - --to kvp >/dev/full", 2, "No space left"},
           {"diff - - <a.koa", 2, "once only"},
           {"info .", 2, "this is a folder"},
           {"info gone.kvp", 2, "no such file"},
           {"info odd.kvp", 2, "10050 or 10057 bytes, this one has 3"},
           {"info - <odd.kvp", 2, "standard input: No picture format"},
           {"info i.png", 2, "this is an image"},
           {"info -- --json", 2, "--json: there is no such file"},
           {"info $(printf '\\377.kvp')", 2, "\xff.kvp: there is no such file"},
           {"convert a.koa \U0001F600.kvp && kelvo-cli info --json \U0001F600.kvp | grep -q 'D83D.uDE00' && rm "
            "\U0001F600.kvp",
            0, ""},
           {"diff a.koa b.kla --background 3", 0, ""},
           {"diff a.koa - <b.kla", 0, ""},
           {"convert a.koa x.vid && kelvo-cli diff --exact a.koa x.vid >d", 1, ""},
           {"sprites a.koa", 2, "--at is missing"},
           {"sprites --at 0,1 a.koa", 2, "is not COL,ROW"},
           {"sprites --at 38,1 --grid 2x1 a.koa", 2, "beyond the picture"},
           {"disk --name n a.koa b.kla x.d64", 2, "for one picture"},
           {"disk a.koa ./a.koa x.d64", 2, "two programs would be called a.prg"},
           {"animation gone x.prg", 2, "there is no such folder"},
           {"animation . x.foo", 2, "becomes a .prg, a .d64 or a .gif"},
           {"animation --playing back . x.prg", 2, "none of once round to-and-fro"},
           {"animation --rate 26 . x.prg", 2, "no number from 1 to 25"},
           {"convert t.svg x.kvp", 2, "made of lines"},
           {"convert i.png x.kvp", 2, "i.png: no image"},
           {"convert --dither fine a.koa x.kvp", 2, "for images"},
           {"check a.koa", 2, "no image"},
           {"disk --vice gone a.koa x.d64", 2, "c1541"},
           {"show a.koa", 1, "a.koa: "},
           {"send a.koa", 2, "where to"},
           {"send --run --jump-to 0801 --host h a.koa", 2, "contradicts"},
           {"completion fish", 2, "bash and zsh"},
       }) {
    SCOPED_TRACE(wrong.line);
    const support::ToolRun run = Shell("exec 3>&1; kelvo-cli " + wrong.line);
    EXPECT_EQ(run.exit_code, wrong.code);
    EXPECT_NE(run.errors.find(wrong.says), std::string::npos) << run.errors;
    EXPECT_EQ(run.errors.empty(), wrong.says.empty()) << run.errors;
  }
  EXPECT_EQ(support::NamesIn(out), (support::Lines{"a.koa", "b.kla", "d", "i.png", "odd.kvp", "t.svg", "x.vid"}));
  EXPECT_EQ(Shell("kelvo-cli manual 2>errors | true; [ ! -s errors ]").exit_code, 0);
}

}  // namespace
}  // namespace kelvo::ui
