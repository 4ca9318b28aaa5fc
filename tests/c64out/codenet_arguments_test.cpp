// The loader's command line.
#include "c64out/codenet_arguments.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace kelvo::c64out
