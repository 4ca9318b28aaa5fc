// Builds from the menu of the real main window, by the command interpreter and the tools that are shipped.
#include <windows.h>

#include "c64out/output_settings.h"
#include "main_frame_fixture.h"
#include "support/shown_picture.h"
#include "ui/ports/qt_tool_runner.h"

namespace kelvo::ui {
namespace {

namespace fs = std::filesystem;

class WindowsBuild : public MainFrameTest {
 protected:
  void ExpectBuildIn(const fs::path& place) {
    folders = app::ProgramFolders(place / "program");
    create_directories(folders.Root());
    folders.Create();
    folders.Seed(KELVO_SHARE);
    support::WriteText(place / "x64sc.exe", "an emulator, to look at");
    settings.Write(c64out::kVicePath, app::TextFromPath(place));
    Start();
    support::WriteKoala(place / "pic.koa");
    ASSERT_TRUE(frame->Files().OpenPicture(place / "pic.koa"));
    Action("mnuCreatePRGCompopic")->trigger();
    ASSERT_EQ(PromptLines().last(), "--> PRG complete.") << FromQt(PromptLines().join('\n'));
    c64::Machine machine;
    support::ExpectShows(support::ReadFile(place / "pic.prg"), frame->Document().picture, machine);
  }
};

TEST_F(WindowsBuild, WorksInAFolderOfAnyName) {
  for (const char* name : {"Pr\u00f6gramm \u0142 \u4f60\u597d & \u041f\u0440\u0438", "it's ^(1)^ [a] {b} =,;"}) {
    SCOPED_TRACE(name);
    ExpectBuildIn(folder / app::PathFromText(name));
  }
}

// The interpreter is one process, what it calls is another one.
TEST(WindowsTools, EndWithAllThatTheyStarted) {
  const support::TempFolder folder;
  const fs::path stamp = folder / "stamp.txt", tool = folder / "tool.bat";
  support::WriteText(tool, "ping -n 3 127.0.0.1 >NUL\r\necho late >" + app::TextFromPath(stamp) + "\r\n");
  QtToolRunner runner;
  QTimer::singleShot(500, &runner, &QtToolRunner::Stop);
  EXPECT_TRUE(runner.RunAndWait({app::TextFromPath(tool), {}}).stopped);
  QTest::qWait(3000);
  EXPECT_FALSE(exists(stamp));
}

}  // namespace
}  // namespace kelvo::ui
