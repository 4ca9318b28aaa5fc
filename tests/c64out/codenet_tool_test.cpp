// The loader itself, as a program, against a C64 on this machine: what becomes of the file that it is to send.
#ifndef _WIN32
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include "support/codenet_server.h"
#include "support/pictures.h"
#include "support/run_tool.h"

namespace kelvo {
namespace {

using Words = std::vector<std::string>;

class CodenetTool : public testing::Test {
 protected:
  // The tool with the options that say where the C64 is, and with `words` in front of them.
  support::ToolRun Send(Words words) const {
    words.insert(words.end(), {"-n", "127.0.0.1", "-p", std::to_string(server_.Port())});
    return support::RunTool(KELVO_CODENET, words);
  }

  std::string File(const char* name, const app::Bytes& bytes) const {
    support::WriteFile(folder_ / name, bytes);
    return (folder_ / name).string();
  }

  void ExpectSuccess(const Words& words) const {
    const support::ToolRun run = Send(words);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.exit_code, 0);
  }

  void ExpectMemory(std::size_t address, const app::Bytes& bytes) const {
    const app::Bytes memory = server_.Machine().memory;
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), memory.begin() + static_cast<std::ptrdiff_t>(address)));
  }

  support::TempFolder folder_;
  support::CodenetServer server_{{.loses_every = 300}};
};

TEST_F(CodenetTool, SendsAndStartsWhatItsOptionsSay) {
  app::Bytes program = support::CountingBytes(10002);
  program[0] = 0x01, program[1] = 0x08;
  const app::Bytes body(program.begin() + 2, program.end());
  const std::string file = File("a b.prg", program);
  ExpectSuccess({"-x", file});
  ExpectMemory(0x0801, body);
  EXPECT_EQ(server_.Machine().runs, 1);
  ExpectSuccess({"-wa", file, "$3000", "-e", "$cf00"});
  ExpectMemory(0x3000, body);
  ExpectSuccess({"-wb", file, "$6000"});
  ExpectMemory(0x6000, program);
  ExpectSuccess({"-e", "$C000"});
  EXPECT_EQ(server_.Machine().jumps, (std::vector{0xCF00, 0xC000}));
  ExpectSuccess({"-w", File("zero page.prg", {0xFB, 0x00, 1, 2, 3})});
  ExpectMemory(0xFB, {1, 2, 3});
  ExpectSuccess({"-w", File("last byte.prg", {0xFF, 0xFF, 1})});
  ExpectMemory(0xFFFF, {1});
  ExpectSuccess({"-wa", File("moved.prg", {0xFF, 0xFF, 2, 3}), "$FFFE"});
  ExpectMemory(0xFFFE, {2, 3});
  ExpectSuccess({"-wb", File("all memory", support::CountingBytes(0x10000)), "$0"});
  ExpectMemory(0, support::CountingBytes(0x10000));
  EXPECT_EQ(server_.Machine().runs, 1);
}

TEST_F(CodenetTool, TellsWhatIsWrongAndSendsNothing) {
  struct Wrong {
    Words words;
    int exit_code;
    const char* complaint;
  };
  for (const Wrong& wrong : {
           Wrong{{"-w", File("good.prg", {1, 8, 0}), "--no-option"}, 2, "is no option"},
           Wrong{{"-w", (folder_ / "missing").string()}, 1, "there is no such file"},
           Wrong{{"-w", folder_.Path().string()}, 1, "this is a folder"},
           Wrong{{"-wb", File("empty", {}), "$1000"}, 1, "the file is empty"},
           Wrong{{"-wa", File("two", {1, 8}), "$1000"}, 1, "this is no PRG"},
           Wrong{{"-w", File("long", {0xFF, 0xFF, 1, 2})}, 1, "2 bytes at $FFFF would run past $FFFF"},
           Wrong{{"-wb", File("longer", app::Bytes(0x10001)), "$0"}, 1, "would run past $FFFF"},
       }) {
    SCOPED_TRACE(wrong.complaint);
    const support::ToolRun run = Send(wrong.words);
    EXPECT_EQ(run.exit_code, wrong.exit_code);
    EXPECT_NE(run.errors.find(wrong.complaint), std::string::npos) << run.errors;
  }
  EXPECT_EQ(server_.Machine().packets, 0);
}

TEST_F(CodenetTool, TellsAtOnceWhenNothingListens) {
  const std::string free_port = std::to_string(support::CodenetServer().Port());
  const support::ToolRun run = support::RunTool(KELVO_CODENET, {"-n", "127.0.0.1", "-p", free_port, "-e", "$c000"});
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.errors.find("nothing listens"), std::string::npos) << run.errors;
}

TEST_F(CodenetTool, CanBeStoppedWhileItWaits) {
  const support::CodenetServer mute({.vanishes_after = 1});
  support::RunningTool tool(KELVO_CODENET, {"-n", "127.0.0.1", "-p", std::to_string(mute.Port()), "-w",
                                            File("two packets.prg", app::Bytes(200))});
  while (mute.Machine().packets == 0) std::this_thread::yield();
  tool.Signal(SIGINT);
  const support::ToolRun run = tool.Wait();
  EXPECT_EQ(run.exit_code, 1);
  EXPECT_NE(run.errors.find("stopped"), std::string::npos) << run.errors;
}

}  // namespace
}  // namespace kelvo
#endif
