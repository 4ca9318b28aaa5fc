// Real child processes that behave and misbehave.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "app/path_text.h"
#include "support/pictures.h"
#include "support/temp_folder.h"
#include "ui/qt_tool_runner.h"

#ifndef _WIN32

namespace kelvo::ui {
namespace {

namespace fs = std::filesystem;

class ToolRunnerTest : public testing::Test {
 protected:
  // A tool that is a shell script of these lines.
  c64out::ToolCommand Tool(const std::string& lines, std::vector<std::string> arguments = {}) {
    const fs::path tool = folder / "tool";
    support::WriteText(tool, "#!/bin/sh\n" + lines + "\n");
    permissions(tool, fs::perms::owner_all);
    return {app::TextFromPath(tool), std::move(arguments)};
  }
  std::string FailureOf(const std::string& lines) { return runner.RunAndWait(Tool(lines)).failure; }
  bool IsThereSoon(const char* name) {
    return QTest::qWaitFor([&] { return fs::exists(folder / name); }, 5000);
  }
  std::string PathOf(const char* name) const { return "'" + app::TextFromPath(folder / name) + "'"; }

  support::TempFolder folder;
  QtToolRunner runner;
};

TEST_F(ToolRunnerTest, ArgumentsArriveAsTheyAre) {
  const std::vector<std::string> odd{"a b", "\"q\"", "'", "$HOME", "&", ";ls", "", "\u00e4\u00f6", "*"};
  const auto result = runner.RunAndWait(Tool("printf '%s\\n' \"$@\" > " + PathOf("out"), odd));
  EXPECT_EQ(result.failure, "");
  std::string expected;
  for (const std::string& argument : odd) expected += argument + "\n";
  EXPECT_EQ(support::ReadText(folder / "out"), expected);
}

TEST_F(ToolRunnerTest, SaysWhyAToolFailed) {
  EXPECT_EQ(FailureOf("echo noise"), "");
  EXPECT_EQ(FailureOf("exit 3"), "ended with code 3");
  EXPECT_EQ(FailureOf("echo; echo ' what is wrong '; echo more >&2; exit 1"), "what is wrong");
  EXPECT_EQ(FailureOf("echo begin; echo 'C64MEM: Error - no ROM'; echo end; exit 1"), "C64MEM: Error - no ROM");
  EXPECT_EQ(FailureOf("kill -9 $$"), "crashed");
  EXPECT_EQ(FailureOf("cat; exit 4"), "ended with code 4");  // there is no input to wait for
  EXPECT_EQ(FailureOf("head -c 5000000 /dev/zero | tr '\\0' x; exit 1"), std::string(200, 'x'));
  const auto not_executable = Tool("exit 0");
  permissions(folder / "tool", fs::perms::owner_read);
  EXPECT_TRUE(runner.RunAndWait(not_executable).failure.starts_with("could not be started: "));
  EXPECT_TRUE(runner.RunAndWait({"/gone/tool", {}}).failure.starts_with("could not be started: "));
}

TEST_F(ToolRunnerTest, AStopEndsAToolWithItsChildren) {
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(IsThereSoon("started"));
    runner.Stop();
  });
  const auto result = runner.RunAndWait(
      Tool("(sleep 1; touch " + PathOf("survived") + ") & touch " + PathOf("started") + "; sleep 60"));
  EXPECT_TRUE(result.stopped);
  QTest::qWait(1500);
  EXPECT_FALSE(fs::exists(folder / "survived"));
}

TEST_F(ToolRunnerTest, AToolThatLeavesAChildBehindIsDone) {
  const std::string child =
      "(while [ ! -e " + PathOf("go") + " ]; do sleep 0.05; done; touch " + PathOf("done") + ") &";
  EXPECT_EQ(FailureOf(child + " echo ready"), "");
  EXPECT_FALSE(fs::exists(folder / "done"));
  support::WriteText(folder / "go", "");
  EXPECT_TRUE(IsThereSoon("done"));
}

TEST_F(ToolRunnerTest, AProgramThatIsLookedAtOutlivesTheWait) {
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(IsThereSoon("started"));
    EXPECT_TRUE(runner.IsShowing());
    runner.Stop();
  });
  const auto result = runner.ShowAndWait(
      Tool("touch " + PathOf("started") + "; sleep 1; echo still here; touch " + PathOf("survived")));
  EXPECT_FALSE(result.stopped);
  EXPECT_EQ(result.failure, "");
  EXPECT_FALSE(fs::exists(folder / "survived"));
  EXPECT_TRUE(IsThereSoon("survived"));
  EXPECT_EQ(runner.ShowAndWait(Tool("echo no ROMs >&2; exit 1")).failure, "no ROMs");
}

}  // namespace
}  // namespace kelvo::ui

#endif
