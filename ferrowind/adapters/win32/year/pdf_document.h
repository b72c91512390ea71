#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/win32/year/picture.h"

namespace ferrowind::win32 {

/// A PDF document whose pages are pictures: the platform prints PDF only where its user has set up a printer
/// for it.
class PdfDocument {
 public:
  /// `title` is what readers show of it.
  explicit PdfDocument(std::wstring title) : title_(std::move(title)) {}

  /// A page of that size in points (72 to the inch), which the picture fills.
  void AddPage(const Picture& picture, double width, double height);
  /// The document as a file holds it.
  [[nodiscard]] std::string Content() const;

 private:
  struct Page {
    double width;
    double height;
    SIZE pixels;
    /// Of the pixels, compressed as the filter LZWDecode reads them.
    std::string data;
  };

  std::wstring title_;
  std::vector<Page> pages_;
};

}  // namespace ferrowind::win32
