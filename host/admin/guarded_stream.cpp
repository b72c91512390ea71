#include "host/admin/guarded_stream.h"

#include <utility>

#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

bool IsBegun(std::string_view rest) { return rest == "\r" || IsCutCharacter(rest); }

/// What of `rest` is passed on as it is: a line break, of either kind.
std::string_view LineBreakIn(std::string_view rest) {
  if (rest.starts_with('\n')) return rest.substr(0, 1);
  return rest.starts_with("\r\n") ? rest.substr(0, 2) : std::string_view();
}

}  // namespace

GuardingBuffer::int_type GuardingBuffer::overflow(int_type byte) {
  if (traits_type::eq_int_type(byte, traits_type::eof())) return traits_type::not_eof(byte);
  const char one = traits_type::to_char_type(byte);
  return Write({&one, 1}) ? byte : traits_type::eof();
}

std::streamsize GuardingBuffer::xsputn(const char* bytes, std::streamsize count) {
  return Write({bytes, static_cast<std::size_t>(count)}) ? count : 0;
}

int GuardingBuffer::sync() {
  // Nothing completes it any more.
  const std::string begun = std::exchange(begun_, {});
  return target_ << OneLine(begun) && target_.flush() ? 0 : -1;
}

bool GuardingBuffer::Write(std::string_view bytes) {
  const std::string all = begun_ + std::string(bytes);
  begun_.clear();
  std::string safe;
  for (std::string_view rest = all; !rest.empty();) {
    if (IsBegun(rest)) {
      begun_ = rest;
      break;
    }
    std::string_view taken = LineBreakIn(rest);
    if (!taken.empty()) {
      safe += taken;
    } else {
      const FrontCharacter next = FirstCharacter(rest);
      taken = next.bytes;
      safe += IsUnsafe(next) ? Escaped(next) : std::string(taken);
    }
    rest.remove_prefix(taken.size());
  }
  return static_cast<bool>(target_ << safe);
}

GuardedStream::GuardedStream(std::ostream& target, bool is_terminal)
    : std::ostream(nullptr), buffer_(target), target_(target), is_terminal_(is_terminal) {
  rdbuf(&buffer_);
}

GuardedStream::~GuardedStream() { flush(); }

std::ostream& GuardedStream::ForPrograms() {
  if (is_terminal_) return *this;
  return target_;
}

bool IsOnTerminal(const std::ostream& out) {
  const auto* const guarded = dynamic_cast<const GuardedStream*>(&out);
  return guarded != nullptr && guarded->IsOnTerminal();
}

std::ostream& ForPrograms(std::ostream& out) {
  auto* const guarded = dynamic_cast<GuardedStream*>(&out);
  return guarded != nullptr ? guarded->ForPrograms() : out;
}

}  // namespace ferrowind::host
