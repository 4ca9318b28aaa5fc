#include "ui/windows/import_worker.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

#include "model/named_palettes.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr int kMostShown = 1600;  // pixels of either side, for a display

class GivenUp : public std::exception {};

// Large ones in two steps: the smooth one needs several times the memory of what it reads.
QImage Reduced(const convert::RgbImage& image) {
  const QImage whole(reinterpret_cast<const uchar*>(image.pixels.data()), image.width, image.height,
                     QImage::Format_ARGB32);
  const QSize most(kMostShown, kMostShown);
  if (whole.size() == whole.size().boundedTo(most)) return whole.copy();
  const QSize roughly = whole.size().scaled(most * 2, Qt::KeepAspectRatio).boundedTo(whole.size());
  return whole.scaled(roughly.expandedTo({1, 1}))
      .scaled(whole.size().scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}), Qt::IgnoreAspectRatio,
              Qt::SmoothTransformation);
}

}  // namespace

// Throws at the next fixed point of the work when nobody wants its end any more.
class ImportWorker::Wanted final : public app::Progress {
 public:
  explicit Wanted(std::function<bool()> is_wanted) : is_wanted_(std::move(is_wanted)) {}
  void Begin(int) override {}
  void Advance(int) override {
    if (!is_wanted_()) throw GivenUp();
  }
  void End() override {}

 private:
  std::function<bool()> is_wanted_;
};

ImportWorker::ImportWorker(Read read)
    : read_(std::move(read)), thread_([this](const std::stop_token& stop) { Work(stop); }) {}

ImportWorker::~ImportWorker() = default;

void ImportWorker::Ask(const convert::Wishes& wishes) {
  {
    const std::scoped_lock lock(guard_);
    next_ = Request{wishes, ++newest_};
  }
  asked_.notify_one();
}

// What was told and not heard yet when the worker goes is never heard.
template <typename Tell>
void ImportWorker::InOwnThread(Tell tell) {
  QMetaObject::invokeMethod(this, std::move(tell), Qt::QueuedConnection);
}

void ImportWorker::Work(const std::stop_token& stop) {
  QString why;
  try {
    convert::Conversion conversion(read_(stop), model::NamedColours());
    const convert::RgbImage& image = conversion.Image();
    const ReadImageFacts facts{Reduced(image), {image.width, image.height}, conversion.ProposedDither()};
    InOwnThread([this, facts] { emit ImageRead(facts); });
    while (const auto request = Next(stop)) ConvertTwice(conversion, *request, stop);
    return;
  } catch (const std::bad_alloc&) {
    why = "there is not enough memory for the image";
  } catch (const std::exception& error) {
    why = ToQt(error.what());
  }
  InOwnThread([this, why] { emit Failed(why); });
}

std::optional<ImportWorker::Request> ImportWorker::Next(const std::stop_token& stop) {
  std::unique_lock lock(guard_);
  if (!asked_.wait(lock, stop, [this] { return next_.has_value(); })) return std::nullopt;
  return std::exchange(next_, std::nullopt);
}

void ImportWorker::ConvertTwice(convert::Conversion& conversion, const Request& request, const std::stop_token& stop) {
  const auto is_wanted = [&stop] { return !stop.stop_requested(); };
  const auto is_newest = [&, this] { return is_wanted() && request.number == newest_; };
  try {
    if (!Convert(conversion, request, convert::Effort::kQuick, Wanted(is_wanted)) && is_newest()) {
      Convert(conversion, request, convert::Effort::kFull, Wanted(is_newest));
    }
  } catch (const GivenUp&) {
    // the newer wishes are next
  }
}

// True when more effort would change nothing.
bool ImportWorker::Convert(convert::Conversion& conversion, const Request& request, convert::Effort effort,
                           Wanted wanted) {
  convert::Wishes wishes = request.wishes;
  wishes.effort = effort;
  convert::Converted converted = conversion.Convert(wishes, wanted);
  const bool is_done = effort == convert::Effort::kFull || converted.exact || wishes.grain == convert::kNoGrain;
  InOwnThread([this, converted = std::move(converted), is_done, number = request.number] {
    emit Converted(converted, is_done && number == newest_);
  });
  return is_done;
}

}  // namespace kelvo::ui
