// Every step of a session can be gone to, and is then what it was: forward, backward, across branches and files, and
// after a crash.
#include "history/history.h"

#include <gtest/gtest.h>

#include "history/byte_stream.h"
#include "support/random_session.h"

namespace kelvo::history {
namespace {

using support::RandomSession;

constexpr int kSteps = 10000;
constexpr std::size_t kMostBytes = 40'000'000;

std::size_t HashOf(const model::PictureImage& picture) {
  const State state = StateOf(picture);
  return std::hash<std::string_view>()({reinterpret_cast<const char*>(state.data()), state.size()});
}

// What the steps of a session looked like when they were made.
struct Session {
  explicit Session(unsigned seed) : hand(seed) {}

  void Act() {
    hand.Act(history);
    shown.resize(static_cast<std::size_t>(history.Count()), 0);
    shown[static_cast<std::size_t>(history.Current())] = HashOf(hand.document.picture);
  }
  void GoTo(StepId step) {
    hand.document = history.DocumentAt(step);
    history.GoTo(step);
    EXPECT_EQ(HashOf(hand.document.picture), shown[static_cast<std::size_t>(step)]);
  }
  bool IsRight(StepId step) { return HashOf(history.PictureAt(step)) == shown[static_cast<std::size_t>(step)]; }

  RandomSession hand;
  History history{hand.document};
  std::vector<std::size_t> shown{HashOf({})};
};

void FillUp(Session& session, int steps) {
  while (session.history.Count() < steps) {
    session.Act();
    if (session.hand.Below(50) == 0) session.GoTo(session.hand.Below(session.history.Count()));
  }
}

TEST(History, TenThousandRandomActionsAreRightAtEveryStepAndSmall) {
  Session session(1);
  FillUp(session, kSteps);
  History& history = session.history;
  session.GoTo(history.Count() - 1);
  for (StepId step = history.Current(); step != 0; step = history.Before(step)) {
    session.GoTo(history.Before(step));
    ASSERT_EQ(history.After(history.Current()), step);
  }
  while (history.After(history.Current()) != history.Current()) session.GoTo(history.After(history.Current()));
  EXPECT_EQ(history.Current(), kSteps - 1);
  for (StepId step = 0; step < kSteps; ++step) ASSERT_TRUE(session.IsRight(step)) << step;
  history.TakeNews();
  EXPECT_LT(history.BytesUsed(), kMostBytes);
}

TEST(History, ComesBackFromWhatWasRecordedAsFarAsThatIsWhole) {
  Session session(2);
  FillUp(session, 300);
  const app::Bytes recorded = session.history.TakeNews();
  RandomSession other(3);
  History restored(other.document);
  restored.Restore(recorded);
  ASSERT_EQ(restored.Count(), 300);
  for (StepId step = 0; step < 300; ++step) {
    ASSERT_EQ(HashOf(restored.PictureAt(step)), session.shown[static_cast<std::size_t>(step)]) << step;
    EXPECT_EQ(restored.Before(step), session.history.Before(step));
    EXPECT_EQ(restored.CaptionOf(step), session.history.CaptionOf(step));
    EXPECT_EQ(restored.FileOf(step).CurrentFilePath, session.history.FileOf(step).CurrentFilePath);
  }
  EXPECT_EQ(restored.Current(), 299);
  EXPECT_EQ(restored.TakeNews(), recorded);

  for (int i = 0; i < 200; ++i) {
    app::Bytes damaged = recorded;
    damaged.resize(static_cast<std::size_t>(other.Below(static_cast<int>(recorded.size()))));
    if (i % 2 == 1 && !damaged.empty()) {
      damaged[static_cast<std::size_t>(other.Below(static_cast<int>(damaged.size())))] ^= 1;
    }
    restored.Restore(damaged);
    const StepId last = restored.Count() - 1;
    ASSERT_EQ(HashOf(restored.PictureAt(last)), session.shown[static_cast<std::size_t>(last)]);
    restored.GoTo(0);
  }
}

TEST(History, KnowsWhichStepItsFileHolds) {
  files::Document document;
  History history(document);
  const auto act = [&](int y) {
    editing::PlotPixel(document.picture, 1, y, support::Colour(y), editing::FullCell::kRecolour);
    history.Record("Draw");
    return history.Current();
  };
  const auto go = [&](StepId step) {
    document = history.DocumentAt(step);
    history.GoTo(step);
  };
  const auto save = [&](const char* name) {
    files::Sign(document.picture);
    document.file = files::SetFileParameters(name);
    document.kept = document.picture;
    history.Saved();
  };
  const StepId first = act(1), second = act(2);
  EXPECT_TRUE(document.HasUnsavedWork());
  save("a");
  const StepId third = act(3);
  document = {.picture = support::RandomPicture(1), .file = files::SetFileParameters("b")};
  history.Open("Load b");
  const StepId opened = history.Current();
  for (const auto& [step, name, is_saved] : {std::tuple{first, "a", false},
                                             {second, "a", true},
                                             {third, "a", false},
                                             {opened, "b", true},
                                             {0, "a", false}}) {
    go(step);
    EXPECT_EQ(document.file.CurrentFileName, name) << step;
    EXPECT_EQ(!document.HasUnsavedWork(), is_saved) << step;
    EXPECT_EQ(history.IsSaved(step), is_saved) << step;
  }
  go(first);
  EXPECT_FALSE(history.Record("Nothing changed"));
  act(4);
  save("c");  // the picture goes on under another name, and its old steps with it
  go(third);
  EXPECT_EQ(document.file.CurrentFileName, "c");
  EXPECT_TRUE(document.HasUnsavedWork());
  EXPECT_EQ(history.After(first), second);

  history.FilesMoved([](const std::filesystem::path& path) { return path == "c" ? "b" : path == "b" ? "c" : path; });
  History restored(document);
  app::Bytes recorded = history.TakeNews();
  restored.Restore(recorded);
  for (const auto& [step, name] : {std::pair{third, "b"}, {opened, "c"}}) {
    go(step);
    EXPECT_EQ(document.file.CurrentFilePath, name);
    EXPECT_EQ(document.HasUnsavedWork(), step == third);
    EXPECT_EQ(restored.FileOf(step).CurrentFilePath, name);
  }
  history.FilesMoved([](const std::filesystem::path& path) { return path == "c" ? std::filesystem::path() : path; });
  go(opened);
  EXPECT_FALSE(document.file.HasFile());
  EXPECT_TRUE(document.HasUnsavedWork());
  const app::Bytes news = history.TakeNews();
  recorded.insert(recorded.end(), news.begin(), news.end());
  restored.Restore(recorded);
  EXPECT_FALSE(restored.FileOf(opened).HasFile());

  document = {.picture = support::RandomPicture(2), .kept = {}, .file = files::SetFileParameters("d")};
  history.Open("Recover d");
  EXPECT_FALSE(history.IsSaved(history.Current()));
}

}  // namespace
}  // namespace kelvo::history
