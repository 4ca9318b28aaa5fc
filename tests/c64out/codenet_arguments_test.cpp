// The loader's command line and the file that it names, before anything is sent.
#include "c64out/codenet_arguments.h"

#include <gtest/gtest.h>

#include "c64out/codenet_transfer.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

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
  for (const Wrong& wrong : {
           Wrong{{}, "the C64's address is missing"},
           Wrong{{"-w", "x"}, "the C64's address is missing"},
           Wrong{{"-n", "127.0.0.1"}, "nothing to send"},
           Wrong{{"-n"}, "-n: the C64's address must follow"},
           Wrong{{"-n", "-w", "x"}, "-n: the C64's address must follow"},
           Wrong{{"-n", ""}, "-n: the C64's address must follow"},
           Wrong{{"-n", "127.0.0.1 -x"}, "is no host"},
           Wrong{{"-n", "-127.0.0.1"}, "is no host"},
           Wrong{{"-n", "$(a)"}, "is no host"},
           Wrong{{"-n", "a;b"}, "is no host"},
           Wrong{{"-n", "a", "-n", "b", "-w", "x"}, "-n: this option is given twice"},
           Wrong{{"-n", "a", "-w", "x", "-x", "y"}, "-x: only one file"},
           Wrong{{"-n", "a", "-x", "y", "-e", "$1"}, "-e: -x starts the program already"},
           Wrong{{"-n", "a", "-w"}, "-w: a file must follow"},
           Wrong{{"-n", "a", "-w", ""}, "-w: a file must follow"},
           Wrong{{"-n", "a", "-wa", "x"}, "-wa: an address such as $0801 must follow"},
           Wrong{{"-n", "a", "-wb", "x", "-e", "$1"}, "-wb: an address such as $0801 must follow"},
           Wrong{{"-n", "a", "-e", "c000"}, "-e: \"c000\" is no address"},
           Wrong{{"-n", "a", "-e", "$"}, "-e: \"$\" is no address"},
           Wrong{{"-n", "a", "-e", "$12345"}, "is no address"},
           Wrong{{"-n", "a", "-e", "$12g4"}, "is no address"},
           Wrong{{"-n", "a", "-e", "$-1"}, "is no address"},
           Wrong{{"-n", "a", "-e", "$ 1"}, "is no address"},
           Wrong{{"-n", "a", "-p", "0", "-e", "$1"}, "-p: \"0\" is no port"},
           Wrong{{"-n", "a", "-p", "65536", "-e", "$1"}, "is no port"},
           Wrong{{"-n", "a", "-p", "99999", "-e", "$1"}, "is no port"},
           Wrong{{"-n", "a", "-p", "-1", "-e", "$1"}, "is no port"},
           Wrong{{"-n", "a", "-p", "port", "-e", "$1"}, "is no port"},
           Wrong{{"-n", "a", "-p", "64 62", "-e", "$1"}, "is no port"},
           Wrong{{"-n", "a", "-q"}, "\"-q\" is no option"},
           Wrong{{"-n", "a", "-w", "x", "y"}, "\"y\" is no option"},
       }) {
    try {
      ParseCodenetArguments(wrong.words);
      ADD_FAILURE() << "taken: " << wrong.message;
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(wrong.message), std::string::npos)
          << error.what() << " instead of " << wrong.message;
    }
  }
}

class CodenetFile : public testing::Test {
 protected:
  CodenetTransfer Prepare(FileMode mode, const app::Bytes& bytes, std::uint16_t address = 0) const {
    support::WriteFile(folder_ / "file", bytes);
    return PrepareTransfer(Arguments(mode, folder_ / "file", address));
  }

  static CodenetArguments Arguments(FileMode mode, const std::filesystem::path& file, std::uint16_t address = 0) {
    CodenetArguments arguments;
    arguments.mode = mode;
    arguments.file = file.string();
    arguments.address = address;
    return arguments;
  }

  support::TempFolder folder_;
};

TEST_F(CodenetFile, GoesWhereItsModeSays) {
  const app::Bytes bytes{0x01, 0x08, 7, 9};
  const CodenetTransfer program = Prepare(FileMode::kRunProgram, bytes);
  EXPECT_EQ(program.address, 0x0801);
  EXPECT_EQ(program.bytes, (app::Bytes{7, 9}));
  EXPECT_TRUE(program.run);
  const CodenetTransfer moved = Prepare(FileMode::kProgramAt, bytes, 0xC000);
  EXPECT_EQ(moved.address, 0xC000);
  EXPECT_EQ(moved.bytes, (app::Bytes{7, 9}));
  EXPECT_FALSE(moved.run);
  const CodenetTransfer raw = Prepare(FileMode::kBytesAt, bytes, 0xC000);
  EXPECT_EQ(raw.address, 0xC000);
  EXPECT_EQ(raw.bytes, bytes);
}

TEST_F(CodenetFile, IsRefusedWhenItCannotBeMeant) {
  EXPECT_THROW(Prepare(FileMode::kBytesAt, {}, 0xC000), app::FileError);
  EXPECT_THROW(Prepare(FileMode::kProgram, {}), app::FileError);
  EXPECT_THROW(Prepare(FileMode::kProgram, {1}), app::FileError);
  EXPECT_THROW(Prepare(FileMode::kProgramAt, {1, 8}, 0xC000), app::FileError);
  EXPECT_NO_THROW(Prepare(FileMode::kProgram, {0xFF, 0xFF, 1}));
  EXPECT_THROW(Prepare(FileMode::kProgram, {0xFF, 0xFF, 1, 2}), app::FileError);
  EXPECT_NO_THROW(Prepare(FileMode::kProgramAt, {0xFF, 0xFF, 1, 2}, 0xFFFE));
  EXPECT_THROW(Prepare(FileMode::kBytesAt, {1, 2}, 0xFFFF), app::FileError);
  EXPECT_NO_THROW(Prepare(FileMode::kBytesAt, app::Bytes(0x10000)));
  EXPECT_THROW(Prepare(FileMode::kBytesAt, app::Bytes(0x10001)), app::FileError);
  for (const auto& path : {folder_.Path(), folder_ / "missing"}) {
    EXPECT_THROW(PrepareTransfer(Arguments(FileMode::kProgram, path)), app::FileError);
  }
}

}  // namespace
}  // namespace kelvo::c64out
