// Reads an image and converts it, in a thread of its own.
#pragma once

#include <QImage>
#include <QObject>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

#include "convert/conversion.h"

namespace kelvo::ui {

struct ReadImageFacts {
  QImage reduced;  // for a display
  QSize size;
  convert::Dither proposed;
};

// The newest wishes win: the full effort for those before them is given up, and of wishes that were asked for in
// between nothing is heard. A quick result is always brought to its end, so that there is something to see while wishes
// change.
class ImportWorker : public QObject {
  Q_OBJECT

 public:
  // `read` is called in the thread; what it throws is told. A stop is asked for when nobody wants the image any more.
  using Read = std::function<convert::RgbImage(const std::stop_token&)>;
  explicit ImportWorker(Read read);
  // Gives up what is at work, which takes a moment.
  ~ImportWorker() override;

  // First quickly, then with full effort. What it comes to is told by signals, in the thread that the worker lives in.
  void Ask(const convert::Wishes& wishes);

 signals:
  void ImageRead(const ReadImageFacts& facts);
  void Failed(const QString& why);  // nothing follows
  // Final: by the newest wishes, with full effort.
  void Converted(const convert::Converted& converted, bool is_final);

 private:
  class Wanted;
  struct Request {
    convert::Wishes wishes;
    int number;
  };

  void Work(const std::stop_token& stop);
  std::optional<Request> Next(const std::stop_token& stop);
  void ConvertTwice(convert::Conversion& conversion, const Request& request, const std::stop_token& stop);
  bool Convert(convert::Conversion& conversion, const Request& request, convert::Effort effort, Wanted wanted);
  template <typename Tell>
  void InOwnThread(Tell tell);

  Read read_;
  std::mutex guard_;  // of `next_`
  std::condition_variable_any asked_;
  std::optional<Request> next_;
  std::atomic<int> newest_ = 0;  // the number of the last request
  std::jthread thread_;          // the last member: it ends before the others
};

}  // namespace kelvo::ui
