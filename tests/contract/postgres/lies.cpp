#include "tests/contract/postgres/lies.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <random>
#include <string_view>
#include <utility>

/// Told in a pipeline that the server is ready before an answer has ended, libpq forgets what it has of it.
/// The library is named, since its functions are not known where nothing tells symbols. That every result
/// which it gives away is let go of, the tests of an honest server see.
extern "C" const char* __lsan_default_suppressions() { return "leak:libpq.so\n"; }

namespace ferrowind::contract {
namespace {

using namespace std::string_literals;

using Detection = Lie::Detection;

// The parts of messages
// -----------------------------------------------------------------------------------------------------------

std::string Number(std::uint32_t number, int bytes) {
  std::string text;
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) text += static_cast<char>(number >> shift & 0xFF);
  return text;
}

std::uint32_t NumberAt(std::string_view body, std::size_t at, std::size_t bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = at; i < at + bytes && i < body.size(); ++i) {
    number = number << 8 | static_cast<unsigned char>(body[i]);
  }
  return number;
}

constexpr std::uint32_t kNull = 0xFFFFFFFF;
constexpr std::size_t kCountBytes = 2;

/// A row, or the columns of rows, as its parts: in a row each has its length in front, and a column is a name
/// that NUL ends and 18 bytes.
struct Parts {
  std::uint32_t count = 0;
  std::vector<std::string> parts;
};

Parts CellsOf(const std::string& body) {
  Parts cells{NumberAt(body, 0, kCountBytes), {}};
  for (std::size_t at = kCountBytes; at + 4 <= body.size();) {
    const std::uint32_t length = NumberAt(body, at, 4);
    const std::size_t size = 4 + (length == kNull ? 0 : length);
    cells.parts.push_back(body.substr(at, size));
    at += size;
  }
  return cells;
}

constexpr std::size_t kBehindName = 18;

Parts ColumnsOf(const std::string& body) {
  Parts columns{NumberAt(body, 0, kCountBytes), {}};
  for (std::size_t at = kCountBytes; at < body.size();) {
    const std::size_t size = body.find('\0', at) + 1 + kBehindName - at;
    columns.parts.push_back(body.substr(at, size));
    at += size;
  }
  return columns;
}

std::string Joined(const Parts& parts) {
  std::string body = Number(parts.count, kCountBytes);
  for (const std::string& part : parts.parts) body += part;
  return body;
}

std::string Cell(std::string_view bytes) {
  return Number(static_cast<std::uint32_t>(bytes.size()), 4) + std::string(bytes);
}

// Lies
// -----------------------------------------------------------------------------------------------------------

/// The lies about one message. What they tell is made of the message as it comes then, whose parts may differ
/// from the recorded one's.
class MessageLies {
 public:
  MessageLies(std::size_t at, const ServerMessage& message, std::uint32_t seed, std::vector<Lie>& lies)
      : at_(at), message_(message), random_(seed + static_cast<std::uint32_t>(at)), lies_(lies) {}

  void AddAll() {
    AddGeneral();
    AddIntrusions();
    AddRandomBytes();
    switch (message_.type) {
      case 'T':
        AddColumns();
        break;
      case 'D':
        AddCells();
        break;
      case 'C':
        AddTags();
        break;
      case 'Z':
        for (const char* const status : {"T", "E", "?", ""}) AddBody("another state", status);
        break;
      default:
        break;
    }
  }

 private:
  using Change = std::function<std::string(const ServerMessage& message)>;

  Lie& Add(const std::string& what, const Change& change, Told::Then then = Told::Then::kGoOn) {
    Lie lie;
    lie.name = "message " + std::to_string(at_) + " (" + message_.type + "): " + what;
    lie.at = at_;
    // Nobody can tell a value that is not the true one.
    if (message_.type == 'D' || message_.type == 'T') lie.detection = Detection::kImpossible;
    lie.tell = [change, then](const ServerMessage& message) { return Told{change(message), then, true}; };
    lies_.push_back(std::move(lie));
    return lies_.back();
  }
  Lie& AddBody(const std::string& what, const std::string& body) {
    return Add(what, [body](const ServerMessage& message) {
      return ServerMessage{message.type, body}.Bytes();
    });
  }

  void AddGeneral() {
    const bool is_row = message_.type == 'D';
    Add("dropped", [](const ServerMessage&) { return std::string(); }).detection =
        is_row ? Detection::kFailure : Detection::kFailureOrTruth;
    Add("repeated", [](const ServerMessage& message) {
      return message.Bytes() + message.Bytes();
    }).detection = is_row ? Detection::kFailure : Detection::kFailureOrTruth;
    Lie& late = Add("late", [](const ServerMessage& message) { return message.Bytes(); });
    late.detection = Detection::kFailureOrTruth;
    late.is_late = true;
    // Two rows in another order are as true as any.
    if (is_row) late.detection = Detection::kImpossible;
    Add(
        "nothing behind it", [](const ServerMessage& message) { return message.Bytes(); }, Told::Then::kClose)
        .detection = Detection::kFailureOrTruth;
    Add(
        "cut in the middle",
        [](const ServerMessage& message) {
          const std::string bytes = message.Bytes();
          return bytes.substr(0, bytes.size() / 2);
        },
        Told::Then::kClose)
        .detection = Detection::kFailureOrTruth;
    for (const std::uint32_t length : {0U, 3U, 4U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
      Add("the length " + std::to_string(length), [length](const ServerMessage& message) {
        return message.Bytes().replace(1, 4, Number(length, 4));
      }).detection = Detection::kFailureOrTruth;
    }
    for (const char type : std::string_view("TDCZE12InstRKSANGHWcdvX")) {
      if (type == message_.type) continue;
      Add(std::string("of the type ") + type, [type](const ServerMessage& message) {
        return ServerMessage{type, message.body}.Bytes();
      }).detection = Detection::kFailureOrTruth;
    }
    AddBody("empty", "");
  }

  /// Messages that nobody asked for, in front of it.
  void AddIntrusions() {
    const std::string long_text(300000, 'x');
    const std::vector<std::pair<std::string, ServerMessage>> intruders = {
        {"an error without fields", {'E', std::string(1, '\0')}},
        {"an error of the state ab", {'E', "SERROR\0Cab\0Mno\0\0"s}},
        {"an error of a long state",
         {'E', "SERROR" + std::string(1, '\0') + "C" + std::string(999, 'Z') + std::string(2, '\0')}},
        {"an error of odd bytes", {'E', "SERROR\0CXX000\0M\x1b[2J\xC3\x28\n\xFF\0\0"s}},
        {"an error of a long text", {'E', "SERROR\0CXX000\0M"s + long_text + std::string(2, '\0')}},
        {"an error without an end", {'E', "Mhalf"}},
        {"a notice", {'N', "SNOTICE\0C00000\0Mhear\0\0"s}},
        {"a notice of odd bytes", {'N', "S\xFF\0M\xFF\xFE\0\0"s}},
        {"a notification", {'A', Number(1, 4) + "ferrowind_change\0\0"s}},
        {"a cut notification", {'A', "ab"}},
        {"another encoding", {'S', "client_encoding\0LATIN1\0"s}},
        {"an encoding that is none", {'S', "client_encoding\0\xFF\0"s}},
        {"copied data to come", {'H', Number(0, 1) + Number(0, 2)}},
        {"copied data wanted", {'G', Number(0, 1) + Number(0, 2)}},
        {"copied data both ways", {'W', Number(0, 1) + Number(0, 2)}},
        {"copied data", {'d', "1\t2\n"}},
        {"an empty query", {'I', ""}},
        {"no data", {'n', ""}},
        {"a suspended portal", {'s', ""}},
        {"a closed statement", {'3', ""}},
        {"a function's result", {'V', Number(4, 4) + "abcd"}},
        {"that it is ready", {'Z', "I"}},
        {"a command's end", {'C', "SELECT 0\0"s}},
        {"a row of nothing", {'D', Number(0, 2)}},
        {"a row of more than any", {'D', Number(0xFFFF, 2)}},
        {"columns of nothing", {'T', Number(0, 2)}},
        {"more columns than any", {'T', Number(0xFFFF, 2)}},
        {"a wish for a password", {'R', Number(3, 4)}},
        {"a cancel key", {'K', Number(1, 4) + Number(2, 4)}},
    };
    for (const auto& [what, intruder] : intruders) {
      const std::string bytes = intruder.Bytes();
      Add(what + " in front", [bytes](const ServerMessage& message) {
        return bytes + message.Bytes();
      }).detection = Detection::kFailureOrTruth;
      Add(what + " in its place", [bytes](const ServerMessage&) { return bytes; }).detection =
          Detection::kFailureOrTruth;
    }
  }

  void AddRandomBytes() {
    for (int i = 0; i < 4 && !message_.body.empty(); ++i) {
      const std::size_t place = random_();
      const auto byte = static_cast<char>(random_());
      Add("the byte " + std::to_string(place % message_.body.size()) + " changed",
          [place, byte](const ServerMessage& message) {
            ServerMessage changed = message;
            if (!changed.body.empty()) changed.body[place % changed.body.size()] = byte;
            return changed.Bytes();
          })
          .detection = Detection::kImpossible;
    }
  }

  void AddParts(const std::string& what, Parts (*split)(const std::string& body),
                const std::function<void(Parts& parts)>& change) {
    Add(what, [split, change](const ServerMessage& message) {
      Parts parts = split(message.body);
      change(parts);
      return ServerMessage{message.type, Joined(parts)}.Bytes();
    });
  }

  void AddCounts(Parts (*split)(const std::string& body)) {
    for (const std::uint32_t count : {0U, 1U, 2U, 100U, 0x7FFFU, 0xFFFFU}) {
      AddParts(std::to_string(count) + " parts said", split, [count](Parts& parts) { parts.count = count; });
    }
    AddParts("the last part missing", split, [](Parts& parts) {
      if (parts.parts.empty()) return;
      parts.parts.pop_back();
      --parts.count;
    });
    AddParts("the last part twice", split, [](Parts& parts) {
      if (parts.parts.empty()) return;
      parts.parts.push_back(parts.parts.back());
      ++parts.count;
    });
  }

  void AddColumns() {
    AddCounts(ColumnsOf);
    const std::size_t count = ColumnsOf(message_.body).parts.size();
    for (std::size_t i = 0; i < count; ++i) {
      const std::string column = "the column " + std::to_string(i + 1);
      const auto change = [&](const std::string& what, const std::function<void(std::string & part)>& edit) {
        AddParts(column + " " + what, ColumnsOf, [i, edit](Parts& parts) {
          if (i < parts.parts.size()) edit(parts.parts[i]);
        });
      };
      for (const std::string& name : {std::string(), std::string("Other"), std::string("\xC3\x28\xFF"),
                                      std::string("\x1b[2J"), std::string(70000, 'n')}) {
        change("named " + name.substr(0, 5),
               [name](std::string& part) { part.replace(0, part.find('\0'), name); });
      }
      // int2, int4, int8, text, date, bytea, a composite's and none.
      for (const std::uint32_t type : {21U, 23U, 20U, 25U, 1082U, 17U, 2249U, 0U}) {
        change("of the type " + std::to_string(type), [type](std::string& part) {
          part.replace(part.size() - kBehindName + 6, 4, Number(type, 4));
        });
      }
      for (const std::uint32_t format : {0U, 7U}) {
        change("in the format " + std::to_string(format),
               [format](std::string& part) { part.replace(part.size() - 2, 2, Number(format, 2)); });
      }
    }
  }

  void AddCells() {
    AddCounts(CellsOf);
    const std::vector<std::pair<std::string, std::string>> contents = {
        {"null", Number(kNull, 4)},
        {"empty", Cell("")},
        {"of one byte", Cell("1")},
        {"of three bytes", Cell("abc")},
        {"as long as a day", Cell("\x7F\xFF\xFF\xFF")},
        {"before all days", Cell("\x80\0\0\0"s)},
        {"the least of all", Cell("\x80\0\0\0\0\0\0\0"s)},
        {"zero", Cell(std::string(4, '\0'))},
        {"of bytes that are no text", Cell("\xC3\x28\xFF\xED\xA0\x80")},
        {"of a text with NUL", Cell("a\0b"s)},
        {"of a text with escapes", Cell("\x1b]0;in order\a\r\n\t%s%n{{\"")},
        {"of a long text", Cell(std::string(1000000, 'x'))},
        {"of open brackets", Cell(std::string(50000, '['))},
        {"longer than the row", Number(0x7FFFFFFF, 4)},
        {"of a length below none", Number(0xFFFFFFFE, 4)},
    };
    const std::size_t count = CellsOf(message_.body).parts.size();
    for (std::size_t i = 0; i < count; ++i) {
      for (const auto& [what, content] : contents) {
        AddParts("the cell " + std::to_string(i + 1) + " " + what, CellsOf,
                 [i, bytes = content](Parts& parts) {
                   if (i < parts.parts.size()) parts.parts[i] = bytes;
                 });
      }
    }
  }

  void AddTags() {
    for (const std::string& tag :
         {std::string("ROLLBACK"), std::string("COMMIT"), std::string("SELECT 0"), std::string("FETCH 1"),
          std::string("FETCH 99999999999999999999"), std::string("\xFF"), std::string(100000, 'C')}) {
      if (message_.body.starts_with(tag)) continue;
      const bool undoes = message_.body.starts_with("COMMIT") || message_.body.starts_with("FETCH") ||
                          message_.body.starts_with("SELECT");
      Lie& lie = AddBody("the end of " + tag.substr(0, 10), tag + '\0');
      const bool is_same_count = message_.body.ends_with(" 1\0"s) && tag == "FETCH 1";
      const bool is_none = message_.body.ends_with(" 0\0"s) && tag == "SELECT 0";
      if (undoes && !is_same_count && !is_none) lie.detection = Detection::kFailure;
    }
    AddBody("an end without an end", "SELECT 1");
  }

  std::size_t at_;
  const ServerMessage& message_;
  std::mt19937 random_;
  std::vector<Lie>& lies_;
};

/// What answers the first command by which a session forgets a call.
bool BeginsReset(const ServerMessage& message) {
  return message.type == 'C' && message.body.starts_with("CLOSE CURSOR ALL");
}

/// The call has its answer when its session is reset: who finds out a lie about that closes the session, and
/// has nobody to tell.
void LetPass(std::vector<Lie>& lies, std::size_t first) {
  for (std::size_t i = first; i < lies.size(); ++i) {
    if (lies[i].detection == Detection::kFailure) lies[i].detection = Detection::kFailureOrTruth;
  }
}

std::uint32_t Environment(const char* name) {
  const char* const text = std::getenv(name);
  const auto number = text != nullptr ? std::strtoul(text, nullptr, 10) : 1;
  return static_cast<std::uint32_t>(number != 0 ? number : 1);
}

}  // namespace

std::vector<Lie> LiesAbout(const std::vector<ServerMessage>& conversation, std::uint32_t seed) {
  std::vector<Lie> lies;
  std::size_t rows = 0;
  bool is_reset = false;
  for (std::size_t at = 0; at < conversation.size(); ++at) {
    const std::size_t before = lies.size();
    if (BeginsReset(conversation[at])) is_reset = true;
    const bool is_row = conversation[at].type == 'D';
    rows = is_row ? rows + 1 : 0;
    // What is true of a row is true of the many that follow it.
    const bool is_last_row = is_row && at + 1 < conversation.size() && conversation[at + 1].type != 'D';
    if (rows > 2 && !is_last_row) continue;
    MessageLies(at, conversation[at], seed, lies).AddAll();
    if (is_reset) LetPass(lies, before);
    if (conversation[at].type == 'Z') is_reset = false;
  }
  return lies;
}

std::vector<Lie> Chosen(std::vector<Lie> lies, std::size_t count, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::shuffle(lies.begin(), lies.end(), random);
  const auto must_fail = [](const Lie& lie) { return lie.detection == Detection::kFailure; };
  const auto others = std::stable_partition(lies.begin(), lies.end(), must_fail);
  std::vector<Lie> chosen;
  const auto take = [&](auto begin, auto end, std::size_t most) {
    const auto there = static_cast<std::size_t>(std::distance(begin, end));
    const auto taken = static_cast<std::ptrdiff_t>(std::min(most, there));
    chosen.insert(chosen.end(), std::make_move_iterator(begin), std::make_move_iterator(begin + taken));
  };
  take(lies.begin(), others, count / 3);
  take(others, lies.end(), count - chosen.size());
  return chosen;
}

Teller TellerOf(const Lie& lie) {
  if (!lie.is_late) {
    return [lie](std::size_t number, const ServerMessage& message) {
      return number == lie.at ? lie.tell(message) : Told{message.Bytes()};
    };
  }
  auto held = std::make_shared<std::string>();
  return [lie, held](std::size_t number, const ServerMessage& message) {
    if (number == lie.at) {
      *held = message.Bytes();
      return Told{"", Told::Then::kGoOn, true};
    }
    return Told{message.Bytes() + std::exchange(*held, "")};
  };
}

Teller Recorder(std::vector<ServerMessage>& conversation) {
  return [&conversation](std::size_t, const ServerMessage& message) {
    conversation.push_back(message);
    return Told{message.Bytes()};
  };
}

std::uint32_t SeedOfLies() { return Environment("FERROWIND_LIES_SEED"); }

std::size_t CountOfLies(std::size_t usual) { return usual * Environment("FERROWIND_LIES"); }

}  // namespace ferrowind::contract
