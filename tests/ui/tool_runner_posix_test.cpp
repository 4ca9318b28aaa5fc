// Signals to the program, and tools that are shell scripts.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <csignal>

#include "app/path_text.h"
#include "support/files.h"
#include "ui/ports/qt_text.h"
#include "ui/ports/qt_tool_runner.h"
#include "ui/ports/sudden_end.h"

namespace kelvo::ui {
namespace {

TEST(SuddenEnd, LeavesASignalIgnoredThatWasSoAtTheStart) {
  const auto before = std::signal(SIGHUP, SIG_IGN);
  int rescues = 0;
  {
    const SuddenEnd end([&rescues] { ++rescues; });
    std::raise(SIGHUP);
    QTest::qWait(50);
    EXPECT_EQ(rescues, 0);
    struct sigaction handled {};
    sigaction(SIGTERM, nullptr, &handled);
    EXPECT_NE(handled.sa_handler, SIG_DFL);
  }
  EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
}

class ToolRunnerTest : public testing::Test {
 protected:
  // A tool that is a shell script of these lines; it runs in a folder of the test's own.
  c64out::ToolCommand Tool(const std::string& lines) {
    support::WriteText(tool, "#!/bin/sh\ncd '" + app::TextFromPath(folder.Path()) + "'\n" + lines + "\n");
    permissions(tool, std::filesystem::perms::owner_all);
    return {app::TextFromPath(tool), {}};
  }
  std::string FailureOf(const std::string& lines) { return runner.RunAndWait(Tool(lines)).failure; }
  bool IsThereSoon(const char* name) {
    return QTest::qWaitFor([&] { return exists(folder / name); }, 5000);
  }
  void StopOnceStarted() {
    QTimer::singleShot(0, &runner, [this] {
      EXPECT_TRUE(IsThereSoon("started"));
      runner.Stop();
    });
  }

  support::TempFolder folder;
  std::filesystem::path tool = folder / "tool";
  QtToolRunner runner;
};

TEST_F(ToolRunnerTest, SaysWhyAToolFailed) {
  QStringList told;
  QObject::connect(&runner, &QtToolRunner::Told, [&](const QString& line) { told << line; });
  EXPECT_EQ(FailureOf("printf '1 of 2\\r2 of 2\\rwhy\\r\\nmore'; exit 1"), "why");
  EXPECT_EQ(told, (QStringList{"1 of 2", "2 of 2", "why"}));
  EXPECT_EQ(FailureOf("echo noise"), "");
  EXPECT_EQ(FailureOf("exit 3"), "ended with code 3");
  EXPECT_EQ(FailureOf("echo; echo ' what is wrong '; echo more >&2; exit 1"), "what is wrong");
  EXPECT_EQ(FailureOf("echo begin; echo 'C64MEM: Error - no ROM'; echo end; exit 1"), "C64MEM: Error - no ROM");
  EXPECT_EQ(FailureOf("kill -9 $$"), "crashed");
  EXPECT_EQ(FailureOf("cat; exit 4"), "ended with code 4");  // there is no input to wait for
  EXPECT_EQ(FailureOf("head -c 5000000 /dev/zero | tr '\\0' x; exit 1"), std::string(200, 'x'));
  EXPECT_EQ(runner.ShowAndWait(Tool("echo no ROMs >&2; exit 1")).failure, "no ROMs");
  permissions(tool, std::filesystem::perms::owner_read);
  for (const std::string& cannot_start : {app::TextFromPath(tool), std::string("/gone/tool")}) {
    EXPECT_TRUE(runner.RunAndWait({cannot_start, {}}).failure.starts_with("could not be started: "));
  }
}

TEST_F(ToolRunnerTest, AStopEndsAToolWithItsChildren) {
  StopOnceStarted();
  EXPECT_TRUE(runner
                  .RunAndWait(Tool("(sleep 1; touch survived) & setsid sh -c 'sleep 1; touch survived' &\n"
                                   "(setsid sh -c 'sleep 1; touch survived' &) ; touch started; sleep 60"))
                  .stopped);
  QTest::qWait(1500);
  EXPECT_FALSE(exists(folder / "survived"));
}

#ifdef __linux__
// In a program of its own this runs a tool until it is killed.
TEST_F(ToolRunnerTest, AToolEndsWithAProgramThatIsKilled) {
  constexpr const char* kTool = "KELVO_TEST_TOOL";
  if (qEnvironmentVariableIsSet(kTool)) {
    runner.RunAndWait({qgetenv(kTool).toStdString(), {}});
    return;
  }
  QProcess program;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(kTool, ToQt(Tool("touch started; sleep 1; touch survived").tool));
  program.setProcessEnvironment(environment);
  program.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=ToolRunnerTest.AToolEndsWithAProgram*"});
  EXPECT_TRUE(IsThereSoon("started"));
  program.kill();
  QTest::qWait(1500);
  EXPECT_FALSE(exists(folder / "survived"));
}
#endif

TEST_F(ToolRunnerTest, AToolIsEndedBeforeTheProgramIs) {
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(IsThereSoon("started"));
    runner.EndNow();
    const pid_t process = std::stoi(support::ReadText(folder / "started"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return ::kill(process, 0) != 0; }));
  });
  runner.RunAndWait(Tool("printf $$ > pid; mv pid started; exec sleep 60"));
}

TEST_F(ToolRunnerTest, WhatIsLeftRunningGoesOn) {
  EXPECT_EQ(FailureOf("(while [ ! -e go ]; do sleep 0.05; done; touch done) & echo ready"), "");
  EXPECT_FALSE(exists(folder / "done"));
  support::WriteText(folder / "go", "");
  EXPECT_TRUE(IsThereSoon("done"));

  StopOnceStarted();  // a program that is looked at outlives the wait
  const auto shown = runner.ShowAndWait(Tool("touch started; sleep 1; echo still here; touch survived"));
  EXPECT_FALSE(shown.stopped);
  EXPECT_EQ(shown.failure, "");
  EXPECT_FALSE(exists(folder / "survived"));
  EXPECT_TRUE(IsThereSoon("survived"));
}

}  // namespace
}  // namespace kelvo::ui
