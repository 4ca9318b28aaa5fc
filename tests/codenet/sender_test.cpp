// Transfers over a network in made-up time: what is sent, when it is sent again, and what may be claimed.
#include "codenet/sender.h"

#include <gtest/gtest.h>

#include "codenet/transfer.h"
#include "support/files.h"
#include "support/simulated_line.h"

namespace kelvo::codenet {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using support::SimulatedLine;
using Fate = SimulatedLine::Fate;
using Way = SimulatedLine::Way;

constexpr microseconds kSoon(10);
const Way kNever{.delays = {}};
const Fate kLost{.there = kNever}, kAnswerLost{.back = kNever};

// The message of the error that `work` ends with; empty when it ends well.
template <typename Work>
std::string ErrorOf(const Work& work) {
  try {
    work();
  } catch (const TransferError& error) {
    return error.what();
  }
  return "";
}

class CodenetSenderTest : public testing::Test {
 protected:
  void Write(std::uint16_t address, const app::Bytes& bytes) { sender_.WriteMemory(address, bytes, progress_); }

  app::Bytes MemoryAt(std::size_t address, std::size_t size) const {
    const auto begin = line_.machine.memory.begin() + static_cast<std::ptrdiff_t>(address);
    return {begin, begin + static_cast<std::ptrdiff_t>(size)};
  }

  SimulatedLine line_;
  app::NoProgress progress_;
  Sender sender_{line_, line_, 254};
};

TEST_F(CodenetSenderTest, CountsUpItsPacketsAndKeepsThemEven) {
  EXPECT_EQ(ErrorOf([this] { Write(0xFFFF, {1, 2}); }), "2 bytes at $FFFF run past $FFFF");
  Write(0x0801, support::CountingBytes(257));
  sender_.Jump(0xCF00);
  sender_.Run();
  ASSERT_EQ(line_.sent.size(), 5U);
  const app::Bytes last_data{0xCA, 0x1F, 0, 4, 0x09, 0x01, 0, 1, support::CountingBytes(257)[256], 0};
  EXPECT_EQ(line_.sent[2], last_data);
  EXPECT_EQ(line_.sent[3], (app::Bytes{0xCA, 0x1F, 1, 6, 0xCF, 0x00}));
  EXPECT_EQ(line_.sent[4], (app::Bytes{0xCA, 0x1F, 2, 7}));
  EXPECT_EQ(MemoryAt(0x0801, 257), support::CountingBytes(257));
}

TEST_F(CodenetSenderTest, WaitsLongerEachTimeAndGivesUpAfterFiveTries) {
  line_.fate_of = [](int number, const app::Bytes&) { return number == 0 ? Fate() : kLost; };
  const std::string error = ErrorOf([this] { Write(0x2000, support::CountingBytes(300)); });
  EXPECT_EQ(error, "the C64 does not answer; 128 of 300 bytes are confirmed");
  ASSERT_EQ(line_.sent.size(), 6U);
  for (std::size_t again = 2; again < line_.sent.size(); ++again) {
    EXPECT_EQ(line_.sent[again], line_.sent[1]);
    EXPECT_EQ(line_.sent_at[again] - line_.sent_at[again - 1], milliseconds(250 << (again - 2)));
  }
}

TEST_F(CodenetSenderTest, EndsAtOnceWhenTheC64Refuses) {
  line_.fate_of = [](int, const app::Bytes&) {
    return Fate{.back = {.damage = [](app::Bytes& answer) { answer[3] = 0; }}};
  };
  EXPECT_EQ(ErrorOf([this] { Write(0x2000, app::Bytes(10)); }),
            "the C64 refuses the data; 0 of 10 bytes are confirmed");
  EXPECT_EQ(ErrorOf([this] { sender_.Run(); }), "the C64 refuses to start the program");
  EXPECT_EQ(line_.sent.size(), 2U);
}

TEST_F(CodenetSenderTest, TellsHowMuchIsWrittenWhenThePortCloses) {
  const std::pair<int, const char*> cases[] = {{0, "closed; 0 of 300 bytes are confirmed"},
                                               {2, "closed; 256 of 300 bytes are confirmed"},
                                               {3, "the C64's memory is written; closed"}};
  for (const auto& [after, error] : cases) {
    line_.sent.clear();
    line_.fate_of = [after = after](int number, const app::Bytes&) {
      return number == after ? throw NobodyListens("closed") : Fate();
    };
    EXPECT_EQ(ErrorOf([this] { SendTransfer({0x2000, app::Bytes(300), true, {}}, sender_, progress_); }), error);
  }
}

TEST(CodenetProtocol, TakesOnlyAnswersForAnswers) {
  EXPECT_TRUE(DecodeAnswer(app::Bytes{0xCA, 0x1F, 7, 1, 0, 0})->accepted);
  for (const app::Bytes& packet : {app::Bytes{}, app::Bytes{0xCA, 0x1F, 7}, app::Bytes{0xCA, 0x1E, 7, 1},
                                   app::Bytes{0xCB, 0x1F, 7, 1}, app::Bytes{0xCA, 0x1F, 7, 2}}) {
    EXPECT_FALSE(DecodeAnswer(packet));
  }
}

// A second copy of the first packet has turned into the second one, which then never arrives.
TEST_F(CodenetSenderTest, TakesNoAnswerThatWasThereBeforeItsPacket) {
  std::uint8_t copy = 0;
  line_.fate_of = [&](int number, const app::Bytes&) {
    return number == 0 ? Fate{{{kSoon, kSoon}, [&](app::Bytes& packet) { packet[2] += copy++; }}, {}} : kLost;
  };
  EXPECT_NE(ErrorOf([this] { Write(0x2000, app::Bytes(200)); }), "");
  EXPECT_EQ(line_.machine.packets, 2);
}

// The numbers come round after 256 packets, here within a few milliseconds: the second answer to an early packet may
// not count for a later, lost one of the same number.
TEST_F(CodenetSenderTest, TakesNoLateAnswerForALaterPacketOfTheSameNumber) {
  line_.fate_of = [](int number, const app::Bytes&) {
    if (number == 3) return Fate{.back = {.delays = {kSoon, milliseconds(40)}}};
    return number == 3 + 256 ? kLost : Fate();
  };
  Write(0, support::CountingBytes(0x10000));
  EXPECT_TRUE(line_.machine.memory == support::CountingBytes(0x10000));
}

TEST_F(CodenetSenderTest, LeavesNoLateCopyThatOverwritesTheNextTransfer) {
  line_.fate_of = [](int number, const app::Bytes&) {
    return number == 0 ? Fate{.there = {.delays = {milliseconds(400)}}} : Fate();
  };
  Write(0x2000, app::Bytes(100, 1));
  Write(0x2000, app::Bytes(100, 2));
  line_.RunOut();
  EXPECT_EQ(MemoryAt(0x2000, 100), app::Bytes(100, 2));
}

TEST(CodenetStart, NeverStartsAProgramTwice) {
  struct Case {
    std::vector<Fate> order_fates;  // of each copy of the order; later ones are lost
    bool busy;                      // whether the C64 answers nothing any more once it was told to jump
    std::string error;
    std::size_t jumps;
  };
  const std::string written = "the C64's memory is written; ";
  const std::string may_run =
      "the order to start was sent, but the C64 does not answer any more: the program may be running";
  const std::string unconfirmed = "the C64 answers, but does not confirm the order to start";
  for (const Case& start : {
           Case{{Fate()}, true, "", 1},
           Case{{kLost, kLost, Fate()}, true, "", 1},
           Case{{kAnswerLost}, true, written + may_run, 1},
           Case{{{.back = {.delays = {milliseconds(300)}}}}, false, "", 1},  // slower than the ping's
           Case{{{.back = {.delays = {milliseconds(300)}}}}, true, "", 1},   // and there is no ping's
           Case{{}, true, written + unconfirmed, 0},
       }) {
    SCOPED_TRACE(start.order_fates.size());
    SimulatedLine line;
    std::size_t orders = 0;
    line.fate_of = [&](int, const app::Bytes& packet) {
      if (packet[3] != static_cast<std::uint8_t>(Service::kJump)) {
        return start.busy && !line.machine.jumps.empty() ? kLost : Fate();
      }
      return orders < start.order_fates.size() ? start.order_fates[orders++] : kLost;
    };
    Sender sender(line, line, 0);
    app::NoProgress progress;
    EXPECT_EQ(ErrorOf([&] { SendTransfer({0x2000, app::Bytes(200), false, 0xCF00}, sender, progress); }), start.error);
    EXPECT_EQ(line.machine.jumps, std::vector<int>(start.jumps, 0xCF00));
  }
}

}  // namespace
}  // namespace kelvo::codenet
