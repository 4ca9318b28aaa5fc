#include "convert/parallel.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace kelvo::convert {

void InParallel(int count, const std::function<void(int)>& work) {
  std::atomic<int> next = 0;
  const auto run = [&] {
    for (int index = next++; index < count; index = next++) work(index);
  };
  const int threads = std::min(static_cast<int>(std::thread::hardware_concurrency()), count);
  std::vector<std::jthread> others(static_cast<std::size_t>(std::max(threads - 1, 0)));
  for (std::jthread& other : others) other = std::jthread(run);
  run();
}

void InBands(int rows, const std::function<void(int, int)>& work) {
  constexpr int kBand = 3;
  const int bands = (rows + kBand - 1) / kBand;
  for (const int parity : {0, 1}) {
    InParallel((bands + 1 - parity) / 2, [&](int index) {
      const int first = (2 * index + parity) * kBand;
      work(first, std::min(first + kBand, rows));
    });
  }
}

}  // namespace kelvo::convert
