#include "tests/contract/toolkit/contract_forms.h"

namespace ferrowind::contract {

using platform::ControlKind;
using platform::FormBorder;
using platform::FormDesign;

FormDesign ContractForm() {
  return {.name = "fmContract",
          .caption = "Contract",
          .client_width = 12000,
          .client_height = 9000,
          .controls = {{ControlKind::kTextBox, "txtText", "First text"},
                       {ControlKind::kTextBox, "txtOther"},
                       {ControlKind::kTextView, "txtView", "Two\nlines"},
                       {ControlKind::kButton, "cmdPush", "Push"},
                       {ControlKind::kLabel, "lblText", "A label"},
                       {ControlKind::kDropDownList, "cmbList"},
                       {ControlKind::kDatePicker, "dtpDay"},
                       {ControlKind::kUpDown, "udNumber"},
                       {ControlKind::kFrame, "fraBox"},
                       {ControlKind::kTextBox, "txtInside"},
                       {ControlKind::kPanel, "pctArea"},
                       {ControlKind::kTree, "tvNodes"},
                       {ControlKind::kGrid, "gexRows"},
                       {.kind = ControlKind::kGrid, .name = "gexRanges", .marks_row_ranges = true},
                       {ControlKind::kToolBar, "ssatbTools"},
                       {ControlKind::kStatusBar, "sbLine"},
                       {ControlKind::kSplitter, "sssp"},
                       {ControlKind::kAnimation, "anim"},
                       {ControlKind::kYearView, "yvYear"}}};
}

FormDesign ContractFixedDialog() {
  return {
      .name = "fmContractFixed",
      .caption = "Fixed",
      .border = FormBorder::kFixedDialog,
      .start = platform::FormStart::kCenterScreen,
      .client_width = 3600,
      .client_height = 1500,
      .controls = {
          {.kind = ControlKind::kTextBox, .name = "txtText", .takes_typing = true},
          {.kind = ControlKind::kButton, .name = "cmdFirst", .text = "First"},
          {.kind = ControlKind::kButton, .name = "cmdOk", .text = "Ok", .is_default_button = true},
          {.kind = ControlKind::kButton, .name = "cmdCancel", .text = "Cancel", .is_cancel_button = true}}};
}

FormDesign ContractClosableDialog() {
  return {.name = "fmContractClosable",
          .caption = "Closable",
          .border = FormBorder::kClosableDialog,
          .client_width = 3600,
          .client_height = 1500,
          .controls = {{ControlKind::kButton, "cmdOk", "Ok"}}};
}

FormDesign ContractTables() {
  return {
      .name = "fmContractTables",
      .caption = "Tables",
      .client_width = 12000,
      .client_height = 9000,
      .controls = {{ControlKind::kTable, "tblRows"},
                   {.kind = ControlKind::kTable,
                    .name = "tblCells",
                    .selects_cells = true,
                    .selects_many = true,
                    .sorts = true},
                   {.kind = ControlKind::kButton, .name = "cmdOk", .text = "Ok", .is_default_button = true}}};
}

FormDesign FormWithoutLayout() { return {.name = "fmNowhere", .caption = "Nowhere"}; }

}  // namespace ferrowind::contract
