#include "cli/parallel.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

namespace kelvo::cli {
namespace {

// The work that is left, which every thread takes the next of.
class Queue {
 public:
  Queue(std::size_t count, const std::function<void(std::size_t)>& work) : work_(work), done_(count) {}

  void Work() {
    for (std::size_t i = 0; (i = next_++) < done_.size();) {
      try {
        work_(i);
        done_[i].set_value();
      } catch (...) {
        done_[i].set_exception(std::current_exception());
      }
    }
  }
  void Await(std::size_t i) { done_[i].get_future().get(); }
  void GiveUp() { next_ = done_.size(); }

 private:
  const std::function<void(std::size_t)>& work_;
  std::vector<std::promise<void>> done_;
  std::atomic<std::size_t> next_ = 0;
};

}  // namespace

void InParallel(std::size_t count, const std::function<void(std::size_t)>& work,
                const std::function<void(std::size_t)>& then) {
  Queue queue(count, work);
  std::vector<std::jthread> threads;  // which are waited for at the end, whatever it is
  const std::size_t most = std::max(1U, std::thread::hardware_concurrency());
  for (std::size_t i = 0; i < std::min(count, most); ++i) threads.emplace_back([&queue] { queue.Work(); });
  try {
    for (std::size_t i = 0; i < count; ++i) {
      queue.Await(i);
      then(i);
    }
  } catch (...) {
    queue.GiveUp();
    throw;
  }
}

}  // namespace kelvo::cli
