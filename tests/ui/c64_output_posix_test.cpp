// Builds from the menu of the real main window with the real tools: what comes out runs on a C64.
#include <QLockFile>
#include <csignal>
#include <iterator>
#include <sstream>

#include "c64/kernal_disk.h"
#include "c64out/output_settings.h"
#include "c64out/vice_folder.h"
#include "files/picture_format.h"
#include "main_frame_fixture.h"
#include "support/codenet_server.h"
#include "support/run_tool.h"
#include "support/shown_picture.h"

namespace kelvo::ui {
namespace {

namespace fs = std::filesystem;

constexpr std::uint16_t kCodenetPort = 6462;

class C64OutputTest : public MainFrameTest {
 protected:
  void SetUp() override {
    if (!support::IsInstalled("64tass")) GTEST_SKIP() << "this needs 64tass";
    folders.Create();
    folders.Seed(KELVO_SHARE);
    create_directories(vice);
    if (support::IsInstalled("c1541")) {
      support::RunTool("sh", {"-c", "ln -s $(command -v c1541) '" + vice.string() + "'"});
    }
    Script(vice / "x64", "exit 0");
    settings.Write(c64out::kVicePath, app::TextFromPath(vice));
    settings.Write(c64out::kCodenetC64Ip, "127.0.0.1");
    Start();
  }

  static void Script(const fs::path& file, const std::string& line) {
    remove(file);
    support::WriteText(file, "#!/bin/sh\n" + line + "\n");
    permissions(file, fs::perms::owner_all);
  }
  void Open(const std::string& name) {
    create_directories(art);
    ASSERT_TRUE(frame->Files().OpenPicture(support::WriteKoala(art / app::PathFromText(name))));
  }
  void ExpectShows(const app::Bytes& prg) {
    c64::Machine machine;
    support::ExpectShows(prg, frame->Document().picture, machine);
  }
  // Builds with a cruncher that hangs, and does `work` from within the event loop of that build.
  template <typename Work>
  void BuildHanging(Work work) {
    Script(folders.System() / "crush", "sleep 60");
    QTimer::singleShot(200, frame.get(), [this, work] {
      ASSERT_TRUE(frame->Builds().IsBuilding());
      work();
    });
    Action("mnuCreatePRGCompopic")->trigger();
  }

  fs::path art = folder / "art", vice = folder / "vice";
};

TEST_F(C64OutputTest, MakesAProgramThatShowsThePictureWhateverItsName) {
  for (const std::string& name :
       std::initializer_list<std::string>{"a b  c", "\"quoted\" 'too'", "$HOME", "a&b;touch x", "`touch y`",
                                          "\u00e4\u00d6\u00fc", "*", "-rf", std::string(200, 'n')}) {
    SCOPED_TRACE(name);
    Open(name + ".koa");
    Action("mnuCreatePRGCompopic")->trigger();
    EXPECT_EQ(PromptLines().last(), "--> PRG complete.");
    const app::Bytes made = support::ReadFile(art / app::PathFromText(name + ".prg"));
    EXPECT_TRUE(Panel("pnlWord").endsWith(QString(".prg, %1 bytes").arg(made.size()))) << FromQt(Panel("pnlWord"));
    ExpectShows(made);
    EXPECT_EQ(std::distance(fs::directory_iterator(art), {}), 2);
    remove_all(art);
  }
  EXPECT_FALSE(Action("mnuStopBuild")->isEnabled());
}

TEST_F(C64OutputTest, PutsTheProgramOnADiskAndShowsItInVice) {
  if (!support::IsInstalled("c1541")) GTEST_SKIP() << "this needs c1541, a part of VICE";
  const std::string blank = "'" + app::TextFromPath(folders.System() / "empty.d64") + "'";
  EXPECT_EQ(support::RunTool("sh", {"-c", "c1541 " + blank + " -validate -list | grep -q '^664 blocks'"}).exit_code, 0);
  Script(vice / "x64", "echo \"$@\" > '" + app::TextFromPath(folder / "called") + "'");
  Open("My Picture With A Long Name.koa");
  Action("mnuCreatePRGCompopic")->trigger();
  Action("mnuPreviewCompopicInVICE")->trigger();
  EXPECT_EQ(PromptLines().last(), "--> Launching VICE.");
  EXPECT_TRUE(Panel("pnlWord").endsWith("Name.d64, 174848 bytes"));
  const std::string image = app::TextFromPath(art / "My Picture With A Long Name.d64");
  EXPECT_EQ(support::ReadText(folder / "called"), "-autostart " + image + ":my picture with .prg\n");
  const fs::path extracted = folder / "extracted";
  EXPECT_EQ(support::RunTool("c1541", {image, "-read", "my picture with ", extracted.string()}).exit_code, 0);
  EXPECT_EQ(support::ReadFile(extracted), support::ReadFile(art / "My Picture With A Long Name.prg"));
}

TEST_F(C64OutputTest, AnotherPreviewLeavesTheShownOneRunningOrEndsIt) {
  if (!support::IsInstalled("c1541")) GTEST_SKIP() << "this needs c1541, a part of VICE";
  const std::string calls = app::TextFromPath(folder / "calls"), go = app::TextFromPath(folder / "go");
  Script(vice / "x64", "echo $$ >> '" + calls + "'; while [ ! -e '" + go + "' ]; do sleep 0.1; done");
  Open("pic.koa");
  for (const auto& [setting, lives_on] : {std::pair{"0", true}, {"1", false}}) {
    SCOPED_TRACE(setting);
    settings.Write(c64out::kOneEmulator, setting);
    remove(folder / "go");
    support::WriteText(folder / "calls", "");
    std::vector<pid_t> emulators;
    bool is_asked_again = false, first_lives = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, frame.get(), [&] {
      std::istringstream so_far(support::ReadText(calls));
      emulators.assign(std::istream_iterator<pid_t>(so_far), {});
      if (!is_asked_again && emulators.size() == 1 && Action("mnuPreviewCompopicInVICE")->isEnabled()) {
        is_asked_again = true;
        EXPECT_FALSE(frame->Builds().IsBuilding());
        EXPECT_FALSE(exists(folders.System() / "build.lock"));  // another program may build too
        Action("mnuPreviewCompopicInVICE")->trigger();
      } else if (emulators.size() == 2) {
        look.stop();
        first_lives = kill(emulators[0], 0) == 0;
        EXPECT_EQ(kill(emulators[1], 0), 0);
        support::WriteText(go, "");
      }
    });
    look.start(20);
    Action("mnuPreviewCompopicInVICE")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return emulators.size() == 2 && kill(emulators[1], 0) != 0; }, 60000));
    EXPECT_EQ(first_lives, lives_on);
  }
}

// The loader's own port can be taken only once, so all that needs it is one test.
TEST_F(C64OutputTest, AC64ShowsThePictureAndSavesIt) {
  const support::CodenetServer server({}, kCodenetPort);
  settings.Write(c64out::kCodenetPrgName, "my pic");
  Open("pic.koa");
  Action("mnuShowPreviewOnC64")->trigger();
  EXPECT_EQ(PromptLines().last(), "--> Transfer complete");
  codenet::ReceivingC64 c64 = server.Machine();
  EXPECT_EQ(c64.runs, 1);
  const auto memory = [&c64](int begin, int end) {
    app::Bytes bytes(c64.memory.begin() + begin - 2, c64.memory.begin() + end);
    bytes[0] = static_cast<std::uint8_t>(begin);
    bytes[1] = static_cast<std::uint8_t>(begin >> 8);
    return bytes;
  };
  int end = 0x10000;
  while (c64.memory[static_cast<std::size_t>(end) - 1] == 0) --end;
  ExpectShows(memory(0x0801, end));

  Action("mnuSaveCompopicOn15x1")->trigger();
  EXPECT_EQ(PromptLines().last(), "--> Saving...");
  c64 = server.Machine();
  EXPECT_EQ(c64.jumps, std::vector{0xCF00});
  c64::Machine machine;
  c64::KernalDisk disk(machine);
  machine.Load(memory(0x0801, end));
  machine.Load(memory(0xCF00, 0xD000));
  EXPECT_EQ(machine.RunFrom(0xCF00), c64::Machine::Ending::kReturns);
  EXPECT_EQ(disk.name, "MY.PIC");
  EXPECT_EQ(disk.start, 0x0801);
  EXPECT_EQ(disk.end, end + 2);  // the program file's size counts its load address
}

TEST_F(C64OutputTest, AHangingToolIsStoppedByEscapeOrTheEnd) {
  Open("pic.koa");
  BuildHanging([this] {
    QTest::keyPress(Box("frmZoom"), Qt::Key_Alt);
    Menu("mnuFile")->popup({});
    QTest::keyClick(Menu("mnuFile"), Qt::Key_Escape);  // closes the menu and no more
    QTest::keyRelease(Box("frmZoom"), Qt::Key_Escape);
    EXPECT_TRUE(frame->Builds().IsBuilding() && Find("pnlBuilding")->isVisible());
    EXPECT_FALSE(Action("mnuCreatePRGCompopic")->isEnabled() || Action("mnuShowPreviewOnC64")->isEnabled());
    Action("mnuCreateD64CompoPic")->trigger();  // an impatient click
    QTest::keyClick(Box("frmZoom"), Qt::Key_Escape);
  });
  EXPECT_EQ(PromptLines().last(), "--> Build stopped.");
  EXPECT_FALSE(Find("frmCommand")->isVisible());
  EXPECT_FALSE(exists(art / "pic.prg"));
  EXPECT_TRUE(Action("mnuCreatePRGCompopic")->isEnabled());
  BuildHanging([this] { frame->close(); });
  EXPECT_FALSE(frame->isVisible());
  EXPECT_EQ(PromptLines().filter("--> Build stopped.").size(), 2);
}

TEST_F(C64OutputTest, TwoProgramsDoNotBuildInEachOthersFiles) {
  InNextDialog([](QDialog& dialog) { dialog.reject(); });
  Action("mnuCreatePRGCompopic")->trigger();  // a picture without a file is saved first
  EXPECT_FALSE(PromptLines().contains("CREATING PRG"));
  Open("pic.koa");
  QLockFile other(ToQt(app::TextFromPath(folders.System() / "build.lock")));
  ASSERT_TRUE(other.tryLock(0));
  support::WriteText(folders.System() / "bmpshow.prg", "the other's");
  Action("mnuCreatePRGCompopic")->trigger();
  EXPECT_EQ(PromptLines().last(), "--> [err 908]");
  EXPECT_EQ(Panel("pnlWord"), "Build failed");
  EXPECT_EQ(Find("pnlWord")->backgroundRole(), QPalette::ToolTipBase);  // a warning's
  EXPECT_EQ(support::ReadText(folders.System() / "bmpshow.prg"), "the other's");
  other.unlock();
  Find("frmCommand")->parentWidget()->hide();
  remove(vice / "x64");
  AnswerNext(QMessageBox::Ok);
  Action("mnuCreatePRGCompopic")->trigger();
  EXPECT_EQ(box_text, "Invalid VICE path");
  EXPECT_FALSE(Find("frmCommand")->isVisible());  // a box has explained it
}

TEST_F(C64OutputTest, TheSettingsDecideWhatCanBeChosen) {
  settings.Write(c64out::kVicePath, app::TextFromPath(folder.Path()));
  AnswerNext(QMessageBox::Ok);
  Start();
  EXPECT_EQ(box_text, "Incorrect VICE path");
  EXPECT_FALSE(Action("mnuCreateD64CompoPic")->isEnabled());
  // What is typed as VICE's path, what a message box tells (the dialog stays then), whether VICE can be chosen.
  const std::tuple<std::string, QString, bool> cases[] = {
      {" " + app::TextFromPath(vice) + "/ ", "", true},
      {"/usr/bin/x64.exe", "The caption spells PATH, not executable.", true},
      {app::TextFromPath(art), "Incorrect VICE path", true},
      {"", "", false},
  };
  for (const auto& [typed, told, is_enabled] : cases) {
    SCOPED_TRACE(typed);
    box_text.clear();
    InNextDialog([&, path = ToQt(typed), stays = !told.isEmpty()](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "frmViceSettings");
      if (stays) AnswerNext(QMessageBox::Ok);
      FillIn(dialog, {{"VICEPath", path}, {"PRGName", " name of " + path}});
      EXPECT_EQ(dialog.isVisible(), stays);
      dialog.reject();
    });
    Action("mnuViceSettings")->trigger();
    EXPECT_EQ(box_text, told);
    EXPECT_EQ(Action("mnuPreviewCompopicInVICE")->isEnabled(), is_enabled);
    EXPECT_TRUE(Action("mnuShowPreviewOnC64")->isEnabled());
    EXPECT_EQ(ToQt(settings.Read(c64out::kVicePrgName)), QString("name of " + ToQt(typed)).trimmed());
  }
  EXPECT_EQ(settings.Read(c64out::kVicePath), app::TextFromPath(vice) + "/");
  InNextDialog([](QDialog& dialog) { FillIn(dialog, {{"C64IP", "  no address "}}); });
  Action("mnuCodenetSettings")->trigger();
  EXPECT_EQ(settings.values["CodenetSettings/C64IP"], "no address");
}

}  // namespace
}  // namespace kelvo::ui
