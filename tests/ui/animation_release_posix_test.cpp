// Animations leave Kelvo by the menu and by kelvo-cli as the same programs, disks and GIFs, which play every frame for its
// time; and what cannot be made is said in a line, and leaves all as it was.
#include <QComboBox>
#include <QFileDialog>
#include <QImageReader>

#include "anim/frame_times.h"
#include "c64/beam.h"
#include "c64out/output_settings.h"
#include "files/picture_format.h"
#include "files/palette_file.h"
#include "images/picture_png.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"
#include "support/run_tool.h"
#include "ui/windows/release_dialog.h"

namespace kelvo::ui {
namespace {

namespace fs = std::filesystem;
using Shown = std::vector<std::pair<int, int>>;  // a frame's place, and for how many fields

class AnimationReleaseTest : public MainFrameTest {
 protected:
  void SetUp() override {
    if (!support::IsInstalled("64tass") || !support::IsInstalled("c1541")) GTEST_SKIP() << "this needs 64tass, c1541";
    folders.Create();
    folders.Seed(KELVO_SHARE);
    for (const fs::path& place : {frames, out, folder / "vice"}) create_directories(place);
    support::RunTool("sh", {"-c", "ln -s $(command -v c1541) '" + (folder / "vice").string() + "'"});
    support::WriteText(folder / "vice/x64", "an emulator, to look at");
    settings.Write(c64out::kVicePath, (folder / "vice").string());
    settings.Write(anim::kFolder, frames.string() + "/");
    settings.Write(anim::kAnimPrefix, "walk_");
    Start();
  }

  fs::path FrameFile(int number) const {
    return frames / anim::FrameNames({{}, "walk_"}).FileName(number);
  }
  // Frames of a random ground, in each of which other cells look otherwise.
  void WriteFrames(const std::vector<int>& numbers, int cells) {
    pictures.clear();
    for (const int number : numbers) {
      model::PictureImage picture = pictures.empty() ? support::RandomPicture(5) : pictures.back();
      for (int i = 0; i < cells; ++i) {
        const auto line = static_cast<std::uint8_t>(number * 37 + i);
        support::SetCell(picture, (number * 131 + i * 7) % 1000 + 1, {line, 27, line, 228, 1, 2, line, 99}, number % 16,
                         (number + i) % 16, i % 16);
      }
      pictures.push_back(picture);
      support::WriteFile(FrameFile(number), files::Encode(picture));
      pictures.back() = files::Decode(files::FormatOf(files::kOwnType), support::ReadFile(FrameFile(number)), {});
    }
  }

  support::ToolRun Cli(const std::string& line) const {
    return support::RunTool("sh", {"-c", "cd '" + out.string() + "' && '" KELVO_CLI "' animation --prefix walk_ " + line});
  }
  app::Bytes Made(const std::string& options, const std::string& name) const {
    const support::ToolRun run = Cli(options + " '" + frames.string() + "' " + name);
    EXPECT_EQ(run.exit_code, 0) << run.errors;
    return support::ReadFile(out / name);
  }
  // Chooses an entry of the menu and goes through its dialog, which is as `look` finds it.
  template <typename Look>
  void Release(const char* entry, Look look) {
    InNextDialog([look](QDialog& dialog) {
      look(dialog);
      QAbstractButton* create = dialog.findChild<QAbstractButton*>("cmdStd");
      create->isEnabled() ? create->click() : dialog.reject();
    });
    Action(entry)->trigger();
  }
  void ChooseFile(const fs::path& path) {
    InNextDialog<QFileDialog>([path](QFileDialog& dialog) {
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(app::TextFromPath(path)));
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
  }

  int PlaceOf(const c64::Screen& screen) const {
    for (std::size_t i = 0; i < pictures.size(); ++i) {
      bool is_same = true;
      for (int pixel = 0; is_same && pixel < 160 * 200; ++pixel) {
        const int x = pixel % 160, y = pixel / 160, colour = support::ColourAt(pictures[i], x + 1, y + 1);
        is_same = screen.At(2 * x, y) == colour && screen.At(2 * x + 1, y) == colour;
      }
      if (is_same) return static_cast<int>(i);
    }
    return -1;
  }
  // What a C64 shows from the first frame on.
  Shown Played(const app::Bytes& program, std::size_t turns) const {
    c64::Machine machine;
    machine.LetItChangeWhatIsShown();
    machine.Load(program);
    c64::Beam beam(machine);
    machine.Start();
    Shown shown;
    for (int field = 0; field < 2000 && shown.size() <= turns; ++field) {
      const int place = PlaceOf(beam.NextField());
      if (shown.empty() && place != 0) continue;
      if (shown.empty() || shown.back().first != place) shown.emplace_back(place, 0);
      ++shown.back().second;
    }
    shown.resize(std::min(shown.size(), turns));  // the last one may go on
    return shown;
  }

  fs::path frames = folder / "frames", out = folder / "out";
  std::vector<model::PictureImage> pictures;
};

TEST_F(AnimationReleaseTest, TheMenuAndTheCommandLineMakeTheSameAndItPlays) {
  WriteFrames({2, 3, 7, 8}, 12);
  support::WriteText(frames / "walk-times.txt", "# stays\n\n 7  3 # so long\r\n");
  // At 12 a second a turn has four fields, every sixth five.
  for (const auto& [playing, word, shown] :
       {std::tuple{0, "once", Shown{{0, 4}, {1, 4}, {2, 13}}},
        {1, "round", {{0, 4}, {1, 4}, {2, 13}, {3, 4}, {0, 4}, {1, 4}, {2, 13}, {3, 4}}},
        {2, "to-and-fro", {{0, 4}, {1, 4}, {2, 13}, {3, 4}, {2, 13}, {1, 4}, {0, 4}, {1, 4}, {2, 13}}}}) {
    SCOPED_TRACE(word);
    const auto choose = [playing = playing](QDialog& dialog) {
      dialog.findChild<QSpinBox*>("rate")->setValue(12);
      dialog.findChild<QComboBox*>("cboPlaying")->setCurrentIndex(playing);
      EXPECT_EQ(dialog.findChild<QLabel*>("lblNotes")->text(), "Frames 4, 5 and 6 are missing.");
    };
    Release("mnuCreatePRGAnimation", choose);
    EXPECT_EQ(PromptLines().last(), "--> PRG complete.");
    EXPECT_FALSE(PromptLines().join("").contains("Note"));
    const std::string options = std::string("--rate 12 --playing ") + word;
    const app::Bytes program = support::ReadFile(frames / "walk.prg");
    EXPECT_EQ(Made(options, "cli.prg"), program);
    EXPECT_EQ(Played(program, shown.size()), shown);
    Release("mnuCreateD64Animation", [](QDialog&) {});
    fs::remove(out / "menu.gif");
    EXPECT_EQ(Made(options + " --name walk", "cli.d64"), support::ReadFile(frames / "walk.d64"));
    InNextDialog([this](QDialog& dialog) {
      ChooseFile(out / "menu.gif");
      dialog.findChild<QSpinBox*>("scale")->setValue(2);
      dialog.findChild<QAbstractButton*>("cmdStd")->click();
    });
    Action("mnuExportAnimationGif")->trigger();
    EXPECT_EQ(Made(options + " --scale 2", "cli.gif"), support::ReadFile(out / "menu.gif"));
  }
}

}  // namespace
}  // namespace kelvo::ui
