// The loader's command line, as the tool takes it and as the Codenet window's form gives it; the form in the settings.
#include <gtest/gtest.h>

#include "c64out/codenet_arguments.h"
#include "c64out/codenet_options.h"
#include "support/program.h"

namespace kelvo::c64out {
namespace {

using Words = std::vector<std::string>;

TEST(CodenetArguments, AreTakenInAnyOrder) {
  CodenetArguments expected;
  expected.host = "c64.local";
  expected.port = 65535;
  expected.mode = FileMode::kProgramAt;
  expected.file = "a $b; c";
  expected.address = 0xA;
  expected.execute = 0xCF00;
  EXPECT_EQ(ParseCodenetArguments(Words{"-n", "c64.local", "-p", "65535", "-wa", "a $b; c", "$A", "-e", "$cF00"}),
            expected);
  EXPECT_EQ(ParseCodenetArguments(Words{"-e", "$cF00", "-wa", "a $b; c", "$A", "-p", "65535", "-n", "c64.local"}),
            expected);
  EXPECT_TRUE(ParseCodenetArguments(Words{"-n", "127.0.0.1", "--help", "nonsense"}).help);
}

TEST(CodenetArguments, WrongOnesNameTheOptionAndWhatIsWrong) {
  struct Wrong {
    Words words;
    const char* message;
  };
  std::vector<Wrong> table{
      {{"-w", "x"}, "the C64's address is missing"},
      {{"-n", "127.0.0.1"}, "nothing to send"},
      {{"-n"}, "-n: the C64's address must follow"},
      {{"-n", "-w", "x"}, "-n: the C64's address must follow"},
      {{"-n", ""}, "-n: the C64's address must follow"},
      {{"-n", "a", "-n", "b", "-w", "x"}, "-n: this option is given twice"},
      {{"-n", "a", "-w", "x", "-x", "y"}, "-x: only one file"},
      {{"-n", "a", "-x", "y", "-e", "$1"}, "-e: -x starts the program already"},
      {{"-n", "a", "-w"}, "-w: a file must follow"},
      {{"-n", "a", "-wa", "x"}, "-wa: an address such as $0801 must follow"},
      {{"-n", "a", "-wb", "x", "-e", "$1"}, "-wb: an address such as $0801 must follow"},
      {{"-n", "a", "-q"}, "\"-q\" is no option"},
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
    try {
      ParseCodenetArguments(wrong.words);
      ADD_FAILURE() << "taken: " << wrong.words.back() << ", " << wrong.message;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(wrong.message), std::string::npos)
          << error.what() << " instead of " << wrong.message;
    }
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

TEST(CodenetOptions, ComposesWhatTheToolUnderstands) {
  for (const Choice& choice : kChoices) {
    SCOPED_TRACE(choice.options);
    const CodenetForm form = choice.Form();
    const ComposedOptions composed = ComposeOptions(form, true);
    EXPECT_EQ(composed.options, choice.options);
    EXPECT_FALSE(composed.incomplete);
    const CodenetArguments parsed = ParseCodenetArguments(CodenetArgumentList(form, form.file));
    EXPECT_EQ(parsed.mode, choice.mode);
    EXPECT_EQ(parsed.file, "a b.prg");
  }
}

// A control is there for what the command holds. An empty or short address is red exactly then, and sent all the same.
TEST(CodenetOptions, AreIncompleteAndOpenWhereTheyHaveASay) {
  for (const Choice& choice : kChoices) {
    SCOPED_TRACE(choice.options);
    const CodenetForm form = choice.Form();
    const std::string options = choice.options;
    const bool prg = choice.type == FileType::kPrg, has_destination = options.find("$C000") != std::string::npos,
               has_execute_address = options.find("$cf00") != std::string::npos;
    EXPECT_EQ(EnabledControls(form),
              (CodenetControls{prg, has_destination, prg && !choice.set_destination, prg, prg, has_execute_address}));
    for (const char* address : {"", "C00", "C0000", "\xC3\xA9\xC3\xA9"}) {
      CodenetForm bad = form;
      bad.destination = address;
      EXPECT_EQ(ComposeOptions(bad, true).incomplete, has_destination);
      bad = form;
      bad.execute_address = address;
      EXPECT_EQ(ComposeOptions(bad, true).incomplete, has_execute_address);
    }
    EXPECT_TRUE(ComposeOptions(form, false).incomplete);
    CodenetForm nowhere = form;
    nowhere.host = "  ";
    EXPECT_TRUE(ComposeOptions(nowhere, true).incomplete);
  }
}

TEST(CodenetOptions, TrimThreeFieldsAndKeepTheRestAsTyped) {
  CodenetForm form = Choice{FileType::kPrg, true, ExecuteChoice::kExecuteAddress, "", {}}.Form();
  form.host = " 127.0.0.1 ";
  form.port = " 6000 ";
  form.destination = " C00 ";
  form.execute_address = "1; a";
  EXPECT_EQ(ComposeOptions(form, true).options, " -n 127.0.0.1 -p 6000 -wa [FILE] $C00 -e $1; a");
  EXPECT_EQ(CodenetArgumentList(form, "x").back(), "$1; a");
}

TEST(CodenetSettings, KeepTheFormInTheirOwnForms) {
  support::MapSettings settings;
  EXPECT_EQ(LoadCodenetForm(settings), CodenetForm());
  CodenetForm form = kChoices[7].Form();
  form.host = " 127.0.0.2 ";
  form.port = "6000";
  form.prg_name = " PIC ";
  SaveCodenetForm(settings, form);
  const std::map<std::string, std::string> expected{
      {"CodenetGUI/SendFile", "a b.prg"},   {"CodenetGUI/FileType", "BIN"},
      {"CodenetGUI/SetDestAddress", "1"},   {"CodenetGUI/DestAddress", "C000"},
      {"CodenetGUI/SetExecute", "True"},    {"CodenetGUI/SetExecuteAddress", "False"},
      {"CodenetGUI/TransferOnly", "False"}, {"CodenetGUI/ExecuteAddress", "cf00"},
      {"CodenetGUI/C64IP", "127.0.0.2"},    {"CodenetGUI/Port", "6000"},
      {"CodenetGUI/PRGName", "PIC"},
  };
  EXPECT_EQ(settings.values, expected);
  settings.values["CodenetGUI/FileType"] = "?";
  settings.values["CodenetGUI/SetDestAddress"] = "x";
  settings.values["CodenetGUI/SetExecute"] = "perhaps";
  const CodenetForm loaded = LoadCodenetForm(settings), none;
  EXPECT_EQ(loaded.file_type, none.file_type);
  EXPECT_EQ(loaded.set_destination, none.set_destination);
  EXPECT_EQ(loaded.execute, none.execute);
}

}  // namespace
}  // namespace kelvo::c64out
