#pragma once

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/adapters/headless/script_errors.h"
#include "ferrowind/platform/services/clock.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind::headless {

class HeadlessForm;

/// What the operator does with a modal form once it is shown.
using ModalScript = std::function<void(HeadlessForm& form)>;

/// A form that is shown modally.
struct ModalForm {
  HeadlessForm* form;
  /// The form that it belongs to, null for none.
  const HeadlessForm* owner;
  /// Whether it went with its owner.
  bool is_interrupted = false;
};

/// What a toolkit and the forms that it made have in common.
struct ToolkitState {
  CallLog& log;
  const platform::Clock& clock;
  ScriptErrors& errors;
  platform::ScreenSize screen{28800, 16200};
  float twips_per_pixel = 15;
  /// The element that is locked against repainting, null for none.
  const platform::Element* locked = nullptr;
  /// The modal forms on show, the innermost last.
  std::vector<ModalForm> modal_forms = {};
  /// The forms that events are being handled of, or that are shown modally, the innermost last.
  std::vector<HeadlessForm*> forms_at_work = {};
  /// The scripts that wait, by the name of the form that they are for.
  std::map<std::string, std::deque<ModalScript>> modal_scripts = {};
  /// The paths that there is an animated image under.
  std::set<std::string> animations = {};
  /// The text that was copied last.
  std::string clipboard = {};
  /// The names of the containers that controls stand in, by form and control.
  std::map<std::string, std::map<std::string, std::string>> containers = {};
};

}  // namespace ferrowind::headless
