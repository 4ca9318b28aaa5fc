// Animations leave Kelvo by the menu and by kelvo-cli as the same programs, disks and GIFs, which play every frame for
// its time; and what cannot be made is said in a line, and leaves all as it was.
#include <QComboBox>
#include <QFileDialog>
#include <QImageReader>
#include <functional>
#include <numeric>
#include <optional>

#include "anim/frame_names.h"
#include "c64/beam.h"
#include "c64out/output_settings.h"
#include "files/palette_file.h"
#include "files/picture_format.h"
#include "images/picture_png.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"
#include "support/run_tool.h"

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

  fs::path FrameFile(int number) const { return frames / anim::FrameNames({{}, "walk_"}).FileName(number); }
  void WriteFrame(int number, model::PictureImage picture) const {
    files::Sign(picture);
    support::WriteFile(FrameFile(number), files::Encode(picture));
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
      WriteFrame(number, picture);
      pictures.push_back(files::Decode(files::FormatOf(files::kOwnType), support::ReadFile(FrameFile(number)), {}));
    }
  }

  support::ToolRun Cli(const std::string& line) const {
    return support::RunTool("sh",
                            {"-c", "cd '" + out.string() + "' && '" KELVO_CLI "' animation --prefix walk_ " + line});
  }
  app::Bytes Made(const std::string& options, const std::string& name) const {
    const support::ToolRun run = Cli(options + " '" + frames.string() + "' " + name);
    EXPECT_EQ(run.exit_code, 0) << run.errors;
    return support::ReadFile(out / name);
  }
  // Does `work` with the dialog of that name, once it is open: another may show how far the frames are read.
  void InDialog(const char* name, const std::function<void(QDialog&)>& work) {
    QTimer::singleShot(5, frame.get(), [this, name, work] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      dialog != nullptr && dialog->objectName() == name ? work(*dialog) : InDialog(name, work);
    });
  }
  // Chooses an entry of the menu and goes through its dialog, which is as `look` finds it.
  void Release(const char* entry, const std::function<void(QDialog&)>& look) {
    InDialog("frmRelease", [look](QDialog& dialog) {
      look(dialog);
      auto* create = dialog.findChild<QAbstractButton*>("cmdStd");
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

  // Each frame at twice its size, for its fields, as Qt reads it.
  void ExpectGif(const fs::path& file, const std::vector<int>& places, const std::vector<int>& fields,
                 int loops) const {
    QImageReader reader(ToQt(app::TextFromPath(file)));
    EXPECT_EQ(reader.imageCount(), static_cast<int>(places.size()));
    EXPECT_EQ(reader.loopCount(), loops);
    for (const int place : places) {
      const auto index = static_cast<std::size_t>(place);
      const QImage wanted =
          images::ImageOf(pictures[index], files::LoadPalette("Kelvo"), images::ImageSize::kScreen, 2);
      ASSERT_EQ(reader.read().convertToFormat(QImage::Format_RGB32), wanted.convertToFormat(QImage::Format_RGB32));
      EXPECT_EQ(reader.nextImageDelay(), 20 * fields[index]);
    }
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
    const bool goes_back = playing == 2;
    ExpectGif(out / "menu.gif", goes_back ? std::vector{0, 1, 2, 3, 2, 1} : std::vector{0, 1, 2, 3}, {4, 4, 13, 4},
              playing == 0 ? 0 : -1);
  }
}

// What is wrong in the folder, what is said of it, and whether that is when the frames are there already.
TEST_F(AnimationReleaseTest, WhatCannotBeMadeIsSaidInALineAndLeavesWhatIsThere) {
  const auto times = [this](const std::string& list) { support::WriteText(frames / "walk-times.txt", list); };
  struct Case {
    std::string says;
    std::function<void()> spoil;
    bool is_refused = false;
  };
  for (const Case& wrong : std::vector<Case>{
           {"There are no frames such as", [this] { fs::remove_all(frames), create_directories(frames); }},
           {"walk_0003.kvp: A file of this type has 10050 or 10057 bytes, this one has 2.",
            [this] { support::WriteText(FrameFile(3), "no"); }},
           {"walk-times.txt, line 2: a frame's number and", [&] { times("3 600\n3\n"); }},
           {"line 1: a frame's number and", [&] { times("3 601"); }},
           {"line 1: a frame's number and", [&] { times("0 1"); }},
           {"line 1: a frame's number and", [&] { times("3 1 1"); }},
           {"line 3: frame 3 has its turns already", [&] { times("3 1 # one\n4 2\n3 2"); }},
           {"Frame 3 has another background color than frame 1.",
            [this] {
              pictures[2].BackgroundColour = support::Colour(pictures[0].BackgroundColour.Number() ^ 1);
              WriteFrame(3, pictures[2]);
            },
            true},
           {"does not fit into the memory of a C64: 9",
            [this] {
              WriteFrames({1, 2, 3, 4, 5, 6, 7, 8, 9}, 990);
            },
            true},
       }) {
    SCOPED_TRACE(wrong.says);
    fs::remove(frames / "walk-times.txt");
    WriteFrames({1, 2, 3}, 5);
    wrong.spoil();
    for (const fs::path& older : {frames / "walk.prg", out / "x.prg"}) support::WriteText(older, "older");
    const support::ToolRun run = Cli("'" + frames.string() + "' x.prg");
    EXPECT_EQ(run.exit_code, wrong.is_refused ? 1 : 2);
    EXPECT_NE(run.errors.find(wrong.says), std::string::npos) << run.errors;
    box_text.clear();
    if (wrong.is_refused) {
      Release("mnuCreatePRGAnimation", [this](const QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QAbstractButton*>("cmdStd")->isEnabled());
        box_text = dialog.findChild<QLabel*>("lblAdvice")->text();
      });
    } else {
      AnswerNext(QMessageBox::Ok);
      Action("mnuCreatePRGAnimation")->trigger();
    }
    EXPECT_TRUE(box_text.contains(ToQt(wrong.says))) << FromQt(box_text);
    for (const fs::path& older : {frames / "walk.prg", out / "x.prg"}) EXPECT_TRUE(support::ReadText(older) == "older");
  }
}

// Two of the cells have a slot of their own in the colour that the background has, or gets.
TEST_F(AnimationReleaseTest, ABackgroundChangesWithItsFrameWhereThatIsWanted) {
  for (const int background : {3, 4}) {
    pictures.push_back(support::PictureWithCell(500, support::kAllSlots, 3, 5, 6, background));
    support::SetCell(pictures.back(), 501, support::kAllSlots, 4, 5, 6);
    WriteFrame(background, pictures.back());
    pictures.back() = files::Decode(files::FormatOf(files::kOwnType), support::ReadFile(FrameFile(background)), {});
  }
  Release("mnuCreatePRGAnimation",
          [](const QDialog& dialog) { dialog.findChild<QCheckBox*>("chkBackground")->click(); });
  EXPECT_EQ(PromptLines().last(), "--> PRG complete.");
  EXPECT_EQ(Made("--change-background", "cli.prg"), support::ReadFile(frames / "walk.prg"));
  EXPECT_EQ(Played(support::ReadFile(frames / "walk.prg"), 3), (Shown{{0, 5}, {1, 5}, {0, 5}}));
}

// A player that counts each field twice.
TEST_F(AnimationReleaseTest, ABuildTellsWhatAC64WouldNotPlay) {
  WriteFrames({1, 2, 3}, 5);
  const fs::path player = folders.System() / "animplay.src";
  std::string source = support::ReadText(player);
  source.insert(source.find("inc fields"), "inc fields\n                ");
  support::WriteText(player, source);
  Release("mnuCreatePRGAnimation", [](const QDialog&) {});
  EXPECT_TRUE(
      PromptLines().contains("--> Note: on a C64 this does not play the animation; frame 1 is not seen at its time."));
  support::WriteText(player, "  oops [animation]\n");
  Release("mnuCreatePRGAnimation", [](const QDialog&) {});
  EXPECT_TRUE(PromptLines()[PromptLines().size() - 2].startsWith("--> animplay.src, line 1: "));
  EXPECT_EQ(PromptLines().last(), "--> [err 908]");
  EXPECT_FALSE(fs::exists(folders.System() / "animplay.bin") || fs::exists(folders.System() / "animplay.tmp"));
}

TEST_F(AnimationReleaseTest, EscapeAndFramesThatGoLeaveNothingHalfMade) {
  WriteFrames({1, 2}, 5);
  for (int number = 3; number <= 3000; ++number) fs::create_hard_link(FrameFile(number % 2 + 1), FrameFile(number));
  // As soon as it is seen how far the work is, it is given up.
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && dialog->objectName() == "frmWork") QTest::keyClick(dialog, Qt::Key_Escape);
  });
  look.start(20);
  const auto export_to = [this](const char* entry, const fs::path& file) {
    InNextDialog([this, file](QDialog& dialog) {
      ChooseFile(file);
      dialog.findChild<QSpinBox*>("scale")->setValue(8);
      dialog.findChild<QAbstractButton*>("cmdStd")->click();
    });
    Action(entry)->trigger();
    EXPECT_EQ(Panel("pnlWord"), "Export stopped") << entry;
  };
  export_to("mnuExportAnimationGif", out / "x.gif");
  export_to("mnuExportAnimationPngs", out);
  EXPECT_TRUE(fs::is_empty(out));
  for (int number = 3; number <= 3000; ++number) fs::remove(FrameFile(number));
  std::vector<int> many(80);
  std::iota(many.begin(), many.end(), 1);
  WriteFrames(many, 990);
  Action("mnuCreatePRGAnimation")->trigger();
  EXPECT_EQ(Panel("pnlWord"), "Build stopped");
  look.stop();

  for (const int number : many) fs::remove(FrameFile(number));
  WriteFrames({1, 2, 3}, 5);
  Release("mnuCreatePRGAnimation", [this](QDialog& dialog) {
    fs::remove(FrameFile(3));
    AnswerNext(QMessageBox::Ok);
    dialog.findChild<QSpinBox*>("rate")->setValue(7);
  });
  EXPECT_EQ(box_text, ToQt(app::TextFromPath(FrameFile(3)) + ": there is no such file"));
  EXPECT_FALSE(fs::exists(frames / "walk.prg"));
}

TEST_F(AnimationReleaseTest, ImagesAreNumberedAsTheFramesAreAndReplacedWhenThatIsWanted) {
  WriteFrames({2, 9}, 5);
  fs::create_directory(out / ".kelvo-1.tmp");  // of a program that was killed
  const auto export_pngs = [this](std::optional<QMessageBox::StandardButton> answer) {
    InDialog("frmExportAnimation", [this, answer](QDialog& dialog) {
      InNextDialog<QFileDialog>([this, answer](QFileDialog& chooser) {
        if (answer) AnswerNext(*answer);
        chooser.findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(app::TextFromPath(out)));
        QTest::keyClick(&chooser, Qt::Key_Return);
      });
      dialog.findChild<QAbstractButton*>("cmdStd")->click();
    });
    Action("mnuExportAnimationPngs")->trigger();
    EXPECT_EQ(support::NamesIn(out), (support::Lines{"walk_0002.png", "walk_0009.png"}));
    return support::ReadFile(out / "walk_0009.png");
  };
  const auto image = images::ImageOf(pictures[1], files::LoadPalette("Kelvo"), images::ImageSize::kScreen, 1);
  EXPECT_EQ(export_pngs({}), images::PngOf(image));
  support::WriteText(out / "walk_0009.png", "!");
  EXPECT_EQ(export_pngs(QMessageBox::No).size(), 1U);
  EXPECT_EQ(export_pngs(QMessageBox::Yes), images::PngOf(image));
}

}  // namespace
}  // namespace kelvo::ui
