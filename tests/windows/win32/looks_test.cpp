#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/adapters/glyphs/glyphs.h"
#include "ferrowind/adapters/win32/controls/glyph_pictures.h"
#include "ferrowind/adapters/win32/controls/tool_bar.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/platform/toolkit/form.h"

#include "tests/windows/win32/input.h"

namespace ferrowind::win32 {
namespace {

using platform::ControlDesign;
using platform::ControlKind;

RECT AreaOf(platform::Form& form, const char* control) {
  RECT area{};
  GetWindowRect(dynamic_cast<ControlWindow&>(form.ControlNamed(control)).Handle(), &area);
  return area;
}

std::shared_ptr<platform::Form> MakeForm(const LayoutPlace& layout, std::vector<ControlDesign> controls) {
  FormLayouts layouts;
  layouts.Add("fmLooks", layout);
  constexpr float kTwipsAcross = 6000;
  return Win32Toolkit(layouts).CreateForm({.name = "fmLooks",
                                           .caption = "Looks",
                                           .client_width = kTwipsAcross,
                                           .client_height = kTwipsAcross / 2,
                                           .controls = std::move(controls)});
}

LayoutPlace Row(std::vector<LayoutPlace> places) {
  return {.direction = LayoutDirection::kRow, .places = std::move(places)};
}

TEST(Layout, BeginsFieldsBehindLabelsAtOnePlaceAlsoInFrames) {
  const auto form = MakeForm({.margin = 10,
                              .places = {Row({{.name = "lblLong"}, {.name = "txtFirst", .stretch = 1}}),
                                         {.name = "fra",
                                          .places = {Row({{.name = "lblShort"},
                                                          {.name = "lblHidden"},
                                                          {.name = "txtSecond", .stretch = 1}})}}}},
                             {{ControlKind::kLabel, "lblLong", "Type of it"},
                              {ControlKind::kTextBox, "txtFirst"},
                              {ControlKind::kFrame, "fra"},
                              {ControlKind::kLabel, "lblShort", "By"},
                              {ControlKind::kLabel, "lblHidden", "By something longer"},
                              {ControlKind::kTextBox, "txtSecond"}});
  form->ControlNamed("lblHidden").SetVisible(false);
  EXPECT_EQ(AreaOf(*form, "txtFirst").left, AreaOf(*form, "txtSecond").left);
  const LONG place = AreaOf(*form, "txtFirst").left;
  // There is room for the other label already.
  form->ControlNamed("lblShort").SetVisible(false);
  form->ControlNamed("lblHidden").SetVisible(true);
  EXPECT_EQ(AreaOf(*form, "txtFirst").left, place);
  EXPECT_EQ(AreaOf(*form, "txtSecond").left, place);
}

TEST(Layout, LetsAPlaceSayThatItsPartsBelongTogether) {
  const auto form = MakeForm(
      {.direction = LayoutDirection::kRow, .gap = 0, .places = {{.name = "txtYear"}, {.name = "udYear"}}},
      {{ControlKind::kTextBox, "txtYear"}, {ControlKind::kUpDown, "udYear"}});
  EXPECT_EQ(AreaOf(*form, "txtYear").right, AreaOf(*form, "udYear").left);
  EXPECT_EQ(AreaOf(*form, "txtYear").bottom, AreaOf(*form, "udYear").bottom);
}

TEST(ToolBarLooks, ShowAPictureOfAToolThatHasOneAndTheCaptionOfAnother) {
  const auto form = MakeForm({.places = {{.name = "tools"}}}, {{ControlKind::kToolBar, "tools"}});
  auto& tools = dynamic_cast<Win32ToolBar&>(form->ControlNamed("tools"));
  tools.AddTool({.id = "ID_Refresh", .caption = "Refresh"});
  tools.AddTool({.id = "ID_Nowhere", .caption = "Nowhere"});
  tools.SetBar("Tools", {"ID_Refresh", "ID_Nowhere"});

  const auto shown = [&](const char* id) {
    TBBUTTONINFOW info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_IMAGE | TBIF_STYLE;
    SendMessageW(tools.Handle(), TB_GETBUTTONINFOW, static_cast<WPARAM>(tools.CommandOf(id)),
                 reinterpret_cast<LPARAM>(&info));
    return info;
  };
  EXPECT_EQ(shown("ID_Refresh").iImage, 0);
  EXPECT_EQ(shown("ID_Refresh").fsStyle & BTNS_SHOWTEXT, 0);
  EXPECT_EQ(shown("ID_Nowhere").iImage, I_IMAGENONE);
  EXPECT_NE(shown("ID_Nowhere").fsStyle & BTNS_SHOWTEXT, 0);
  // Assistive programs read it.
  std::array<wchar_t, 32> name{};
  SendMessageW(tools.Handle(), TB_GETBUTTONTEXTW, static_cast<WPARAM>(tools.CommandOf("ID_Refresh")),
               reinterpret_cast<LPARAM>(name.data()));
  EXPECT_EQ(std::wstring(name.data()), L"Refresh");
}

TEST(ToolBarLooks, HaveTheShortcutsOfTheFaces) {
  const auto form = MakeForm({.places = {{.name = "tools"}, {.name = "cmd"}}},
                             {{ControlKind::kToolBar, "tools"}, {ControlKind::kButton, "cmd", "Push"}});
  auto& tools = dynamic_cast<Win32ToolBar&>(form->ControlNamed("tools"));
  tools.AddTool({.id = "ID_Refresh", .caption = "Refresh"});
  std::string clicked;
  const auto subscription = tools.OnToolClick([&](const std::string& id) { clicked = id; });
  form->Show();
  contract::HandleMessages();
  contract::PressKey(VK_F5);
  EXPECT_EQ(clicked, "ID_Refresh");
}

/// The colours of a picture on a ground, by rows.
class Drawn {
 public:
  Drawn(HIMAGELIST pictures, COLORREF ground) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = kSide;
    info.bmiHeader.biHeight = -kSide;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bytes = nullptr;
    const UniqueMemoryContext context(CreateCompatibleDC(nullptr));
    const UniqueBitmap bitmap(CreateDIBSection(context.get(), &info, DIB_RGB_COLORS, &bytes, nullptr, 0));
    const Selected selected(context.get(), bitmap.get());
    const RECT room{0, 0, kSide, kSide};
    SetDCBrushColor(context.get(), ground);
    FillRect(context.get(), &room, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    ImageList_Draw(pictures, 0, context.get(), 0, 0, ILD_NORMAL);
    for (int y = 0; y < kSide; ++y) {
      for (int x = 0; x < kSide; ++x) colors_.push_back(GetPixel(context.get(), x, y));
    }
  }

  static constexpr int kSide = 24;

  [[nodiscard]] COLORREF At(int x, int y) const { return colors_[static_cast<std::size_t>(y * kSide + x)]; }

 private:
  std::vector<COLORREF> colors_;
};

TEST(GlyphPictures, HaveTheColoursAndLetTheGroundShineThrough) {
  constexpr COLORREF kLine = RGB(0x10, 0x20, 0x30);
  constexpr COLORREF kAccent = RGB(0xd0, 0x40, 0x20);
  const auto pictures = PicturesOf({&glyphs::CalendarGlyph}, Drawn::kSide, {kLine, kAccent});
  for (const COLORREF ground : {RGB(0xff, 0xff, 0xff), RGB(0x20, 0x60, 0x20)}) {
    const Drawn drawn(pictures.get(), ground);
    EXPECT_EQ(drawn.At(0, 0), ground);
    // In the middle of the filled day, and beside it.
    EXPECT_EQ(drawn.At(15, 15), kAccent);
    EXPECT_EQ(drawn.At(12, 12), ground);
    // On the line under the head.
    EXPECT_EQ(drawn.At(12, 10), drawn.At(6, 10));
    EXPECT_NE(drawn.At(12, 10), ground);
  }
}

}  // namespace
}  // namespace ferrowind::win32
