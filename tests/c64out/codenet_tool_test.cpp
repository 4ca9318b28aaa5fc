// The loader: its command line, as the tool takes it and as the Codenet window's form gives it; the form in the
// settings; and the tool itself against a C64 on this machine.
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include "c64out/codenet_form.h"
#include "codenet/arguments.h"
#include "support/codenet_server.h"
#include "support/platform.h"
#include "support/program.h"
#include "support/run_tool.h"

namespace kelvo::c64out {
namespace {

using codenet::Arguments, codenet::FileMode, codenet::ParseArguments, codenet::UsageError;
using Words = std::vector<std::string>;

TEST(CodenetArguments, AreTakenInAnyOrder) {
  const Arguments expected{"c64.local", 65535, FileMode::kProgramAt, "a $b; c", 0xA, 0xCF00};
  EXPECT_EQ(ParseArguments(Words{"-n", "c64.local", "-p", "65535", "-wa", "a $b; c", "$A", "-e", "$cF00"}), expected);
  EXPECT_EQ(ParseArguments(Words{"-e", "$cF00", "-wa", "a $b; c", "$A", "-p", "65535", "-n", "c64.local"}), expected);
  EXPECT_TRUE(ParseArguments(Words{"-n", "127.0.0.1", "--help", "nonsense"}).help);
}

// A command line that is not taken, and what is told about it.
struct Wrong {
  Words words;
  const char* message;
  int exit_code = 2;
};

TEST(CodenetArguments, WrongOnesNameTheOptionAndWhatIsWrong) {
  std::vector<Wrong> table{
      {{"-w", "x"}, "the C64's address is missing"},
      {{"-n", "127.0.0.1"}, "nothing to send"},
      {{"-n"}, "-n: the C64's address must follow"},
      {{"-n", "a", "-n", "b", "-w", "x"}, "-n: this option is given twice"},
      {{"-n", "a", "-w", "x", "-x", "y"}, "-x: only one file"},
      {{"-n", "a", "-x", "y", "-e", "$1"}, "-e: -x starts the program already"},
      {{"-n", "a", "-w"}, "-w: a file must follow"},
      {{"-n", "a", "-wa", "x"}, "-wa: an address such as $0801 must follow"},
      {{"-n", "a", "-w", "x", "y"}, "\"y\" is no option"},
  };
  for (const char* host : {"127.0.0.1 -x", "-127.0.0.1", "$(a)", "a;b"}) table.push_back({{"-n", host}, "is no host"});
  for (const char* address : {"c000", "$", "$12345", "$12g4", "$-1", "$ 1"}) {
    table.push_back({{"-n", "a", "-e", address}, "is no address"});
  }
  for (const char* port : {"0", "65536", "-1", "port", "64 62"}) {
    table.push_back({{"-n", "a", "-p", port, "-e", "$1"}, "is no port"});
  }
  for (const Wrong& wrong : table) {
    std::string told;
    try {
      ParseArguments(wrong.words);
    } catch (const UsageError& error) {
      told = error.what();
    }
    EXPECT_NE(told.find(wrong.message), std::string::npos) << told << " instead of " << wrong.message;
  }
}

struct Choice {
  FileType type;
  bool set_destination;
  ExecuteChoice execute;
  const char* options;
  FileMode mode;  // as the tool understands it

  CodenetForm Form() const { return {"a b.prg", type, set_destination, "C000", execute, "cf00", "127.0.0.1", "", ""}; }
};

constexpr Choice kChoices[] = {
    {FileType::kPrg, false, ExecuteChoice::kExecute, " -n 127.0.0.1 -x [FILE]", FileMode::kRunProgram},
    {FileType::kPrg, false, ExecuteChoice::kExecuteAddress, " -n 127.0.0.1 -w [FILE] -e $cf00", FileMode::kProgram},
    {FileType::kPrg, false, ExecuteChoice::kTransferOnly, " -n 127.0.0.1 -w [FILE]", FileMode::kProgram},
    {FileType::kPrg, true, ExecuteChoice::kExecute, " -n 127.0.0.1 -wa [FILE] $C000", FileMode::kProgramAt},
    {FileType::kPrg, true, ExecuteChoice::kExecuteAddress, " -n 127.0.0.1 -wa [FILE] $C000 -e $cf00",
     FileMode::kProgramAt},
    {FileType::kPrg, true, ExecuteChoice::kTransferOnly, " -n 127.0.0.1 -wa [FILE] $C000", FileMode::kProgramAt},
    {FileType::kBinary, false, ExecuteChoice::kExecuteAddress, " -n 127.0.0.1 -wb [FILE] $C000", FileMode::kBytesAt},
    {FileType::kBinary, true, ExecuteChoice::kExecute, " -n 127.0.0.1 -wb [FILE] $C000", FileMode::kBytesAt},
};

// The tool understands what is composed. A control is there for what the command holds. An empty or short address is
// red exactly then, and sent all the same.
TEST(CodenetOptions, AreComposedOfTheControlsThatHaveASay) {
  for (const Choice& choice : kChoices) {
    SCOPED_TRACE(choice.options);
    const CodenetForm form = choice.Form();
    const ComposedOptions composed = ComposeOptions(form, true);
    EXPECT_EQ(composed.options, choice.options);
    EXPECT_FALSE(composed.incomplete);
    const Arguments parsed = ParseArguments(CodenetArgumentList(form, form.file));
    EXPECT_EQ(std::tuple(parsed.mode, parsed.file), std::tuple(choice.mode, "a b.prg"));
    const std::string options = choice.options;
    const bool prg = choice.type == FileType::kPrg, has_destination = options.find("$C000") != std::string::npos,
               has_execute_address = options.find("$cf00") != std::string::npos;
    EXPECT_EQ(EnabledControls(form),
              (CodenetControls{prg, has_destination, prg && !choice.set_destination, prg, prg, has_execute_address}));
    const auto is_incomplete = [&form](std::string CodenetForm::*field, const char* text) {
      CodenetForm changed = form;
      changed.*field = text;
      return ComposeOptions(changed, true).incomplete;
    };
    for (const char* address : {"", "C00", "C0000", "\xC3\xA9\xC3\xA9"}) {
      EXPECT_EQ(is_incomplete(&CodenetForm::destination, address), has_destination);
      EXPECT_EQ(is_incomplete(&CodenetForm::execute_address, address), has_execute_address);
    }
    EXPECT_TRUE(ComposeOptions(form, false).incomplete && is_incomplete(&CodenetForm::host, "  "));
  }
}

TEST(CodenetOptions, TrimThreeFieldsAndKeepTheRestAsTyped) {
  const CodenetForm form{"",     FileType::kPrg, true,     " C00 ", ExecuteChoice::kExecuteAddress,
                         "1; a", " 127.0.0.1 ",  " 6000 ", ""};
  EXPECT_EQ(ComposeOptions(form, true).options, " -n 127.0.0.1 -p 6000 -wa [FILE] $C00 -e $1; a");
}

// That every form comes back is what the fuzz target holds.
TEST(CodenetSettings, AreWordsAndNonsenseIsNone) {
  support::MapSettings settings;
  CodenetForm form = kChoices[7].Form();
  form.prg_name = " PIC ";
  SaveCodenetForm(settings, form);
  for (const auto& [name, value] :
       {std::pair{"PRGName", "PIC"}, {"FileType", "BIN"}, {"SetDestAddress", "1"}, {"SetExecute", "True"}}) {
    EXPECT_EQ(std::exchange(settings.values[std::string("CodenetGUI/") + name], "?"), value);
  }
  const CodenetForm loaded = LoadCodenetForm(settings), none;
  EXPECT_EQ(std::tuple(loaded.file_type, loaded.set_destination, loaded.execute),
            std::tuple(none.file_type, none.set_destination, none.execute));
}

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
  ExpectSuccess({"-wb", File("all memory", support::CountingBytes(0x10000)), "$0"});
  ExpectMemory(0, support::CountingBytes(0x10000));
  EXPECT_EQ(server_.Machine().runs, 1);
}

TEST_F(CodenetTool, TellsWhatIsWrongAndSendsNothing) {
  for (const Wrong& wrong : {
           Wrong{{"-w", File("good.prg", {1, 8, 0}), "--no-option"}, "is no option"},
           Wrong{{"-w", (folder_ / "missing").string()}, "there is no such file", 1},
           Wrong{{"-w", folder_.Path().string()}, "this is a folder", 1},
           Wrong{{"-wb", File("empty", {}), "$1000"}, "the file is empty", 1},
           Wrong{{"-wa", File("two", {1, 8}), "$1000"}, "this is no PRG", 1},
           Wrong{{"-w", File("long", {0xFF, 0xFF, 1, 2})}, "2 bytes at $FFFF would run past $FFFF", 1},
           Wrong{{"-wb", File("longer", app::Bytes(0x10001)), "$0"}, "would run past $FFFF", 1},
       }) {
    const support::ToolRun run = Send(wrong.words);
    EXPECT_EQ(run.exit_code, wrong.exit_code) << wrong.message;
    EXPECT_NE(run.errors.find(wrong.message), std::string::npos) << run.errors;
  }
  EXPECT_EQ(server_.Machine().packets, 0);
}

TEST_F(CodenetTool, TellsAtOnceWhenNothingListens) {
  const std::string free_port = std::to_string(support::CodenetServer().Port());
  const support::ToolRun run = support::RunTool(KELVO_CODENET, {"-n", "127.0.0.1", "-p", free_port, "-e", "$c000"});
  EXPECT_EQ(run.exit_code, 1);
  const bool is_told = run.errors.find("nothing listens") != std::string::npos;
  EXPECT_TRUE(is_told || support::kIsWindows)
      << run.errors;  // wine brings no refusal: there it is the time that runs out
}

TEST_F(CodenetTool, ReachesTheReceiverForDevelopersOverABadNetwork) {
  const std::string port = std::to_string(support::CodenetServer().Port()), memory = (folder_ / "memory").string();
  support::RunningTool receiver(KELVO_CODENET_RECEIVER, {"-p", port, "-l", "5", "-1", memory});
  const std::string file = File("pic.prg", support::CountingBytes(3002));  // loads to $0A03
  for (int tries = 0; tries < 100; ++tries) {                              // until it listens
    const auto sent = support::RunTool(KELVO_CODENET, {"-n", "127.0.0.1", "-p", port, "-w", file, "-e", "$c000"});
    if (sent.exit_code == 0) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  EXPECT_EQ(receiver.Wait().exit_code, 0);
  const app::Bytes sent = support::CountingBytes(3002), taken = support::ReadFile(memory);
  ASSERT_EQ(taken.size(), 0x10000U);
  EXPECT_TRUE(std::equal(sent.begin() + 2, sent.end(), taken.begin() + 0x0A03));
  EXPECT_EQ(support::RunTool(KELVO_CODENET_RECEIVER, {"-l", "0"}).exit_code, 2);
}

TEST_F(CodenetTool, CanBeStoppedWhileItWaits) {
  if (support::kIsWindows) GTEST_SKIP() << "there are no signals";
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
}  // namespace kelvo::c64out
