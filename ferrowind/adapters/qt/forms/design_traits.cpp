#include "ferrowind/adapters/qt/forms/design_traits.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>

#include "ferrowind/adapters/qt/controls/caption_text.h"
#include "ferrowind/adapters/qt/controls/captioned.h"
#include "ferrowind/adapters/qt/controls/length_note.h"
#include "ferrowind/adapters/qt/controls/select_on_focus.h"
#include "ferrowind/adapters/qt/forms/dialog_keys.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/table/qt_table.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/platform/toolkit/label.h"
#include "ferrowind/platform/toolkit/text_box.h"
#include "ferrowind/platform/toolkit/text_view.h"

namespace ferrowind::qt {
namespace {

const QRegularExpression kCapital(QStringLiteral("[A-Z]"));

QWidget* WidgetOf(const FormWindow& window, const platform::Control& control) {
  return window.findChild<QWidget*>(ToQt(control.Name()));
}

void ApplyText(const FormWindow& window, const std::string& text, platform::Control& control) {
  if (auto* label = dynamic_cast<platform::Label*>(&control)) label->SetText(text);
  if (auto* button = dynamic_cast<platform::Button*>(&control)) button->SetCaption(text);
  if (auto* box = dynamic_cast<platform::TextBox*>(&control)) box->SetText(text);
  if (auto* view = dynamic_cast<platform::TextView*>(&control)) view->SetText(text);
  if (auto* frame = qobject_cast<QGroupBox*>(WidgetOf(window, control))) frame->setTitle(ToQt(text));
}

/// Qt makes the first button of a window the default one where none is. That suits a question, but not a
/// window that is worked in: Enter in one of its fields would press whatever button happens to be the first.
bool HasDefaultButton(const platform::FormDesign& design) {
  return design.border != platform::FormBorder::kSizable ||
         std::any_of(design.controls.begin(), design.controls.end(),
                     [](const platform::ControlDesign& control) { return control.is_default_button; });
}

void ApplyButtonRole(const FormWindow& window, const platform::ControlDesign& design, bool can_be_default) {
  auto* button = window.findChild<QPushButton*>(ToQt(design.name));
  if (button == nullptr) return;
  button->setAutoDefault(can_be_default);
  button->setDefault(design.is_default_button);
  if (design.is_cancel_button) SetCancelButton(*button);
}

void ApplyTyping(FormWindow& window, const platform::ControlDesign& design) {
  auto* line = window.findChild<QLineEdit*>(ToQt(design.name));
  if (line == nullptr || !design.takes_typing) return;
  new SelectOnFocus(*line);
  window.SetTypingTarget(*line);
}

void ApplyLongestText(const FormWindow& window, const platform::ControlDesign& design) {
  auto* line = window.findChild<QLineEdit*>(ToQt(design.name));
  if (line != nullptr && design.longest_text > 0)
    new LengthNote(*line, static_cast<qsizetype>(design.longest_text));
}

void ApplyMnemonics(const FormControls& controls) {
  QSet<QChar> taken;
  for (const auto& made : controls) {
    auto* captioned = dynamic_cast<Captioned*>(made.get());
    if (captioned == nullptr || !captioned->TakesMnemonic()) continue;
    const QString caption = captioned->PlainCaption();
    // Behind the letters of its kind the name says in English what the control is for.
    const QString name = ToQt(made->Name());
    for (const QChar character : HasForeignWords(caption) ? name.mid(name.indexOf(kCapital)) : caption) {
      const QChar key = character.toLower();
      if (!CanBeMnemonic(key) || taken.contains(key)) continue;
      taken.insert(key);
      captioned->SetMnemonic(key);
      break;
    }
  }
}

void ApplyTabOrder(const FormWindow& window, const FormControls& controls) {
  QWidget* before = nullptr;
  for (const auto& made : controls) {
    QWidget* widget = WidgetOf(window, *made);
    if (widget->focusPolicy() == Qt::NoFocus && widget->focusProxy() == nullptr) continue;
    if (before != nullptr) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

}  // namespace

void ApplyDesign(FormWindow& window, const platform::FormDesign& design, const FormControls& controls) {
  const bool has_default = HasDefaultButton(design);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    ApplyText(window, design.controls[i].text, *controls[i]);
    ApplyButtonRole(window, design.controls[i], has_default);
    ApplyTyping(window, design.controls[i]);
    ApplyLongestText(window, design.controls[i]);
    if (auto* grid = dynamic_cast<QtGrid*>(controls[i].get()))
      grid->SetMarksRowRanges(design.controls[i].marks_row_ranges);
    if (auto* table = dynamic_cast<QtTable*>(controls[i].get())) table->ApplyDesign(design.controls[i]);
  }
  ApplyMnemonics(controls);
  ApplyTabOrder(window, controls);
}

void FocusFirst(const FormWindow& window, const FormControls& controls) {
  for (const auto& made : controls) {
    QWidget* widget = WidgetOf(window, *made);
    const bool takes_tab = (widget->focusPolicy() & Qt::TabFocus) != 0 || widget->focusProxy() != nullptr;
    if (!takes_tab || !widget->isEnabled() || !widget->isVisibleTo(&window)) continue;
    widget->setFocus(Qt::TabFocusReason);
    return;
  }
}

}  // namespace ferrowind::qt
