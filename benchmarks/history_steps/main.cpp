// history-steps: what a session of ten thousand random actions takes of memory and time, against copies of pictures.
#include <algorithm>
#include <ctime>
#include <exception>
#include <iostream>

#include "app/durable_file.h"
#include "row.h"
#include "support/files.h"
#include "support/random_session.h"

namespace kelvo::bench {
namespace {

using history::History;

constexpr int kSteps = 10000;
constexpr double kMegabyte = 1e6, kMostMegabytes = 40, kMostMicroseconds = 2000, kMostKeptMicroseconds = 5000;
constexpr double kMostMicrosecondsToGo = 100000;

// Of the processor, which other programs take no part of.
template <typename Work>
double MicrosecondsOf(Work&& work) {
  const std::clock_t begin = std::clock();
  work();
  return static_cast<double>(std::clock() - begin) * (1e6 / CLOCKS_PER_SEC);
}

// The longest of the steps from the last one back to the first, each with the whole document. The least of three
// rounds counts.
double LongestStepBack(History& history, files::Document& document) {
  double least = kMostMicroseconds * kSteps;
  for (int round = 0; round < 3; ++round) {
    history.GoTo(history.Count() - 1);
    document = history.DocumentAt(history.Current());
    double longest = 0;
    while (history.Current() != 0) {
      longest = std::max(longest, MicrosecondsOf([&] {
                           const auto before = history.Before(history.Current());
                           document = history.DocumentAt(before);
                           history.GoTo(before);
                         }));
    }
    least = std::min(least, longest);
  }
  return least;
}

double MicrosecondsToGo(History& history, files::Document& document, history::StepId step) {
  return MicrosecondsOf([&] {
    document = history.DocumentAt(step);
    history.GoTo(step);
  });
}

double MicrosecondsToCopy(const model::PictureImage& picture) {
  constexpr int kCopies = 1000;
  std::vector<model::PictureImage> copies(kCopies);
  return MicrosecondsOf([&] { std::fill(copies.begin(), copies.end(), picture); }) / kCopies;
}

bool Run() {
  const support::TempFolder folder;
  support::RandomSession hand(1);
  History history(hand.document);
  double record = 0, keep = 0;
  while (history.Count() < kSteps) {
    record += MicrosecondsOf([&] { hand.Act(history); });
    const app::Bytes news = history.TakeNews();
    keep += MicrosecondsOf([&] {
      app::AppendText(folder / "steps", {reinterpret_cast<const char*>(news.data()), news.size()});
    });
  }
  const double copy = MicrosecondsToCopy(hand.document.picture);
  const double copies = sizeof(model::PictureImage) * kSteps / kMegabyte;
  const double back = LongestStepBack(history, hand.document);
  const double far = MicrosecondsToGo(history, hand.document, kSteps - 1);
  bool met = Report({"10000Steps", static_cast<double>(history.BytesUsed()) / kMegabyte, "MB", "10000PictureCopies",
                     copies, kMostMegabytes});
  met &= Report({"ActionWithItsStep", record / kSteps, "us", "PictureCopy", copy, kMostMicroseconds});
  met &= Report({"LongestStepBack", back, "us", "PictureCopy", copy, kMostMicroseconds});
  met &= Report({"GoThrough10000Steps", far, "us", "PictureCopy", copy, kMostMicrosecondsToGo});
  met &= Report({"KeepStepOnDisk", keep / kSteps, "us", "PictureCopy", copy, kMostKeptMicroseconds});
  return met;
}

}  // namespace
}  // namespace kelvo::bench

int main() {
  try {
    return kelvo::bench::Run() ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
}
