#include "ferrowind/adapters/win32/year/pdf_document.h"

#include <clocale>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ferrowind::win32 {
namespace {

/// The bytes of the picture in a document, read as the filter LZWDecode is described.
std::vector<std::uint8_t> PixelsOf(const std::string& document) {
  const std::size_t filter = document.find("/LZWDecode");
  const std::size_t begin = document.find("stream\n", filter) + 7;
  const std::size_t end = document.find("\nendstream", begin);
  std::vector<std::uint8_t> bytes;
  std::vector<std::vector<std::uint8_t>> table;
  const auto clear = [&] {
    table.clear();
    for (int byte = 0; byte < 256; ++byte) table.push_back({static_cast<std::uint8_t>(byte)});
    table.resize(258);
  };
  std::size_t bit = begin * 8;
  std::vector<std::uint8_t> before;
  for (unsigned width = 9; bit + width <= end * 8;) {
    std::uint32_t code = 0;
    for (unsigned i = 0; i < width; ++i, ++bit) {
      const auto byte = static_cast<std::uint8_t>(document[bit / 8]);
      code = code << 1U | (byte >> (7 - bit % 8) & 1U);
    }
    if (code == 257) return bytes;
    if (code == 256) {
      clear();
      before.clear();
      width = 9;
      continue;
    }
    std::vector<std::uint8_t> text = code < table.size() ? table[code] : before;
    if (code >= table.size()) text.push_back(before.front());
    if (!before.empty()) {
      before.push_back(text.front());
      table.push_back(before);
    }
    bytes.insert(bytes.end(), text.begin(), text.end());
    before = text;
    // Codes become wider one code early.
    width = table.size() + 1 >= 2048 ? 12 : table.size() + 1 >= 1024 ? 11 : table.size() + 1 >= 512 ? 10 : 9;
  }
  ADD_FAILURE() << "The picture has no end";
  return bytes;
}

TEST(PdfDocumentTest, HoldsTheVeryPixelsOfItsPages) {
  const Picture picture({150, 120});
  std::mt19937 random(1);
  for (int i = 0; i < 6000; ++i)
    SetPixel(picture.Context(), static_cast<int>(random() % 150), static_cast<int>(random() % 120),
             RGB(random() % 256, random() % 256, random() % 256));
  std::vector<std::uint8_t> expected;
  for (LONG line = 0; line < picture.Size().cy; ++line) {
    const auto pixels = picture.Line(line);
    for (std::size_t i = 0; i + 2 < pixels.size(); i += 3)
      expected.insert(expected.end(), {pixels[i + 2], pixels[i + 1], pixels[i]});
  }
  PdfDocument document(L"Year");
  document.AddPage(picture, 100, 80);
  EXPECT_EQ(PixelsOf(document.Content()), expected);
}

TEST(PdfDocumentTest, SaysWhereItsObjectsAre) {
  PdfDocument document(L"Year");
  const Picture picture({10, 10});
  document.AddPage(picture, 100, 80);
  document.AddPage(picture, 100, 80);
  const std::string content = document.Content();
  EXPECT_EQ(content.rfind("%PDF-1.4", 0), 0U);
  EXPECT_NE(content.find("/Count 2"), std::string::npos);
  const std::size_t start = content.find("startxref\n") + 10;
  const std::size_t table = std::stoul(content.substr(start));
  EXPECT_EQ(content.substr(table, 4), "xref");
  // Each line of the table is the place of an object of that number.
  for (std::size_t number = 1; number <= 9; ++number) {
    constexpr std::size_t kLine = 20;
    const std::size_t line = content.find('\n', table + 5) + 1 + number * kLine;
    const std::size_t place = std::stoul(content.substr(line, 10));
    EXPECT_EQ(content.substr(place, 7), std::to_string(number) + " 0 obj");
  }
}

TEST(PdfDocumentTest, WritesNumbersWithAPointInEveryLocale) {
  PdfDocument document(L"Year");
  document.AddPage(Picture({10, 10}), 595.275, 841.89);
  const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
  std::setlocale(LC_NUMERIC, "German_Germany");
  const std::string content = document.Content();
  std::setlocale(LC_NUMERIC, locale.c_str());
  EXPECT_NE(content.find("/MediaBox [ 0 0 595.2750 841.8900 ]"), std::string::npos);
}

}  // namespace
}  // namespace ferrowind::win32
