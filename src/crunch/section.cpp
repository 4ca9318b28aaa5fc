#include "crunch/section.h"

#include <stdexcept>

namespace kelvo::crunch {
namespace {

// The state that writer and reader share: what the next token is told against.
struct Behind {
  bool copy = true;
  int offset = 0;  // used last; 0: none yet
};

class SectionWriter {
 public:
  SectionWriter(std::span<const std::uint8_t> bytes, Literals literals, const OffsetCode& code, BitWriter& writer)
      : bytes_(bytes), literals_(literals), code_(code), writer_(writer) {}

  void Put(Token token);

 private:
  void PutLiterals(int length);
  void PutNewCopy(Token token);

  std::span<const std::uint8_t> bytes_;  // not yet written
  Literals literals_;
  OffsetCode code_;
  BitWriter& writer_;
  Behind behind_;
};

void SectionWriter::PutLiterals(int length) {
  for (const std::uint8_t byte : bytes_.first(static_cast<std::size_t>(length))) {
    if (literals_ == Literals::kBytes) {
      writer_.PutByte(byte);
    } else {
      writer_.PutBits(byte, 4);
    }
  }
}

void SectionWriter::PutNewCopy(Token token) {
  const int digits = code_.DigitsFor(token.length), value = token.offset - 1;
  const bool is_long = token.length > kMostLength;
  writer_.PutGamma(is_long ? kGammaEnd : token.length - 1);
  if (is_long) writer_.PutGamma(token.length / kLongUnit + 1);
  writer_.PutGamma((value >> digits) + 1);
  writer_.PutBits(value, digits);
}

void SectionWriter::Put(Token token) {
  const bool literals = token.offset == 0, repeat = !literals && !behind_.copy && token.offset == behind_.offset;
  writer_.PutBits(literals || repeat ? 0 : 1, 1);
  if (literals || repeat) {
    writer_.PutGamma(token.length);
  } else {
    PutNewCopy(token);
  }
  if (literals) PutLiterals(token.length);
  behind_ = literals ? Behind{CountsAsCopy(token.length), behind_.offset} : Behind{true, token.offset};
  bytes_ = bytes_.subspan(static_cast<std::size_t>(token.length));
}

class SectionReader {
 public:
  SectionReader(Literals literals, std::size_t most, BitReader& reader)
      : literals_(literals), most_(most), reader_(reader) {
    code_.short_digits = Digits();
    code_.long_digits = Digits();
  }

  // Reads one token; false at the end mark.
  bool Step();
  std::vector<std::uint8_t> Take() { return std::move(bytes_); }

 private:
  int Digits();
  Token GetToken();
  void Append(Token token);

  Literals literals_;
  std::size_t most_;
  BitReader& reader_;
  OffsetCode code_;
  std::vector<std::uint8_t> bytes_;
  Behind behind_;
};

int SectionReader::Digits() {
  const int digits = reader_.GetByte();
  if (digits > kMostDigits) throw std::runtime_error("the packed data is damaged");
  return digits;
}

Token SectionReader::GetToken() {
  const bool is_new = reader_.GetBits(1) == 1;
  const int told = reader_.GetGamma();
  if (!is_new) return {told, behind_.copy ? 0 : behind_.offset};
  const int length = told == kGammaEnd ? (reader_.GetGamma() - 1) * kLongUnit : told + 1;
  if (length == 0) return {};
  const int digits = code_.DigitsFor(length), high = reader_.GetGamma() - 1;
  return {length, (high << digits | reader_.GetBits(digits)) + 1};
}

void SectionReader::Append(Token token) {
  for (int i = 0; i < token.length; ++i) {
    if (token.offset > 0) {
      bytes_.push_back(bytes_[bytes_.size() - static_cast<std::size_t>(token.offset)]);
    } else {
      bytes_.push_back(
          static_cast<std::uint8_t>(literals_ == Literals::kBytes ? reader_.GetByte() : reader_.GetBits(4)));
    }
  }
}

bool SectionReader::Step() {
  const bool behind_copy = behind_.copy;
  const Token token = GetToken();
  if (token.length == 0) return false;
  const bool copy = token.offset > 0;
  if (token.length > kMostLong || static_cast<std::size_t>(token.length) > most_ - bytes_.size() ||
      static_cast<std::size_t>(token.offset) > bytes_.size() || (!copy && !behind_copy)) {
    throw std::runtime_error("the packed data is damaged");
  }
  Append(token);
  behind_ = copy ? Behind{true, token.offset} : Behind{CountsAsCopy(token.length), behind_.offset};
  return true;
}

}  // namespace

void WriteSection(std::span<const std::uint8_t> bytes, std::span<const Token> tokens, Literals literals,
                  const OffsetCode& code, BitWriter& writer) {
  writer.PutByte(code.short_digits);
  writer.PutByte(code.long_digits);
  SectionWriter section(bytes, literals, code, writer);
  for (const Token& token : tokens) section.Put(token);
  writer.PutBits(1, 1);
  writer.PutGamma(kGammaEnd);
  writer.PutGamma(1);
}

std::vector<std::uint8_t> ReadSection(Literals literals, std::size_t most, BitReader& reader) {
  SectionReader section(literals, most, reader);
  while (section.Step()) {
  }
  return section.Take();
}

}  // namespace kelvo::crunch
