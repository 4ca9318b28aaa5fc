#include "c64out/crunch_parse.h"

#include <algorithm>
#include <array>
#include <limits>

namespace kelvo::c64out {
namespace {

using Bytes = std::span<const std::uint8_t>;

// Prices are eighths of a bit. A literal costs a little more than its bits: telling one takes the C64 longer than
// copying a byte, and the time counts as the bits that load meanwhile.
constexpr int kBit = 8, kDelayOfLiteral = 4, kUnreached = std::numeric_limits<int>::max();

constexpr std::size_t kAfterCopy = 0, kAfterLiterals = 1;

// What every nibble costs in every context.
using Prices = std::array<std::array<int, 16>, NibbleModel::kContexts>;

// The model's prices along a section, kept every kStride bytes.
class PriceMap {
 public:
  static constexpr std::size_t kStride = 128;

  // Takes `model` as it was before byte `at`, for that byte's stride and those that have no prices yet.
  void Keep(const NibbleModel& model, std::size_t at) {
    while (prices_.size() <= at / kStride) prices_.push_back(PricesOf(model));
  }
  const Prices& At(std::size_t place) const { return prices_[std::min(place / kStride, prices_.size() - 1)]; }

 private:
  static Prices PricesOf(const NibbleModel& model) {
    Prices prices;
    for (int context = 0; context < NibbleModel::kContexts; ++context) {
      for (int nibble = 0; nibble < 16; ++nibble) {
        prices[static_cast<std::size_t>(context)][static_cast<std::size_t>(nibble)] =
            kBit * model.Bits(context, nibble);
      }
    }
    return prices;
  }

  std::vector<Prices> prices_;
};

int PriceOf(const Prices& prices, int context, int nibble) {
  return prices[static_cast<std::size_t>(context)][static_cast<std::size_t>(nibble)];
}

int PriceOfLength(const Prices& prices, int context, int kind, int length) {
  const int length_class = LengthClassOf(length);
  return PriceOf(prices, context, kind + length_class) +
         kBit * kLengthClasses[static_cast<std::size_t>(length_class)].extra_bits;
}

int PriceOfOffset(const Prices& prices, int length, int offset) {
  const int offset_class = OffsetClassOf(offset);
  return PriceOf(prices, OffsetContext(length), offset_class) + kBit * OffsetExtraBits(offset_class);
}

// The copies that can begin at each byte: with rising offsets, and only those that are longer than all nearer ones.
std::vector<std::vector<Token>> FindCopies(Bytes bytes, int window) {
  std::vector<std::vector<Token>> copies(bytes.size());
  const std::size_t farthest = std::min(static_cast<std::size_t>(window), std::max<std::size_t>(bytes.size(), 1) - 1);
  for (std::size_t offset = 1; offset <= farthest; ++offset) {
    int run = 0;
    for (std::size_t at = bytes.size(); at-- > offset;) {
      run = bytes[at] == bytes[at - offset] ? std::min(run + 1, kMostLength) : 0;
      if (run >= kLeastNewCopy && (copies[at].empty() || copies[at].back().length < run)) {
        copies[at].push_back({run, static_cast<int>(offset)});
      }
    }
  }
  return copies;
}

// A way to reach a place: by `token`, from the arrival `from` of the place where the token begins.
struct Arrival {
  int price = kUnreached, last_offset = 0;
  Token token;
  std::size_t from_state = 0, from = 0;
};

// Cheapest ways through a section, place by place from its start.
class Search {
 public:
  Search(Bytes bytes, Literals literals, const Effort& effort)
      : bytes_(bytes), literals_(literals), effort_(effort), copies_(FindCopies(bytes, effort.window)) {}

  std::vector<Token> Run(const PriceMap& map);

 private:
  // The arrivals of one place behind a copy or behind literals.
  using Arrivals = std::vector<Arrival>;

  Arrivals& At(std::size_t place, std::size_t state) { return arrivals_[place][state]; }
  void Offer(std::size_t place, std::size_t state, const Arrival& arrival);
  void PriceLiterals(const PriceMap& map);
  void TryLiterals(std::size_t place, const Prices& prices);
  void TryRepeats(std::size_t place, const Prices& prices);
  void TryNewCopies(std::size_t place, std::size_t state, const Prices& prices);
  std::vector<Token> TokensToEnd();

  Bytes bytes_;
  Literals literals_;
  Effort effort_;
  std::vector<std::vector<Token>> copies_;
  std::vector<int> literals_before_;  // the price of all bytes before a place as literals
  std::vector<std::array<Arrivals, 2>> arrivals_;
};

std::size_t Cheapest(const std::vector<Arrival>& arrivals) {
  const auto cheapest = std::min_element(arrivals.begin(), arrivals.end(),
                                         [](const Arrival& a, const Arrival& b) { return a.price < b.price; });
  return static_cast<std::size_t>(cheapest - arrivals.begin());
}

void Search::Offer(std::size_t place, std::size_t state, const Arrival& arrival) {
  Arrivals& known = At(place, state);
  Arrival* worst = nullptr;
  for (Arrival& other : known) {
    if (other.last_offset == arrival.last_offset) {
      if (arrival.price < other.price) other = arrival;
      return;
    }
    if (worst == nullptr || other.price > worst->price) worst = &other;
  }
  if (known.size() < static_cast<std::size_t>(effort_.arrivals)) {
    known.push_back(arrival);
  } else if (arrival.price < worst->price) {
    *worst = arrival;
  }
}

void Search::PriceLiterals(const PriceMap& map) {
  literals_before_.assign(bytes_.size() + 1, 0);
  int before = 0;
  for (std::size_t at = 0; at < bytes_.size(); ++at) {
    const Prices& prices = map.At(at);
    const int byte = bytes_[at];
    const LiteralContexts contexts = ContextsOf(literals_, byte, before);
    int price = 8 * kBit;
    if (literals_ != Literals::kRaw) {
      price = kDelayOfLiteral + PriceOf(prices, contexts.low, byte & 15);
      if (literals_ != Literals::kNibbles) price += PriceOf(prices, contexts.high, byte >> 4);
    }
    literals_before_[at + 1] = literals_before_[at] + price;
    before = byte;
  }
}

void Search::TryLiterals(std::size_t place, const Prices& prices) {
  const Arrivals known = At(place, kAfterCopy);
  const int most = static_cast<int>(std::min<std::size_t>(kMostLength, bytes_.size() - place));
  for (int length = 1; length <= most && !known.empty(); ++length) {
    const std::size_t end = place + static_cast<std::size_t>(length);
    const int price =
        PriceOfLength(prices, NibbleModel::kAfterCopy, 0, length) + literals_before_[end] - literals_before_[place];
    const std::size_t state =
        ContextBehindLiterals(LengthClassOf(length)) == NibbleModel::kAfterCopy ? kAfterCopy : kAfterLiterals;
    for (std::size_t i = 0; i < known.size(); ++i) {
      Offer(end, state, {known[i].price + price, known[i].last_offset, {length, 0}, kAfterCopy, i});
    }
  }
}

void Search::TryRepeats(std::size_t place, const Prices& prices) {
  const Arrivals& known = At(place, kAfterLiterals);
  for (std::size_t i = 0; i < known.size(); ++i) {
    const auto offset = static_cast<std::size_t>(known[i].last_offset);
    if (offset > place) continue;
    std::size_t end = place;
    for (int length = 1; length <= kMostLength && end < bytes_.size() && bytes_[end] == bytes_[end - offset];
         ++length) {
      const int price = known[i].price + PriceOfLength(prices, NibbleModel::kAfterLiterals, 0, length);
      Offer(++end, kAfterCopy, {price, known[i].last_offset, {length, known[i].last_offset}, kAfterLiterals, i});
    }
  }
}

void Search::TryNewCopies(std::size_t place, std::size_t state, const Prices& prices) {
  const Arrivals& known = At(place, state);
  if (known.empty()) return;
  const std::size_t i = Cheapest(known);
  const int context = state == kAfterCopy ? NibbleModel::kAfterCopy : NibbleModel::kAfterLiterals;
  int length = kLeastNewCopy;
  for (const Token& copy : copies_[place]) {
    for (; length <= copy.length; ++length) {
      const int price = known[i].price + PriceOfLength(prices, context, kNewCopy, length - 1) +
                        PriceOfOffset(prices, length, copy.offset);
      Offer(place + static_cast<std::size_t>(length), kAfterCopy,
            {price, copy.offset, {length, copy.offset}, state, i});
    }
  }
}

std::vector<Token> Search::TokensToEnd() {
  std::vector<Token> tokens;
  std::size_t place = bytes_.size(), state = kAfterCopy;
  const Arrivals &copied = At(place, kAfterCopy), &told = At(place, kAfterLiterals);
  if (copied.empty() || (!told.empty() && told[Cheapest(told)].price < copied[Cheapest(copied)].price)) {
    state = kAfterLiterals;
  }
  for (std::size_t i = Cheapest(At(place, state)); place > 0;) {
    const Arrival& arrival = At(place, state)[i];
    tokens.push_back(arrival.token);
    place -= static_cast<std::size_t>(arrival.token.length);
    state = arrival.from_state;
    i = arrival.from;
  }
  std::reverse(tokens.begin(), tokens.end());
  return tokens;
}

std::vector<Token> Search::Run(const PriceMap& map) {
  PriceLiterals(map);
  arrivals_.assign(bytes_.size() + 1, {});
  At(0, kAfterCopy).push_back({0, 1, {}, 0, 0});
  for (std::size_t place = 0; place < bytes_.size(); ++place) {
    const Prices& prices = map.At(place);
    TryLiterals(place, prices);
    TryRepeats(place, prices);
    TryNewCopies(place, kAfterCopy, prices);
    TryNewCopies(place, kAfterLiterals, prices);
  }
  return TokensToEnd();
}

// The prices along the way that `tokens` go, and the bits that they take.
struct Trial {
  PriceMap map;
  std::size_t size;
};

Trial TryOut(const std::vector<Token>& tokens, Bytes bytes, Literals literals) {
  BitWriter writer;
  SectionWriter section(bytes, literals, writer);
  Trial trial;
  std::size_t at = 0;
  trial.map.Keep(section.Model(), at);
  for (const Token& token : tokens) {
    section.Put(token);
    at += static_cast<std::size_t>(token.length);
    trial.map.Keep(section.Model(), at);
  }
  trial.size = writer.Bytes().size();
  return trial;
}

}  // namespace

std::vector<Token> FindTokens(Bytes bytes, Literals literals, const Effort& effort) {
  Search search(bytes, literals, effort);
  PriceMap map = TryOut({}, bytes, literals).map;
  std::vector<Token> best;
  std::size_t best_size = std::numeric_limits<std::size_t>::max();
  for (int pass = 0; pass < effort.passes; ++pass) {
    std::vector<Token> tokens = search.Run(map);
    Trial trial = TryOut(tokens, bytes, literals);
    map = std::move(trial.map);
    if (trial.size < best_size) {
      best_size = trial.size;
      best = std::move(tokens);
    }
  }
  return best;
}

}  // namespace kelvo::c64out
