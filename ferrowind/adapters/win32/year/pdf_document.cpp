#include "ferrowind/adapters/win32/year/pdf_document.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <unordered_map>

namespace ferrowind::win32 {
namespace {

/// With a point, whatever the host's locale has.
std::string Number(double number) {
  constexpr int kDigits = 4;
  std::array<char, 32> text{};
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, kDigits);
  return {text.data(), written.ptr};
}

/// Compresses bytes by a table of strings that grows with them.
class LzwWriter {
 public:
  LzwWriter() { Put(kClear); }

  void Add(std::uint8_t byte) {
    if (prefix_ == kNone) {
      prefix_ = byte;
      return;
    }
    const std::uint32_t key = prefix_ << 8U | byte;
    const auto known = codes_.find(key);
    if (known != codes_.end()) {
      prefix_ = known->second;
      return;
    }
    Put(prefix_);
    codes_.emplace(key, next_++);
    prefix_ = byte;
    // The reader knows each string one code later than the writer.
    if (next_ + 1 > kMost) {
      Put(kClear);
      codes_.clear();
      next_ = kFirst;
      bits_ = kLeastBits;
    } else if (next_ + 1 > (1U << bits_)) {
      ++bits_;
    }
  }

  [[nodiscard]] std::string Finish() {
    if (prefix_ != kNone) Put(prefix_);
    // The code counts as a string to the reader.
    if (next_ + 2 > (1U << bits_)) ++bits_;
    Put(kEnd);
    if (held_bits_ > 0) bytes_ += static_cast<char>(held_ << (8 - held_bits_) & 0xffU);
    return std::move(bytes_);
  }

 private:
  static constexpr std::uint32_t kClear = 256;
  static constexpr std::uint32_t kEnd = 257;
  static constexpr std::uint32_t kFirst = 258;
  static constexpr std::uint32_t kMost = 4095;
  static constexpr std::uint32_t kNone = 0xffffffff;
  static constexpr unsigned kLeastBits = 9;

  void Put(std::uint32_t code) {
    held_ = held_ << bits_ | code;
    held_bits_ += bits_;
    while (held_bits_ >= 8) {
      held_bits_ -= 8;
      bytes_ += static_cast<char>(held_ >> held_bits_ & 0xffU);
    }
  }

  std::string bytes_;
  std::uint64_t held_ = 0;
  unsigned held_bits_ = 0;
  unsigned bits_ = kLeastBits;
  std::uint32_t next_ = kFirst;
  std::uint32_t prefix_ = kNone;
  std::unordered_map<std::uint32_t, std::uint32_t> codes_;
};

std::string Compressed(const Picture& picture) {
  LzwWriter writer;
  for (LONG line = 0; line < picture.Size().cy; ++line) {
    const auto pixels = picture.Line(line);
    for (std::size_t i = 0; i + 2 < pixels.size(); i += 3) {
      writer.Add(pixels[i + 2]);
      writer.Add(pixels[i + 1]);
      writer.Add(pixels[i]);
    }
  }
  return writer.Finish();
}

std::string HexOf(const std::wstring& text) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string hex = "<FEFF";
  for (const wchar_t unit : text) {
    for (int shift = 12; shift >= 0; shift -= 4) hex += kDigits[unit >> shift & 0xf];
  }
  return hex + ">";
}

/// The objects of a document, each of which has a number and a place in the file.
class Objects {
 public:
  /// The next number, of the object that begins here.
  std::size_t Begin() {
    places_.push_back(text_.size());
    text_ += std::to_string(places_.size()) + " 0 obj\n";
    return places_.size();
  }
  void End() { text_ += "\nendobj\n"; }
  void Add(const std::string& text) { text_ += text; }
  void AddStream(const std::string& dictionary, const std::string& data) {
    text_ += "<< " + dictionary + " /Length " + std::to_string(data.size()) + " >>\nstream\n" + data +
             "\nendstream";
  }
  [[nodiscard]] std::string Finish(std::size_t root, std::size_t information) {
    const std::size_t table = text_.size();
    const std::string count = std::to_string(places_.size() + 1);
    text_ += "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const std::size_t place : places_) {
      const std::string digits = std::to_string(place);
      text_ += std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
    }
    text_ += "trailer\n<< /Size " + count + " /Root " + Reference(root) + " /Info " + Reference(information) +
             " >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
    return std::move(text_);
  }
  [[nodiscard]] static std::string Reference(std::size_t object) { return std::to_string(object) + " 0 R"; }

 private:
  std::string text_ = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
  std::vector<std::size_t> places_;
};

}  // namespace

void PdfDocument::AddPage(const Picture& picture, double width, double height) {
  pages_.push_back({width, height, picture.Size(), Compressed(picture)});
}

std::string PdfDocument::Content() const {
  // The catalogue, the tree of pages and what is told of the document come first, then three for each page.
  constexpr std::size_t kCatalogue = 1;
  constexpr std::size_t kTree = 2;
  constexpr std::size_t kInformation = 3;
  constexpr std::size_t kPerPage = 3;
  Objects objects;
  objects.Begin();
  objects.Add("<< /Type /Catalog /Pages " + Objects::Reference(kTree) + " >>");
  objects.End();
  std::string kids;
  for (std::size_t page = 0; page < pages_.size(); ++page)
    kids += Objects::Reference(kInformation + 1 + page * kPerPage) + " ";
  objects.Begin();
  objects.Add("<< /Type /Pages /Kids [ " + kids + "] /Count " + std::to_string(pages_.size()) + " >>");
  objects.End();
  objects.Begin();
  objects.Add("<< /Title " + HexOf(title_) + " /Creator (Ferrowind) >>");
  objects.End();
  for (const Page& page : pages_) {
    const std::string width = Number(page.width);
    const std::string height = Number(page.height);
    const std::size_t number = objects.Begin();
    objects.Add("<< /Type /Page /Parent " + Objects::Reference(kTree) + " /MediaBox [ 0 0 " + width + " " +
                height + " ] /Contents " + Objects::Reference(number + 1) +
                " /Resources << /XObject << /Year " + Objects::Reference(number + 2) + " >> >> >>");
    objects.End();
    objects.Begin();
    objects.AddStream("", "q " + width + " 0 0 " + height + " 0 0 cm /Year Do Q");
    objects.End();
    objects.Begin();
    objects.AddStream("/Type /XObject /Subtype /Image /Width " + std::to_string(page.pixels.cx) +
                          " /Height " + std::to_string(page.pixels.cy) +
                          " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Filter /LZWDecode",
                      page.data);
    objects.End();
  }
  return objects.Finish(kCatalogue, kInformation);
}

}  // namespace ferrowind::win32
