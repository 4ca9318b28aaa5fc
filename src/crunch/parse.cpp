#include "crunch/parse.h"

#include <algorithm>
#include <array>
#include <limits>

namespace kelvo::crunch {
namespace {

using BytesView = std::span<const std::uint8_t>;

constexpr int kFlag = 1;  // the bit that begins a token

// What an arrival can cost more than the cheapest at its place and still be the better one to go on from: using the
// last offset again saves about as many bits.
constexpr int kMostSavedByRepeat = 12;

enum State : std::size_t { kBehindCopy, kBehindLiterals };

// The copies that can begin at each byte: with rising offsets, and only those that are longer than all nearer ones.
std::vector<std::vector<Token>> FindCopies(BytesView bytes, int window) {
  std::vector<std::vector<Token>> copies(bytes.size());
  for (std::size_t offset = 1; offset < bytes.size() && offset <= static_cast<std::size_t>(window); ++offset) {
    int run = 0;
    for (std::size_t at = bytes.size(); at-- > offset;) {
      run = bytes[at] == bytes[at - offset] ? std::min(run + 1, kMostLong) : 0;
      if (run >= kLeastNewCopy && (copies[at].empty() || copies[at].back().length < run)) {
        copies[at].push_back({run, static_cast<int>(offset)});
      }
    }
  }
  return copies;
}

// A way to reach a place: by `token`, which begins where the arrival number `from` in `from_state` is.
struct Arrival {
  int bits, last_offset;
  Token token;
  State from_state;
  std::size_t from;
};
using Arrivals = std::vector<Arrival>;

std::size_t Cheapest(const Arrivals& arrivals) {
  const auto cheapest = std::min_element(arrivals.begin(), arrivals.end(),
                                         [](const Arrival& a, const Arrival& b) { return a.bits < b.bits; });
  return static_cast<std::size_t>(cheapest - arrivals.begin());
}

// Finds the cheapest way through a section, place by place from its start.
class Search {
 public:
  Search(BytesView bytes, Literals literals, const Effort& effort)
      : bytes_(bytes), literals_(literals), effort_(effort), copies_(FindCopies(bytes, effort.window)) {}

  Parse Run(const OffsetCode& code);

 private:
  // False when `arrival` costs so much more than others that it leads nowhere.
  bool Offer(std::size_t place, State state, const Arrival& arrival);
  void TryLiterals(std::size_t place);
  void TryRepeats(std::size_t place);
  void TryNewCopies(std::size_t place, State state);
  Parse BestWay();

  BytesView bytes_;
  Literals literals_;
  Effort effort_;
  std::vector<std::vector<Token>> copies_;
  OffsetCode code_;
  std::vector<std::array<Arrivals, 2>> arrivals_;  // by place and State
  std::vector<int> least_bits_;                    // by place
};

bool Search::Offer(std::size_t place, State state, const Arrival& arrival) {
  least_bits_[place] = std::min(least_bits_[place], arrival.bits);
  if (arrival.bits - kMostSavedByRepeat > least_bits_[place]) return false;
  Arrivals& known = arrivals_[place][state];
  Arrival* worst = nullptr;
  for (Arrival& other : known) {
    if (other.last_offset == arrival.last_offset) {
      if (arrival.bits < other.bits) other = arrival;
      return true;
    }
    if (worst == nullptr || other.bits > worst->bits) worst = &other;
  }
  if (known.size() < static_cast<std::size_t>(effort_.arrivals)) {
    known.push_back(arrival);
  } else if (arrival.bits < worst->bits) {
    *worst = arrival;
  }
  return true;
}

void Search::TryLiterals(std::size_t place) {
  const Arrivals& known = arrivals_[place][kBehindCopy];
  if (known.empty()) return;
  const int most = static_cast<int>(std::min<std::size_t>(kMostLength, bytes_.size() - place));
  for (int length = 1; length <= most; ++length) {
    const int bits = kFlag + GammaBits(length) + static_cast<int>(literals_) * length;
    const State state = CountsAsCopy(length) ? kBehindCopy : kBehindLiterals;
    bool leads_on = false;
    for (std::size_t i = 0; i < known.size(); ++i) {
      leads_on |= Offer(place + static_cast<std::size_t>(length), state,
                        {known[i].bits + bits, known[i].last_offset, {length, 0}, kBehindCopy, i});
    }
    if (!leads_on) return;  // longer runs cost even more
  }
}

void Search::TryRepeats(std::size_t place) {
  const Arrivals& known = arrivals_[place][kBehindLiterals];
  for (std::size_t i = 0; i < known.size(); ++i) {
    const int offset = known[i].last_offset;
    if (offset == 0) continue;
    std::size_t end = place;
    for (int length = 1; length <= kMostLength && end < bytes_.size(); ++length) {
      if (bytes_[end] != bytes_[end - static_cast<std::size_t>(offset)]) break;
      Offer(++end, kBehindCopy,
            {known[i].bits + kFlag + GammaBits(length), offset, {length, offset}, kBehindLiterals, i});
    }
  }
}

void Search::TryNewCopies(std::size_t place, State state) {
  const Arrivals& known = arrivals_[place][state];
  if (known.empty()) return;
  const std::size_t i = Cheapest(known);
  int length = kLeastNewCopy;
  for (const Token& copy : copies_[place]) {
    const auto offer = [&](int bytes) {
      if (!code_.Takes(bytes, copy.offset)) return;
      const int bits = known[i].bits + kFlag + NewCopyLengthBits(bytes) + code_.Bits(bytes, copy.offset);
      Offer(place + static_cast<std::size_t>(bytes), kBehindCopy, {bits, copy.offset, {bytes, copy.offset}, state, i});
    };
    for (; length <= std::min(copy.length, kMostLength); ++length) offer(length);
    if (copy.length >= kLongUnit) offer(copy.length / kLongUnit * kLongUnit);
  }
}

Parse Search::BestWay() {
  Parse parse;
  std::size_t place = bytes_.size();
  const Arrivals &copied = arrivals_[place][kBehindCopy], &told = arrivals_[place][kBehindLiterals];
  State state = kBehindCopy;
  if (copied.empty() || (!told.empty() && told[Cheapest(told)].bits < copied[Cheapest(copied)].bits)) {
    state = kBehindLiterals;
  }
  std::size_t i = Cheapest(arrivals_[place][state]);
  parse.bits = arrivals_[place][state][i].bits;
  while (place > 0) {
    const Arrival& arrival = arrivals_[place][state][i];
    parse.tokens.push_back(arrival.token);
    place -= static_cast<std::size_t>(arrival.token.length);
    state = arrival.from_state;
    i = arrival.from;
  }
  std::reverse(parse.tokens.begin(), parse.tokens.end());
  return parse;
}

Parse Search::Run(const OffsetCode& code) {
  code_ = code;
  arrivals_.assign(bytes_.size() + 1, {});
  least_bits_.assign(bytes_.size() + 1, std::numeric_limits<int>::max());
  arrivals_[0][kBehindCopy].push_back({0, 0, {}, kBehindCopy, 0});
  for (std::size_t place = 0; place < bytes_.size(); ++place) {
    TryLiterals(place);
    TryRepeats(place);
    TryNewCopies(place, kBehindCopy);
    TryNewCopies(place, kBehindLiterals);
  }
  Parse parse = BestWay();
  parse.code = code;
  return parse;
}

// The number of low digits that suits the offsets of the copies in `tokens` best, short or long ones.
int BestDigits(const std::vector<Token>& tokens, bool is_short) {
  int best = 0, least = std::numeric_limits<int>::max();
  for (int digits = 0; digits <= kMostDigits; ++digits) {
    const OffsetCode code{digits, digits};
    int bits = 0;
    bool takes_all = true;
    for (const Token& token : tokens) {
      if (token.offset == 0 || (token.length == kLeastNewCopy) != is_short) continue;
      takes_all &= code.Takes(token.length, token.offset);
      bits += code.Bits(token.length, token.offset);
    }
    if (takes_all && bits < least) {
      least = bits;
      best = digits;
    }
  }
  return best;
}

}  // namespace

Parse FindTokens(BytesView bytes, Literals literals, const Effort& effort) {
  Search search(bytes, literals, effort);
  Parse best = search.Run({5, 6});
  const auto improve = [&](const OffsetCode& code) {
    Parse next = search.Run(code);
    const bool better = next.bits < best.bits;
    if (better) best = std::move(next);
    return better;
  };
  int passes = effort.passes;
  while (--passes > 0 && improve({BestDigits(best.tokens, true), BestDigits(best.tokens, false)})) {
  }
  constexpr OffsetCode kSteps[] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}};
  for (std::size_t misses = 0, step = 0; passes-- > 0 && misses < std::size(kSteps); step = (step + 1) % 4) {
    const OffsetCode next{std::clamp(best.code.short_digits + kSteps[step].short_digits, 0, kMostDigits),
                          std::clamp(best.code.long_digits + kSteps[step].long_digits, 0, kMostDigits)};
    misses = improve(next) ? 0 : misses + 1;
  }
  return best;
}

}  // namespace kelvo::crunch
