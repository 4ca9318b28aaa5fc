#include "c64out/crunch_section.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace kelvo::c64out {
namespace {

const LengthClass& Class(int number) {
  return kLengthClasses[static_cast<std::size_t>(number)];
}

// Reads what SectionWriter writes.
class SectionReader {
 public:
  SectionReader(Literals literals, std::size_t most, BitReader& reader)
      : literals_(literals), most_(most), reader_(reader) {}

  // Reads one token; false at the section's end.
  bool Step();
  std::vector<std::uint8_t> Take() { return std::move(bytes_); }

 private:
  int GetNibble(int context);
  bool GetOffset(int length);
  int GetLiteral(int before);
  void AppendLiterals(int length);
  void Copy(int length);

  Literals literals_;
  std::size_t most_;
  BitReader& reader_;
  NibbleModel model_;
  std::vector<std::uint8_t> bytes_;
  int context_ = NibbleModel::kAfterCopy, offset_ = 1;
};

int SectionReader::GetNibble(int context) {
  const RankCode& code = model_.CodeIn(context);
  std::size_t found = 0;
  while (found < 3 && reader_.GetBits(1) == 1) ++found;
  const int rank = code.first[found] + reader_.GetBits(code.extra_bits[found]);
  if (rank > 15) throw std::runtime_error("the packed data is damaged: there is no such rank");
  const int nibble = model_.NibbleAt(context, rank);
  model_.Count(context, rank);
  return nibble;
}

bool SectionReader::GetOffset(int length) {
  const int offset_class = GetNibble(OffsetContext(length));
  if (offset_class == kEndOfSection) return false;
  const int digits = reader_.GetBits(OffsetExtraBits(offset_class));
  offset_ = 1 + (offset_class == 0 ? 0 : 1 << (offset_class - 1) | digits);
  return true;
}

int SectionReader::GetLiteral(int before) {
  if (literals_ == Literals::kRaw) return reader_.GetByte();
  const int high = literals_ == Literals::kNibbles ? 0 : GetNibble(ContextsOf(literals_, 0, before).high);
  return high << 4 | GetNibble(ContextsOf(literals_, high << 4, before).low);
}

void SectionReader::AppendLiterals(int length) {
  int before = bytes_.empty() ? 0 : bytes_.back();
  while (length-- > 0) {
    before = GetLiteral(before);
    bytes_.push_back(static_cast<std::uint8_t>(before));
  }
}

void SectionReader::Copy(int length) {
  if (static_cast<std::size_t>(offset_) > bytes_.size()) {
    throw std::runtime_error("the packed data is damaged: a copy from before the start");
  }
  while (length-- > 0) bytes_.push_back(bytes_[bytes_.size() - static_cast<std::size_t>(offset_)]);
}

bool SectionReader::Step() {
  const int token = GetNibble(context_);
  const int length_class = token % kNewCopy;
  int length = Class(length_class).first + reader_.GetBits(Class(length_class).extra_bits);
  const bool literals = token < kNewCopy && context_ == NibbleModel::kAfterCopy;
  if (token >= kNewCopy && !GetOffset(++length)) return false;
  if (static_cast<std::size_t>(length) > most_ - bytes_.size()) {
    throw std::runtime_error("the packed data is damaged: it unpacks to too many bytes");
  }
  if (literals) {
    AppendLiterals(length);
  } else {
    Copy(length);
  }
  context_ = literals ? ContextBehindLiterals(length_class) : static_cast<int>(NibbleModel::kAfterCopy);
  return true;
}

}  // namespace

int LengthClassOf(int length) {
  int found = kLongestClass;
  while (length < Class(found).first) --found;
  return found;
}

int OffsetClassOf(int offset) {
  return static_cast<int>(std::bit_width(static_cast<unsigned>(offset - 1)));
}

int OffsetContext(int length) {
  return NibbleModel::kOffset + std::min(length - kLeastNewCopy, NibbleModel::kOffsets - 1);
}

LiteralContexts ContextsOf(Literals literals, int byte, int before) {
  return {before >> 4, literals == Literals::kPixels ? before & 15 : byte >> 4};
}

void SectionWriter::PutNibble(int context, int nibble) {
  const int rank = model_.RankOf(context, nibble);
  const RankCode& code = model_.CodeIn(context);
  const int found = code.ClassOf(rank);
  const auto index = static_cast<std::size_t>(found);
  writer_.PutBits(found < 3 ? (2 << found) - 2 : 7, std::min(found + 1, 3));
  writer_.PutBits(rank - code.first[index], code.extra_bits[index]);
  model_.Count(context, rank);
}

void SectionWriter::PutLength(int kind, int length) {
  const int length_class = LengthClassOf(length);
  PutNibble(context_, kind + length_class);
  writer_.PutBits(length - Class(length_class).first, Class(length_class).extra_bits);
}

void SectionWriter::PutOffset(int length, int offset) {
  const int offset_class = OffsetClassOf(offset);
  PutNibble(OffsetContext(length), offset_class);
  writer_.PutBits(offset - 1, OffsetExtraBits(offset_class));
}

void SectionWriter::PutLiteral(int byte, int before) {
  if (literals_ == Literals::kRaw) return writer_.PutByte(byte);
  const LiteralContexts contexts = ContextsOf(literals_, byte, before);
  if (literals_ != Literals::kNibbles) PutNibble(contexts.high, byte >> 4);
  PutNibble(contexts.low, byte & 15);
}

void SectionWriter::Put(Token token) {
  const bool literals = token.offset == 0;
  if (literals) {
    PutLength(0, token.length);
    context_ = ContextBehindLiterals(LengthClassOf(token.length));
    for (int i = 0; i < token.length; ++i) {
      const std::size_t place = at_ + static_cast<std::size_t>(i);
      PutLiteral(bytes_[place], place == 0 ? 0 : bytes_[place - 1]);
    }
  } else if (context_ == NibbleModel::kAfterLiterals && token.offset == offset_) {
    PutLength(0, token.length);
    context_ = NibbleModel::kAfterCopy;
  } else {
    PutLength(kNewCopy, token.length - 1);
    PutOffset(token.length, token.offset);
    offset_ = token.offset;
    context_ = NibbleModel::kAfterCopy;
  }
  at_ += static_cast<std::size_t>(token.length);
}

void SectionWriter::End() {
  PutLength(kNewCopy, kLeastNewCopy - 1);
  PutNibble(OffsetContext(kLeastNewCopy), kEndOfSection);
}

std::vector<std::uint8_t> ReadSection(Literals literals, std::size_t most, BitReader& reader) {
  SectionReader section(literals, most, reader);
  while (section.Step()) {
  }
  return section.Take();
}

}  // namespace kelvo::c64out
