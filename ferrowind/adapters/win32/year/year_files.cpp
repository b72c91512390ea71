#include "ferrowind/adapters/win32/year/year_files.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>
#include <utility>

#include "ferrowind/adapters/win32/controls/image_library.h"
#include "ferrowind/adapters/win32/year/pdf_document.h"
#include "ferrowind/adapters/win32/year/picture.h"
#include "ferrowind/adapters/windows/system_message.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::win32 {
namespace {

constexpr double kMillimetresAnInch = 25.4;
constexpr double kPointsAnInch = 72;
constexpr double kShortSide = 210 / kMillimetresAnInch;
constexpr double kLongSide = 297 / kMillimetresAnInch;
constexpr double kMargin = 12 / kMillimetresAnInch;
/// At which letters are as sharp as printers need them.
constexpr double kDotsOfPages = 200;
constexpr double kDotsOfPictures = 192;

platform::Failure NotWritten(const std::string& path, const std::string& reason) {
  return {platform::failure_number::kInvalidArgument, "The file " + path + " cannot be written: " + reason};
}

/// A file beside the one that is to be replaced; removed when it does not take that one's place.
class NewFile {
 public:
  explicit NewFile(const std::string& path)
      : name_(path), path_(platform::FilePath(path)), new_path_(path_.native() + L".new") {}
  ~NewFile() {
    std::error_code ignored;
    std::filesystem::remove(new_path_, ignored);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return new_path_; }
  [[nodiscard]] platform::Failure NotMade() const {
    return NotWritten(name_, windows::SystemMessage(GetLastError()));
  }
  void TakePlace() const {
    if (MoveFileExW(new_path_.c_str(), path_.c_str(), MOVEFILE_REPLACE_EXISTING) == 0) throw NotMade();
  }

 private:
  std::string name_;
  std::filesystem::path path_;
  std::filesystem::path new_path_;
};

SIZE PixelsOfSheet(bool is_across, double dots) {
  const LONG shorter = std::lround(kShortSide * dots);
  const LONG longer = std::lround(kLongSide * dots);
  return is_across ? SIZE{longer, shorter} : SIZE{shorter, longer};
}

YearPages::Sheet SheetOn(const Picture& picture, double dots) {
  const LONG margin = std::lround(kMargin * dots);
  return {picture.Context(),
          {margin, margin},
          {picture.Size().cx - 2 * margin, picture.Size().cy - 2 * margin},
          dots};
}

}  // namespace

void SaveAsPdf(const YearPages& pages, const std::string& path) {
  const NewFile file(path);
  PdfDocument document(pages.Heading());
  const SIZE size = PixelsOfSheet(pages.IsAcross(), kDotsOfPages);
  const double width = static_cast<double>(size.cx) / kDotsOfPages * kPointsAnInch;
  const double height = static_cast<double>(size.cy) / kDotsOfPages * kPointsAnInch;
  auto page = std::make_unique<Picture>(size);
  pages.PaintOnPages(SheetOn(*page, kDotsOfPages), [&] {
    document.AddPage(*page, width, height);
    page = std::make_unique<Picture>(size);
    return SheetOn(*page, kDotsOfPages);
  });
  document.AddPage(*page, width, height);
  const std::string content = document.Content();
  std::ofstream stream(file.Path(), std::ios::binary);
  stream.write(content.data(), static_cast<std::streamsize>(content.size()));
  stream.close();
  if (!stream) throw file.NotMade();
  file.TakePlace();
}

void SaveAsPicture(const YearPages& pages, const std::string& path) {
  const NewFile file(path);
  SIZE size = PixelsOfSheet(pages.IsAcross(), kDotsOfPictures);
  // How high it is shows in a painting that goes nowhere.
  YearPages::Sheet sheet = SheetOn(Picture({1, 1}), kDotsOfPictures);
  const Picture nowhere({1, 1});
  sheet.context = nowhere.Context();
  sheet.size = {size.cx - 2 * sheet.corner.x, size.cy - 2 * sheet.corner.y};
  size.cy = pages.PaintOnRoll(sheet) + 2 * sheet.corner.y;
  const Picture picture(size);
  sheet.context = picture.Context();
  pages.PaintOnRoll(sheet);

  // The image library's own identifier of its writer of PNG.
  constexpr CLSID kPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
  const ImageLibrary library;
  Gdiplus::Bitmap image(picture.Bitmap(), nullptr);
  image.SetResolution(static_cast<float>(kDotsOfPictures), static_cast<float>(kDotsOfPictures));
  SetLastError(ERROR_SUCCESS);
  if (image.Save(file.Path().c_str(), &kPng, nullptr) != Gdiplus::Ok) {
    // The image library says less than an attempt of ours.
    const std::ofstream attempt(file.Path());
    throw file.NotMade();
  }
  file.TakePlace();
}

}  // namespace ferrowind::win32
