#include "tests/windows/win32/contract_layouts.h"

namespace ferrowind::contract {

using win32::LayoutDirection;
using win32::LayoutPlace;

win32::FormLayouts ContractLayouts() {
  const auto control = [](const char* name, int stretch = 0) {
    return LayoutPlace{.name = name, .stretch = stretch};
  };
  const auto row = [](std::vector<LayoutPlace> places) {
    return LayoutPlace{.direction = LayoutDirection::kRow, .places = std::move(places)};
  };
  win32::FormLayouts layouts;
  layouts.Add("fmContract",
              {.places = {control("ssatbTools"),
                          row({control("txtText", 1), control("txtOther", 1)}),
                          row({control("cmdPush"), control("lblText"), control("cmbList"), control("dtpDay"),
                               control("udNumber"), control("pctArea"), control("anim")}),
                          row({control("txtView", 1),
                               {.name = "fraBox", .stretch = 1, .places = {control("txtInside")}}}),
                          {.name = "sssp",
                           .direction = LayoutDirection::kRow,
                           .stretch = 1,
                           .places = {control("tvNodes", 2), control("gexRows", 6), control("gexRanges", 2),
                                      control("yvYear", 5)}},
                          control("sbLine")}});
  layouts.Add("fmContractFixed",
              {.margin = 10,
               .places = {control("txtText"), control("cmdFirst"), control("cmdOk"), control("cmdCancel")}});
  layouts.Add("fmContractTables",
              {.margin = 10, .places = {control("tblRows", 1), control("tblCells", 1), control("cmdOk")}});
  layouts.Add("fmContractClosable", {.margin = 10, .places = {control("cmdOk")}});
  return layouts;
}

}  // namespace ferrowind::contract
